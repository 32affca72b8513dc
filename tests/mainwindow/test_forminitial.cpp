// The main window as a person meets it: start, New, the name dialog, About,
// the two views and the resize rule.
#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>
#include "mainwindow/FormEntry.h"
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/DialogDriver.h"
#include "support/ModuleGUI.h"

namespace {

QStringList rowTexts(QTreeWidget* list)
{
    QStringList rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        rows << list->topLevelItem(i)->text(0);
    return rows;
}

QAction* menuEntry(FormInitial& form, const QString& name)
{
    return form.findChild<QAction*>(name);
}

} // namespace

class TestFormInitial : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<FormInitial> form;

    void start()
    {
        form = std::make_unique<FormInitial>();
        form->Form_Load();
        form->show();
        QVERIFY(QTest::qWaitForWindowExposed(form.get()));
    }

private slots:
    void init() { gDirty = false; }
    void cleanup()
    {
        if (form) {
            gDirty = false;
            form->hide();
            form.reset();
        }
    }

    void startAsksNothingAndOpensOnTheDevicePanel()
    {
        DialogDriver driver(3000);
        start();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(form->windowTitle(), QStringLiteral("QEL Setup v4.0"));
        QCOMPARE(form->findChild<QLabel*>(QStringLiteral("TextName"))->text(), QStringLiteral("QEL New"));
        for (const char* name : {"ComboNExos", "ComboNTotems", "ComboNOSCs", "ComboNArduinos", "ComboNScreens",
                                 "ComboNFlash", "ComboNMIDI", "ComboNVideoCaps"}) {
            auto* combo = form->findChild<QComboBox*>(QString::fromLatin1(name));
            QVERIFY2(combo && combo->isVisible(), name);
            QCOMPARE(combo->currentText(), QStringLiteral("0"));
        }
        QCOMPARE(form->findChild<QLineEdit*>(QStringLiteral("txtEvPerSec"))->text(), QStringLiteral("16"));
        auto* scenes = form->findChild<QTreeWidget*>(QStringLiteral("ListMain2"));
        QVERIFY(!scenes->isVisible());
        QCOMPARE(rowTexts(scenes), (QStringList{QStringLiteral("000  SCENE 1"), QString()}));
        QCOMPARE(scenes->headerItem()->text(0), QStringLiteral("Scenes"));
        QVERIFY(!form->findChild<QPushButton*>(QStringLiteral("CommandUp"))->isVisible());
        QVERIFY(!form->findChild<QPushButton*>(QStringLiteral("CommandDown"))->isVisible());
        auto* global = form->findChild<QListWidget*>(QStringLiteral("ListGlobalRules"));
        QCOMPARE(global->count(), 1);
        QCOMPARE(global->item(0)->text(), QStringLiteral("GLOBAL RULES"));
        QCOMPARE(gDirty, false);
        QCOMPARE(gConfigFilePath, QString());
        QCOMPARE(gScenes.Count(), 1);
        QCOMPARE(gScenes.Item(1)->m_iID, qint16(0));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_iScene, qint16(-1));
    }

    void splashStaysAtLeastOneAndAHalfSeconds()
    {
        bool splashSeen = false;
        QTimer probe;
        connect(&probe, &QTimer::timeout, [&] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (qobject_cast<FormEntry*>(w) && w->isVisible())
                    splashSeen = true;
        });
        probe.start(50);
        QElapsedTimer clock;
        clock.start();
        form = std::make_unique<FormInitial>();
        form->Form_Load();
        QVERIFY(clock.elapsed() >= 1500);
        QVERIFY(splashSeen);
        for (QWidget* w : QApplication::topLevelWidgets())
            QVERIFY(!(qobject_cast<FormEntry*>(w) && w->isVisible()));
    }

    void ruleListHasItsSevenColumns()
    {
        start();
        auto* rules = form->findChild<QTreeWidget*>(QStringLiteral("ListEvents"));
        QCOMPARE(rules->columnCount(), 7);
        QStringList headers;
        for (int c = 0; c < 7; ++c)
            headers << rules->headerItem()->text(c);
        QCOMPARE(headers, (QStringList{"#", "Source", "Target", "Type", "Label", "Remarks", "Description"}));
        // The new scene's empty subscene: only the trailing empty row.
        QCOMPARE(rules->topLevelItemCount(), 1);
        QCOMPARE(rules->topLevelItem(0)->text(0), QString());
    }

    void menusCarryTheirNamesAndCaptions()
    {
        start();
        const QList<QPair<QString, QString>> entries = {
            {"New", "&New"}, {"Open", "&Open"}, {"Save", "&Save"}, {"SaveAs", "Save &As"}, {"Print", "&Print"},
            {"Quit", "&Quit"}, {"Cut", "Cut"}, {"Copy", "Copy"}, {"Paste", "Paste"}, {"TheName", "&Name"},
            {"AddScene", "&Add"}, {"EditScene", "&Edit"}, {"Remove", "&Remove"}, {"About", "&About QEL Setup v.4.0"}};
        for (const auto& [name, caption] : entries) {
            QAction* a = menuEntry(*form, name);
            QVERIFY2(a, qPrintable(name));
            QCOMPARE(a->text(), caption);
        }
        for (const char* name : {"File", "Edit", "Setup", "ScenesParts", "Help"})
            QVERIFY2(form->findChild<QMenu*>(QString::fromLatin1(name)), name);
        QCOMPARE(form->findChild<QMenu*>(QStringLiteral("ScenesParts"))->title(), QStringLiteral("&Scenes"));
    }

    void newAsksWithYesNoAndCancelAndCancelChangesNothing()
    {
        start();
        gMainConfig.m_strName = QStringLiteral("Opening Night");
        gConfigFilePath = QStringLiteral("/shows/opening.qel");
        gMainConfig.m_iNExos = 2;
        gDirty = true;
        DialogDriver driver;
        QList<QMessageBox::StandardButton> buttons;
        QString text;
        driver.next([&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            text = box->text();
            for (auto* b : box->buttons())
                buttons << box->standardButton(b);
            DialogDriver::press(w, QMessageBox::Cancel);
        });
        menuEntry(*form, QStringLiteral("New"))->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(text, QStringLiteral("Save Configuration?"));
        QCOMPARE(buttons.size(), 3);
        QVERIFY(buttons.contains(QMessageBox::Yes) && buttons.contains(QMessageBox::No) && buttons.contains(QMessageBox::Cancel));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("Opening Night"));
        QCOMPARE(gConfigFilePath, QStringLiteral("/shows/opening.qel"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(2));
        QCOMPARE(gDirty, true);
    }

    void newWithNoStartsAFreshPerformance()
    {
        start();
        gMainConfig.m_strName = QStringLiteral("Opening Night");
        gMainConfig.m_iNExos = 2;
        gMainConfig.m_iPortInOut(3) = 2;
        gConfigFilePath = QStringLiteral("/shows/opening.qel");
        gDirty = true;
        DialogDriver driver;
        driver.next([](QWidget* w) { DialogDriver::press(w, QMessageBox::No); });
        menuEntry(*form, QStringLiteral("New"))->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("QEL New"));
        QCOMPARE(form->findChild<QLabel*>(QStringLiteral("TextName"))->text(), QStringLiteral("QEL New"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(0));
        QCOMPARE(form->findChild<QComboBox*>(QStringLiteral("ComboNExos"))->currentText(), QStringLiteral("0"));
        QCOMPARE(gMainConfig.m_iPortInOut(3), qint16(2));   // not touched by New
        QCOMPARE(gConfigFilePath, QString());
        QCOMPARE(gDirty, false);
    }

    void newFillsTheRecordWithItsDefaults()
    {
        start();
        const CMainConfig& c = gMainConfig;
        QCOMPARE(c.m_iExo1Port, qint16(1));
        QCOMPARE(c.m_iExo2Port, qint16(1));
        QCOMPARE(c.m_iTalporPort, qint16(0));
        QCOMPARE(c.m_iQDMPort, qint16(1111));
        QCOMPARE(c.m_iFlashPort, qint16(1122));
        QCOMPARE(c.m_strMoviesRoot, QStringLiteral("C:\\QEL\\MOVIES\\"));
        QCOMPARE(c.m_iMovieWidth, qint16(800));
        QCOMPARE(c.m_iMovieHeight, qint16(600));
        QCOMPARE(c.m_lBkColor, 0);
        QCOMPARE(c.m_iEventsPerSec, qint16(16));
        QVERIFY(!c.m_strLocalIPAddress.isEmpty());
        for (int i = 0; i <= 7; ++i) {
            QCOMPARE(c.m_iMIDIPort(i), qint16(-1));
            QCOMPARE(c.m_iInMIDIPort(i), qint16(-1));
            QCOMPARE(c.m_iOutMIDIPort(i), qint16(-1));
            QCOMPARE(c.m_iNAppPerQDM(i), qint16(2));
        }
        QCOMPARE(c.m_strDisplayManagerPath(0), QStringLiteral("\\\\QDM1machine\\path\\to\\the\\qdm\\executable\\file\\"));
        QCOMPARE(c.m_strVideoAppLabel(1, 2), QStringLiteral("QDM 2 | Video App Label 3"));
        QCOMPARE(c.m_strVideoAppWindow(7, 7), QStringLiteral("QDM 8 | Video App Window 8"));
        QCOMPARE(c.m_strVideoAppPath(3, 4), QStringLiteral("c:\\myvideopath"));
        QCOMPARE(c.m_strFlashFolderPath(15), QStringLiteral("\\\\flashmachine16\\flashfolder\\"));
        QCOMPARE(c.m_strOSCPortLabel(0), QStringLiteral("OSC 1"));
        QCOMPARE(c.m_strOSCPortLabel(15), QStringLiteral("OSC 16"));
        QCOMPARE(c.m_strOSCIP(7), QStringLiteral("0.0.0.0"));
        QCOMPARE(c.m_iOSCPort(7), qint16(-1));
        for (int i = 0; i <= 3; ++i) {
            QCOMPARE(c.m_iTotemDevice(i), qint16(i + 1));
            QCOMPARE(gTotemAxes(i), qint16(2));
            QCOMPARE(gTotemButtons(i), qint16(5));
            QCOMPARE(gDigitalIOCardID(i), qint32(i));
            QCOMPARE(gDigitalIONIn(i), qint32(32));
            QCOMPARE(gDigitalIONOut(i), qint32(32));
        }
        QCOMPARE(gNDigitalIO, qint32(1));
        QCOMPARE(gScenes.Item(1)->m_strRemarks, QStringLiteral("My first and only scene"));
        QCOMPARE(gLastScene, qint16(0));
    }

    void newResetsTheDevicesAndRulesAndLeavesWhatItDoesNotName()
    {
        start();
        auto global = std::make_shared<CEvent>();
        global->m_MsgOut = std::make_shared<Collection<CAction>>();
        global->m_MsgOut->Add(std::make_shared<CAction>());
        AddGlobalEvent(global, 0);
        gMaxEventsPerPart = 5;
        gMovieEventCount = 3;
        gExoData(0).m_iMax(0) = 1;
        gArduinoData(3).m_strLabel = QStringLiteral("Left glove");
        gMainConfig.m_bFlashUDPEnabled = true;
        gMainConfig.m_strFlashBroadcastIP = QStringLiteral("10.0.0.255");
        gMainConfig.m_iNAppPerQDM(8) = 7;
        gMainConfig.m_iTotemDevice(4) = 9;
        gGlobalRuleView = true;
        FillRuleList(0, 0, form->findChild<QTreeWidget*>(QStringLiteral("ListEvents")));
        gGlobalRuleView = false;
        QCOMPARE(form->findChild<QTreeWidget*>(QStringLiteral("ListEvents"))->topLevelItemCount(), 2);

        menuEntry(*form, QStringLiteral("New"))->trigger();   // nothing changed that counts: no question
        QCOMPARE(gGlobalEvents.Count(), 0);
        QCOMPARE(gMaxEventsPerPart, qint16(0));
        QCOMPARE(gMovieEventCount, qint16(0));
        QCOMPARE(gExoData(0).m_iMax(0), qint16(255));
        QCOMPARE(gArduinoData(3).m_strLabel, QStringLiteral("Arduino 4"));
        QCOMPARE(gMainConfig.m_bFlashUDPEnabled, true);
        QCOMPARE(gMainConfig.m_strFlashBroadcastIP, QStringLiteral("10.0.0.255"));
        QCOMPARE(gMainConfig.m_iNAppPerQDM(8), qint16(7));
        QCOMPARE(gMainConfig.m_iTotemDevice(4), qint16(9));
        // The rule list now shows the new scene's empty subscene.
        auto* rules = form->findChild<QTreeWidget*>(QStringLiteral("ListEvents"));
        QCOMPARE(rules->topLevelItemCount(), 1);
        QCOMPARE(rules->topLevelItem(0)->text(0), QString());
    }

    void nameDialogWithAnEmptyBoxKeepsTheNameAndMarksChanged()
    {
        start();
        DialogDriver driver;
        QString caption;
        driver.next([&](QWidget* w) {
            caption = w->windowTitle();
            QCOMPARE(DialogDriver::find<QLineEdit>(w, QStringLiteral("TextName"))->text(), QStringLiteral("QEL New"));
            DialogDriver::type(w, QStringLiteral("TextName"), QString());
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        menuEntry(*form, QStringLiteral("TheName"))->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(caption, QStringLiteral("Performance Configuration Name"));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("QEL New"));
        QCOMPARE(form->findChild<QLabel*>(QStringLiteral("TextName"))->text(), QStringLiteral("QEL New"));
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, false);
    }

    void nameDialogOkTakesTheNewName()
    {
        start();
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextName"), QStringLiteral("Opening Night"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        menuEntry(*form, QStringLiteral("TheName"))->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("Opening Night"));
        QCOMPARE(form->findChild<QLabel*>(QStringLiteral("TextName"))->text(), QStringLiteral("Opening Night"));
        QCOMPARE(gMainConfig.m_bUpdate, false);
        QCOMPARE(gDirty, true);
    }

    void nameDialogCancelChangesNothing()
    {
        start();
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextName"), QStringLiteral("Other"));
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        menuEntry(*form, QStringLiteral("TheName"))->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("QEL New"));
        QCOMPARE(gDirty, false);
    }

    void aboutShowsTheSplashUntilItIsClicked()
    {
        start();
        DialogDriver driver;
        bool isSplash = false;
        driver.next([&](QWidget* w) {
            isSplash = qobject_cast<FormEntry*>(w) != nullptr;
            QTest::mouseClick(DialogDriver::find<QLabel>(w, QStringLiteral("Image1")), Qt::LeftButton);
        });
        menuEntry(*form, QStringLiteral("About"))->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(isSplash);
    }

    void viewButtonsSwitchBetweenRulesAndDevices()
    {
        start();
        auto* scenes = form->findChild<QTreeWidget*>(QStringLiteral("ListMain2"));
        auto* exos = form->findChild<QComboBox*>(QStringLiteral("ComboNExos"));
        QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("CommandConn")), Qt::LeftButton);
        QVERIFY(scenes->isVisible());
        QVERIFY(form->findChild<QTreeWidget*>(QStringLiteral("ListEvents"))->isVisible());
        QVERIFY(!exos->isVisible());
        QVERIFY(!form->findChild<QPushButton*>(QStringLiteral("CommandUnlock"))->isVisible());
        QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("CommandRules")), Qt::LeftButton);
        QVERIFY(!scenes->isVisible());
        QVERIFY(exos->isVisible());
        QVERIFY(form->findChild<QPushButton*>(QStringLiteral("CommandUnlock"))->isVisible());
    }

    void newInTheRuleViewSelectsTheFirstScene()
    {
        start();
        QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("CommandConn")), Qt::LeftButton);
        menuEntry(*form, QStringLiteral("New"))->trigger();
        auto* scenes = form->findChild<QTreeWidget*>(QStringLiteral("ListMain2"));
        QVERIFY(scenes->topLevelItem(0)->isSelected());
        QCOMPARE(form->iSelectedRow, qint16(0));
        QCOMPARE(gCurrentScene, qint16(0));
        QCOMPARE(gCurrentPart, qint16(0));
        QVERIFY(form->findChild<QPushButton*>(QStringLiteral("CommandUp"))->isVisible());
        QCOMPARE(form->findChild<QLabel*>(QStringLiteral("Label5"))->text(), QStringLiteral("Scene"));
    }

    void resizeBelowTheMinimumMovesNothing()
    {
        start();
        auto* rules = form->findChild<QTreeWidget*>(QStringLiteral("ListEvents"));
        auto* area = form->centralWidget();
        const QRect before = rules->geometry();
        area->resize(700, 360);   // under 11300 x 5775 twips
        form->Form_Resize();
        QCOMPARE(rules->geometry(), before);
        area->resize(1200, 800);
        form->Form_Resize();
        QCOMPARE(rules->geometry().right() + 1, 1200 - 300 / 15);
        QCOMPARE(rules->geometry().bottom() + 1, 800 - 900 / 15);
        auto* scenes = form->findChild<QTreeWidget*>(QStringLiteral("ListMain2"));
        QCOMPARE(scenes->geometry().bottom() + 1, 800 - 1500 / 15);
    }
};

QTEST_MAIN(TestFormInitial)
#include "test_forminitial.moc"
