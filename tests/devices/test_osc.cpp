// The OSC connections dialog as an operator uses it from the device panel.
#include "DeviceDialogSession.h"
#include "devices/FormOSCConfig.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"

class TestOSCConfig : public QObject {
    Q_OBJECT
private:
    DeviceDialogSession s;

    // Fills row i of the dialog with a label, an address and a port.
    static void fillRow(QWidget* d, int i, const QString& label, const QString& ip, const QString& port)
    {
        typeIn(d, row("TextLabel", i), label);
        typeIn(d, row("TextIP", i), ip);
        typeIn(d, row("TextPort", i), port);
    }

private slots:
    void initTestCase() { s.start(); }
    void init() { s.fresh(); }
    void cleanupTestCase() { s.stop(); }

    void withNoConnectionsTheButtonOnlySaysSo()
    {
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandOSC", {noteBox(&box)}, &error), qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("No OSC connections!"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::Warning);
    }

    void theDialogCarriesItsCaptionAndControls()
    {
        s.pickCount("ComboNOSCs", 1);
        QString caption, ok, cancel;
        bool classes = false;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                     caption = d->windowTitle();
                     ok = control<QPushButton>(d, QStringLiteral("CommandOK"))->text();
                     cancel = control<QPushButton>(d, QStringLiteral("CommandCancel"))->text();
                     classes = true;
                     for (int i = 0; i < 16; ++i) {
                         auto* frame = d->findChild<QGroupBox*>(row("FrameOpt", i));
                         classes = classes && d->findChild<QLabel*>(row("Label", i))
                                   && d->findChild<QLineEdit*>(row("TextLabel", i))
                                   && d->findChild<QLineEdit*>(row("TextIP", i))
                                   && d->findChild<QLineEdit*>(row("TextPort", i)) && frame
                                   && frame->findChild<QRadioButton*>(row("optIn", i))
                                   && frame->findChild<QRadioButton*>(row("optOut", i));
                     }
                     clickOn(d, QStringLiteral("CommandCancel"));
                 }},
                 &error),
                 qPrintable(error));
        QCOMPARE(caption, QStringLiteral("OSC Configuration"));
        QCOMPARE(ok, QStringLiteral("OK"));
        QCOMPARE(cancel, QStringLiteral("Cancel"));
        QVERIFY(classes);
    }

    void theRowsInUseShowTheRecord()
    {
        gMainConfig.m_iOSCPortInOut(1) = 1;
        gMainConfig.m_iOSCPort(1) = 7000;
        s.pickCount("ComboNOSCs", 3);
        QStringList texts;
        QList<bool> visible, in;
        int okTop = 0, height = 0;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                     for (int i = 0; i < 4; ++i) {
                         visible << shown(d, row("TextLabel", i)) << shown(d, row("FrameOpt", i));
                         in << control<QRadioButton>(d, row("optIn", i))->isChecked();
                     }
                     texts << textOf(d, row("TextLabel", 0)) << textOf(d, row("TextIP", 0)) << textOf(d, row("TextPort", 0))
                           << textOf(d, row("TextPort", 1));
                     okTop = control<QPushButton>(d, QStringLiteral("CommandOK"))->y();
                     height = d->height();
                     clickOn(d, QStringLiteral("CommandCancel"));
                 }},
                 &error),
                 qPrintable(error));
        QCOMPARE(visible, (QList<bool>{true, true, true, true, true, true, false, false}));
        QCOMPARE(in, (QList<bool>{false, true, false, false}));
        QCOMPARE(texts, (QStringList{"OSC 1", "0.0.0.0", "-1", "7000"}));
        QCOMPARE(okTop, (3 * 480 + 1050) / 15);
        QCOMPARE(height, (3 * 480 + 2000) / 15);
    }

    void anIncomingConnectionDisablesItsAddress()
    {
        s.pickCount("ComboNOSCs", 1);
        bool afterIn = true, afterOut = false;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                     clickOn(d, row("optIn", 0));
                     afterIn = control<QLineEdit>(d, row("TextIP", 0))->isEnabled();
                     clickOn(d, row("optOut", 0));
                     afterOut = control<QLineEdit>(d, row("TextIP", 0))->isEnabled();
                     clickOn(d, QStringLiteral("CommandCancel"));
                 }},
                 &error),
                 qPrintable(error));
        QVERIFY(!afterIn);
        QVERIFY(afterOut);
    }

    void okStoresTheRowsAndSaveAsWritesThem()
    {
        s.pickCount("ComboNOSCs", 2);
        gDirty = false;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                     fillRow(d, 0, QStringLiteral("Stage"), QStringLiteral("192.168.0.5"), QStringLiteral("9000"));
                     fillRow(d, 1, QStringLiteral("Desk"), QStringLiteral("desk.local"), QStringLiteral("8000"));
                     clickOn(d, row("optIn", 1));
                     clickOn(d, QStringLiteral("CommandOK"));
                 }},
                 &error),
                 qPrintable(error));
        const CMainConfig& c = gMainConfig;
        QVERIFY(gDirty);
        QVERIFY(!c.m_bUpdate);   // the panel clears it after the dialog
        QCOMPARE(c.m_strOSCPortLabel(0), QStringLiteral("Stage"));
        QCOMPARE(c.m_strOSCIP(0), QStringLiteral("192.168.0.5"));
        QCOMPARE(c.m_iOSCPort(0), qint16(9000));
        QCOMPARE(c.m_iOSCPortInOut(0), qint16(2));
        QCOMPARE(c.m_iOSCPortInOut(1), qint16(1));
        QCOMPARE(c.m_iOSCPort(1), qint16(8000));

        const QByteArray file = s.saveAsAndRead(QStringLiteral("osc.qel"));
        const QByteArray expected = fileLines({"; Number of OSC connections:", " 2 ", "", "Stage", "192.168.0.5", " 9000 ", " 2 ",
                                               "Desk", "desk.local", " 8000 ", " 1 ", "", "; Number of Arduinos:"});
        QVERIFY2(file.contains(expected), file.constData());

        s.reopen(QStringLiteral("osc.qel"));
        QCOMPARE(gMainConfig.m_iNOSCs, qint16(2));
        QCOMPARE(gMainConfig.m_strOSCPortLabel(1), QStringLiteral("Desk"));
        QCOMPARE(gMainConfig.m_strOSCIP(1), QStringLiteral("desk.local"));
        QCOMPARE(gMainConfig.m_iOSCPort(1), qint16(8000));
        QCOMPARE(gMainConfig.m_iOSCPortInOut(1), qint16(1));
    }

    void aPortOfZeroGivesTheMessageAndAPortOfOnePasses()
    {
        s.pickCount("ComboNOSCs", 1);
        SeenBox box;
        bool openAfterMessage = false;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                                           fillRow(d, 0, QStringLiteral("A"), QStringLiteral("10.0.0.1"), QStringLiteral("0"));
                                           clickOn(d, QStringLiteral("CommandOK"));
                                           openAfterMessage = d->isVisible();
                                           typeIn(d, row("TextPort", 0), QStringLiteral("1"));
                                           clickOn(d, QStringLiteral("CommandOK"));
                                       },
                                       noteBox(&box)},
                         &error),
                 qPrintable(error));
        QVERIFY(openAfterMessage);
        QCOMPARE(box.text, QStringLiteral("You have to enter a valid port for OSC connection 1"));
        // The row checks have no title of their own and no icon.
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::NoIcon);
        QCOMPARE(gMainConfig.m_iOSCPort(0), qint16(1));
    }

    void aPortThatIsNoNumberGetsTheSameMessage()
    {
        s.pickCount("ComboNOSCs", 1);
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                                           fillRow(d, 0, QStringLiteral("A"), QStringLiteral("10.0.0.1"), QStringLiteral("abc"));
                                           clickOn(d, QStringLiteral("CommandOK"));
                                           clickOn(d, QStringLiteral("CommandCancel"));
                                       },
                                       noteBox(&box)},
                         &error),
                 qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("You have to enter a valid port for OSC connection 1"));
    }

    void anIncomingConnectionStillNeedsAnAddress()
    {
        s.pickCount("ComboNOSCs", 1);
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                                           fillRow(d, 0, QStringLiteral("A"), QString(), QStringLiteral("5000"));
                                           clickOn(d, row("optIn", 0));
                                           clickOn(d, QStringLiteral("CommandOK"));
                                           clickOn(d, QStringLiteral("CommandCancel"));
                                       },
                                       noteBox(&box)},
                         &error),
                 qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("You have to enter an IP Address or hostname for OSC connection 1"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::NoIcon);
    }

    void anEmptyLabelStopsTheDialog()
    {
        s.pickCount("ComboNOSCs", 2);
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                                           fillRow(d, 0, QStringLiteral("A"), QStringLiteral("h"), QStringLiteral("5000"));
                                           fillRow(d, 1, QStringLiteral("   "), QStringLiteral("h"), QStringLiteral("5001"));
                                           clickOn(d, QStringLiteral("CommandOK"));
                                           clickOn(d, QStringLiteral("CommandCancel"));
                                       },
                                       noteBox(&box)},
                         &error),
                 qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("You have to enter a label for OSC connection 2"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::NoIcon);
    }

    void withSixteenConnectionsNoLabelIsReset()
    {
        s.pickCount("ComboNOSCs", 16);
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                     for (int i = 0; i < 16; ++i)
                         typeIn(d, row("TextPort", i), QString::number(6000 + i));
                     typeIn(d, row("TextLabel", 15), QStringLiteral("Last"));
                     clickOn(d, QStringLiteral("CommandOK"));
                 }},
                 &error),
                 qPrintable(error));
        QCOMPARE(gMainConfig.m_strOSCPortLabel(15), QStringLiteral("Last"));
        QCOMPARE(gMainConfig.m_iOSCPortInOut(15), qint16(2));

        // Fifteen connections give up the sixteenth: its label and direction are reset.
        s.pickCount("ComboNOSCs", 15);
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) { clickOn(d, QStringLiteral("CommandOK")); }}, &error),
                 qPrintable(error));
        QCOMPARE(gMainConfig.m_strOSCPortLabel(15), QStringLiteral("OSC 16"));
        QCOMPARE(gMainConfig.m_iOSCPortInOut(15), qint16(0));
        QCOMPARE(gMainConfig.m_iOSCPort(15), qint16(6015));
        QCOMPARE(gMainConfig.m_strOSCPortLabel(14), QStringLiteral("OSC 15"));
        QCOMPARE(gMainConfig.m_iOSCPortInOut(14), qint16(2));
    }

    void rowThreeFailingKeepsRowsOneAndTwoAndTheLabelOfRowThree()
    {
        s.pickCount("ComboNOSCs", 3);
        gDirty = false;
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                                           fillRow(d, 0, QStringLiteral("One"), QStringLiteral("10.0.0.1"), QStringLiteral("5001"));
                                           fillRow(d, 1, QStringLiteral("Two"), QStringLiteral("10.0.0.2"), QStringLiteral("5002"));
                                           fillRow(d, 2, QStringLiteral("Three"), QString(), QStringLiteral("5003"));
                                           clickOn(d, QStringLiteral("CommandOK"));
                                           clickOn(d, QStringLiteral("CommandCancel"));
                                       },
                                       noteBox(&box)},
                         &error),
                 qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("You have to enter an IP Address or hostname for OSC connection 3"));
        const CMainConfig& c = gMainConfig;
        QCOMPARE(c.m_strOSCPortLabel(0), QStringLiteral("One"));
        QCOMPARE(c.m_iOSCPort(0), qint16(5001));
        QCOMPARE(c.m_iOSCPortInOut(0), qint16(2));
        QCOMPARE(c.m_strOSCPortLabel(1), QStringLiteral("Two"));
        QCOMPARE(c.m_strOSCIP(1), QStringLiteral("10.0.0.2"));
        QCOMPARE(c.m_iOSCPort(1), qint16(5002));
        QCOMPARE(c.m_strOSCPortLabel(2), QStringLiteral("Three"));
        QCOMPARE(c.m_strOSCIP(2), QStringLiteral("0.0.0.0"));
        QCOMPARE(c.m_iOSCPort(2), qint16(-1));
        QCOMPARE(c.m_iOSCPortInOut(2), qint16(0));
        // The rows given up were not reached, and the dialog was never accepted.
        QCOMPARE(c.m_strOSCPortLabel(5), QStringLiteral("OSC 6"));
        QVERIFY(!gDirty);
    }

    void loadClearsTheUpdateFlagAndOkSetsIt()
    {
        {
            FormOSCConfig dialog(s.form.get());
            dialog.iNumOSCs = 1;
            const UpdateFlag ok = updateFlagAround(dialog, [](QWidget* d) {
                typeIn(d, row("TextPort", 0), QStringLiteral("9000"));
                clickOn(d, QStringLiteral("CommandOK"));
            });
            QVERIFY2(ok.error.isEmpty(), qPrintable(ok.error));
            QVERIFY(!ok.atLoad);
            QVERIFY(ok.atClose);
        }
        FormOSCConfig dialog(s.form.get());
        dialog.iNumOSCs = 1;
        const UpdateFlag cancel = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandCancel")); });
        QVERIFY2(cancel.error.isEmpty(), qPrintable(cancel.error));
        QVERIFY(!cancel.atLoad);
        QVERIFY(!cancel.atClose);
    }

    void cancelChangesNothing()
    {
        s.pickCount("ComboNOSCs", 2);
        gDirty = false;
        QString error;
        QVERIFY2(s.click("CommandOSC", {[&](QWidget* d) {
                     fillRow(d, 0, QStringLiteral("X"), QStringLiteral("1.2.3.4"), QStringLiteral("99"));
                     clickOn(d, row("optIn", 1));
                     clickOn(d, QStringLiteral("CommandCancel"));
                 }},
                 &error),
                 qPrintable(error));
        QCOMPARE(gMainConfig.m_strOSCPortLabel(0), QStringLiteral("OSC 1"));
        QCOMPARE(gMainConfig.m_strOSCIP(0), QStringLiteral("0.0.0.0"));
        QCOMPARE(gMainConfig.m_iOSCPort(0), qint16(-1));
        QCOMPARE(gMainConfig.m_iOSCPortInOut(1), qint16(0));
        QVERIFY(!gDirty);
        QVERIFY(!gMainConfig.m_bUpdate);
    }
};

QTEST_MAIN(TestOSCConfig)
#include "test_osc.moc"
