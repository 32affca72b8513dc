// The small dialogs of the device panel and the rule view: the Talpor robot's
// port and the read-only summary of components and ports.
#include <QtTest>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "devices/FormOSCConfig.h"
#include "devices/FormTotemsConfig.h"
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/DialogDriver.h"
#include "mainwindow/MainWindowSession.h"

class TestDeviceDialogs : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    std::unique_ptr<FormInitial>& form = session.form;

    void click(const QString& name) { DialogDriver::click(form.get(), name); }
    static QString label(QWidget* w, const char* name) { return DialogDriver::find<QLabel>(w, QString::fromLatin1(name))->text(); }
    static bool shown(QWidget* w, const char* name) { return DialogDriver::find<QWidget>(w, QString::fromLatin1(name))->isVisible(); }

private slots:
    void initTestCase() { session.start(); }
    void init()
    {
        gDirty = false;
        form->New_Click();
        form->CommandRules_Click();
    }
    void cleanupTestCase() { session.stop(); }

    void talporOkTakesThePortAndMarksChanged()
    {
        gMainConfig.m_iTalporPort = 3;
        DialogDriver driver;
        QString caption, shownPort, caption1;
        driver.next([&](QWidget* w) {
            caption = w->windowTitle();
            shownPort = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextTalporPort"))->text();
            caption1 = label(w, "Label1");
            DialogDriver::type(w, QStringLiteral("TextTalporPort"), QStringLiteral("7"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        click(QStringLiteral("CommandTalpor"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(caption, QStringLiteral("TalporMorax Configuration"));
        QCOMPARE(caption1, QStringLiteral("TalporMor\u00E1x COM Port:"));
        QCOMPARE(shownPort, QStringLiteral("3"));
        QCOMPARE(gMainConfig.m_iTalporPort, qint16(7));
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, true);   // the button only shows the dialog
    }

    void talporCancelLeavesThePortAndTheDirtyFlag()
    {
        gMainConfig.m_iTalporPort = 3;
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextTalporPort"), QStringLiteral("9"));
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        click(QStringLiteral("CommandTalpor"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMainConfig.m_iTalporPort, qint16(3));
        QCOMPARE(gDirty, false);
        QCOMPARE(gMainConfig.m_bUpdate, false);
    }

    void componentsAndPortsShowsTheCountsAndThePortsOfTheSuitsPresent_data()
    {
        QTest::addColumn<int>("exos");
        QTest::addColumn<bool>("first");
        QTest::addColumn<bool>("second");
        QTest::newRow("no suit") << 0 << false << false;
        QTest::newRow("one suit") << 1 << true << false;
        QTest::newRow("two suits") << 2 << true << true;
    }
    void componentsAndPortsShowsTheCountsAndThePortsOfTheSuitsPresent()
    {
        QFETCH(int, exos);
        QFETCH(bool, first);
        QFETCH(bool, second);
        CMainConfig& c = gMainConfig;
        c.m_iNExos = qint16(exos);
        c.m_iNTotems = 3;
        c.m_iNFlash = 4;
        c.m_iNOSCs = 5;
        c.m_iNArduinos = 6;
        c.m_iNQDMs = 7;
        c.m_iExo1Port = 11;
        c.m_iExo2Port = 12;
        c.m_iTalporPort = 13;
        form->CommandConn_Click();
        DialogDriver driver;
        QString caption;
        QStringList values;
        QList<bool> firstSet, secondSet;
        driver.next([&](QWidget* w) {
            caption = w->windowTitle();
            for (const char* name : {"LabelNExos", "LabelNTotems", "LabelNFlash", "LabelNOSCs", "LabelNArduinos",
                                     "LabelNQDMs", "LabelTalporPort", "LabelQDMPort", "LabelFlashPort"})
                values << label(w, name);
            for (const char* name : {"LabelExo1Port", "LabelCOM1", "LabelPort1"})
                firstSet << shown(w, name);
            for (const char* name : {"LabelExo2Port", "LabelCOM2", "LabelPort2"})
                secondSet << shown(w, name);
            if (first)
                values << label(w, "LabelPort1");
            if (second)
                values << label(w, "LabelPort2");
            QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(2, 2));   // a click on the form closes it
        });
        click(QStringLiteral("CommandShowConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(caption, QStringLiteral("QEL Components & Ports"));
        QStringList expected = {QString::number(exos), "3", "4", "5", "6", "7", "13", "1111", "1122"};
        if (first)
            expected << "11";
        if (second)
            expected << "12";
        QCOMPARE(values, expected);
        QCOMPARE(firstSet, (QList<bool>{first, first, first}));
        QCOMPARE(secondSet, (QList<bool>{second, second, second}));
    }

    void aClickOnTheFrameClosesTheSummary()
    {
        form->CommandConn_Click();
        DialogDriver driver;
        driver.next([](QWidget* w) {
            auto* frame = DialogDriver::find<QGroupBox>(w, QStringLiteral("Frame1"));
            QTest::mouseClick(frame, Qt::LeftButton, {}, QPoint(frame->width() - 3, frame->height() - 3));
        });
        click(QStringLiteral("CommandShowConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen(), (QStringList{"QEL Components & Ports"}));
        QCOMPARE(gDirty, false);
    }

    void aClickOnTheFormOutsideTheFrameClosesTheSummary()
    {
        form->CommandConn_Click();
        DialogDriver driver;
        bool outsideFrame = false;
        driver.next([&outsideFrame](QWidget* w) {
            auto* frame = DialogDriver::find<QGroupBox>(w, QStringLiteral("Frame1"));
            const QPoint corner(1, 1);
            outsideFrame = !frame->geometry().contains(corner);
            QTest::mouseClick(w, Qt::LeftButton, {}, corner);
        });
        click(QStringLiteral("CommandShowConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(outsideFrame);
        QCOMPARE(driver.seen(), (QStringList{"QEL Components & Ports"}));
    }

    void theComponentsDialogFromTheSetupMenuSetsTheCounts()
    {
        gMainConfig.m_iNOSCs = 2;
        DialogDriver driver;
        QString caption, oscs;
        driver.next([&](QWidget* w) {
            caption = w->windowTitle();
            oscs = DialogDriver::find<QComboBox>(w, QStringLiteral("ComboNOSCs"))->currentText();
            DialogDriver::pick(w, QStringLiteral("ComboNExos"), QStringLiteral("2"));
            DialogDriver::pick(w, QStringLiteral("ComboNArduinos"), QStringLiteral("5"));
            DialogDriver::type(w, QStringLiteral("txtEvPerSec"), QStringLiteral("24"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        session.menu("Components")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(caption, QStringLiteral("Performance Components Configuration"));
        QCOMPARE(oscs, QStringLiteral("2"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(2));
        QCOMPARE(gMainConfig.m_iNArduinos, qint16(5));
        QCOMPARE(gMainConfig.m_iNOSCs, qint16(2));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(24));
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, false);
        // The panel shows the new counts.
        QCOMPARE(form->ComboNExos->currentText(), QStringLiteral("2"));
        QCOMPARE(form->txtEvPerSec->text(), QStringLiteral("24"));
    }

    void theComponentsDialogCancelChangesNothingAndNamesScreenManagers()
    {
        DialogDriver driver;
        QString message;
        driver.next([](QWidget* w) {
            DialogDriver::pick(w, QStringLiteral("ComboNExos"), QStringLiteral("1"));
            DialogDriver::click(w, QStringLiteral("CommandScreen"));
        });
        driver.next([&](QWidget* w) {
            message = DialogDriver::text(w);
            DialogDriver::press(w, QMessageBox::Ok);
            DialogDriver::click(qobject_cast<QWidget*>(QApplication::activeModalWidget()), QStringLiteral("CommandCancel"));
        });
        session.menu("Components")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(message, QStringLiteral("No QEL Screen Managers to configure!"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(0));
        QCOMPARE(gDirty, false);
    }

    void theComponentsDialogButtonsOpenTheDialogsWithItsOwnCounts()
    {
        gMainConfig.m_iNOSCs = 0;
        DialogDriver driver;
        qint16 oscs = -1, totems = -1;
        bool updateSetByJoysticks = false, updateClearedAfter = false;
        driver.next([&](QWidget* w) {
            DialogDriver::pick(w, QStringLiteral("ComboNOSCs"), QStringLiteral("3"));
            DialogDriver::click(w, QStringLiteral("CommandOSC"));
            // The joysticks open with none as well.
            DialogDriver::click(w, QStringLiteral("CommandItems"));
            updateClearedAfter = !gMainConfig.m_bUpdate;
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        driver.next([&](QWidget* w) {
            if (auto* osc = qobject_cast<FormOSCConfig*>(w))
                oscs = osc->iNumOSCs;
            DialogDriver::cancel(w);
        });
        driver.next([&](QWidget* w) {
            if (auto* joysticks = qobject_cast<FormTotemsConfig*>(w))
                totems = joysticks->iNumTotems;
            DialogDriver::click(w, QStringLiteral("CommandOK"));
            updateSetByJoysticks = gMainConfig.m_bUpdate;
        });
        session.menu("Components")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(oscs, qint16(3));
        QCOMPARE(totems, qint16(0));
        QVERIFY(updateSetByJoysticks);
        QVERIFY(updateClearedAfter);
        QCOMPARE(gMainConfig.m_iNOSCs, qint16(0));   // the components dialog was cancelled
    }

    void theComponentsCalibrationButtonIsThePanelsAndCountsTheSuitsOfThePerformance()
    {
        gMainConfig.m_iNExos = 0;
        DialogDriver driver;
        QString message;
        driver.next([](QWidget* w) {
            DialogDriver::pick(w, QStringLiteral("ComboNExos"), QStringLiteral("2"));
            DialogDriver::click(w, QStringLiteral("ExoskeletonsCalibration"));
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        driver.next([&](QWidget* w) {
            message = DialogDriver::text(w);
            DialogDriver::press(w, QMessageBox::Ok);
        });
        session.menu("Components")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(message, QStringLiteral("No Exoskeletons!"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(0));
    }

    void theRobotsAndSummaryButtonsAreOffered()
    {
        form->CommandConn_Click();
        QVERIFY(form->CommandBots->isEnabled() && form->CommandBots->isVisible());
        QVERIFY(form->CommandShowConfig->isEnabled() && form->CommandShowConfig->isVisible());
        for (QPushButton* b : form->CommandColor)
            QVERIFY(b->isEnabled() && b->isVisible());
    }
};

QTEST_MAIN(TestDeviceDialogs)
#include "test_devicedialogs.moc"
