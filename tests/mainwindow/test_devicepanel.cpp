// The main window's two views as an operator uses them: the device panel with
// its counts, lock and buttons, and the rule view's scene row, global rules,
// filters and label search.
#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include "files/ModuleSaveOpen.h"
#include "mainwindow/FormInitial.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"

namespace {

std::shared_ptr<CEvent> rule(qint16 sourceType, std::initializer_list<qint16> targets, const QString& label = QString())
{
    auto r = std::make_shared<CEvent>();
    r->m_iSourceType = sourceType;
    r->m_strGroup = label;
    r->m_MsgOut = std::make_shared<Collection<CAction>>();
    for (qint16 t : targets) {
        auto a = std::make_shared<CAction>();
        a->m_iTargetType = t;
        r->m_MsgOut->Add(a);
    }
    return r;
}

} // namespace

class TestDevicePanel : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<FormInitial> form;

    template <typename T>
    T* control(const QString& name) { return DialogDriver::find<T>(form.get(), name); }
    void click(const QString& name) { DialogDriver::click(form.get(), name); }
    QStringList visibleCaptions(const QString& array, int count)
    {
        QStringList captions;
        for (int i = 0; i < count; ++i) {
            auto* box = control<QCheckBox>(QStringLiteral("%1(%2)").arg(array).arg(i));
            if (box->isVisible())
                captions << box->text();
        }
        return captions;
    }
    QStringList ruleRows()
    {
        QStringList rows;
        auto* list = control<QTreeWidget>(QStringLiteral("ListEvents"));
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            rows << list->topLevelItem(i)->text(0);
        return rows;
    }

private slots:
    void initTestCase()
    {
        form = std::make_unique<FormInitial>();
        form->Form_Load();
        form->show();
        QVERIFY(QTest::qWaitForWindowExposed(form.get()));
    }
    void init()
    {
        // A fresh performance on the device panel, all filters on, no search.
        gDirty = false;
        for (int i = 0; i <= 10; ++i) {
            gSourceFilter(i) = true;
            gTargetFilter(i) = true;
        }
        form->New_Click();
        if (bPanelLocked)
            form->CommandLock_Click();
        form->CommandRules_Click();
    }
    void cleanupTestCase()
    {
        gDirty = false;
        form->hide();
        form.reset();
    }

    void aLockedPanelKeepsItsLockAcrossAViewSwitch()
    {
        click(QStringLiteral("CommandUnlock"));
        QVERIFY(!control<QComboBox>(QStringLiteral("ComboNExos"))->isEnabled());
        QVERIFY(!control<QLineEdit>(QStringLiteral("txtEvPerSec"))->isEnabled());
        QVERIFY(!control<QPushButton>(QStringLiteral("CommandTalpor"))->isEnabled());
        QVERIFY(!control<QPushButton>(QStringLiteral("ArduinoConfig"))->isEnabled());
        QVERIFY(control<QPushButton>(QStringLiteral("CommandLock"))->isVisible());
        QVERIFY(!control<QPushButton>(QStringLiteral("CommandUnlock"))->isVisible());
        click(QStringLiteral("CommandConn"));
        click(QStringLiteral("CommandRules"));
        QVERIFY(control<QPushButton>(QStringLiteral("CommandLock"))->isVisible());
        QVERIFY(!control<QPushButton>(QStringLiteral("CommandUnlock"))->isVisible());
        click(QStringLiteral("CommandLock"));
        QVERIFY(control<QComboBox>(QStringLiteral("ComboNExos"))->isEnabled());
        QVERIFY(control<QPushButton>(QStringLiteral("CommandUnlock"))->isVisible());
    }

    void theViewSwitchShowsOneViewAndHidesTheOther()
    {
        QStringList ruleView = {"TextSearched", "Label15", "CommandAdd", "ListEvents", "CommandBots", "ListGlobalRules",
                                "ListMain2", "CommandAddScene", "CommandEdit", "CommandShowConfig", "CommandDelete",
                                "CommandUp", "CommandDown", "Label1", "Label3", "CheckSource(0)", "CheckTarget(0)"};
        for (int i = 0; i < 8; ++i)
            ruleView << QStringLiteral("CommandColor(%1)").arg(i);
        for (int i = 0; i < 5; ++i)
            ruleView << QStringLiteral("CommandTargetsFilt(%1)").arg(i);
        const QStringList deviceView = {"Label8", "Label9", "Label10", "Label11", "Label12", "Label13", "Label14",
                                        "Label16", "ComboNExos", "ComboNTotems", "ComboNOSCs", "ComboNArduinos",
                                        "ComboNScreens", "ComboNFlash", "ComboNMIDI", "ComboNVideoCaps",
                                        "ExoskeletonsCalibration", "CommandItems", "CommandOSC", "ArduinoConfig",
                                        "CommandScreen", "CommandFlash", "CommandPorts", "txtEvPerSec", "CommandTalpor"};
        const auto visible = [this](const QStringList& names) {
            QStringList shown;
            for (const QString& name : names)
                if (control<QWidget>(name)->isVisible())
                    shown << name;
            return shown;
        };
        click(QStringLiteral("CommandConn"));
        QCOMPARE(visible(ruleView), ruleView);
        QCOMPARE(visible(deviceView), QStringList());
        QCOMPARE(visible({"CommandUnlock", "CommandLock"}), QStringList());
        click(QStringLiteral("CommandRules"));
        QCOMPARE(visible(ruleView), QStringList());
        QCOMPARE(visible(deviceView), deviceView);
        QCOMPARE(visible({"CommandUnlock", "CommandLock"}), QStringList{"CommandUnlock"});
        QCOMPARE(gDirty, false);
    }

    void anEmptyEventsPerSecondBoxShowsSixteen()
    {
        gMainConfig.m_iEventsPerSec = 30;
        DialogDriver::type(form.get(), QStringLiteral("txtEvPerSec"), QString());
        QCOMPARE(control<QLineEdit>(QStringLiteral("txtEvPerSec"))->text(), QStringLiteral("16"));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(30));
        QCOMPARE(gDirty, true);
    }

    void eventsPerSecondTakesANumberAndLeavesOneAboveTheIntegerRange()
    {
        DialogDriver::type(form.get(), QStringLiteral("txtEvPerSec"), QStringLiteral("25"));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(25));
        DialogDriver::type(form.get(), QStringLiteral("txtEvPerSec"), QStringLiteral("40000"));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(4000));   // the last value that fitted while typing
        QCOMPARE(control<QLineEdit>(QStringLiteral("txtEvPerSec"))->text(), QStringLiteral("40000"));
    }

    void exoskeletonsFromTwoToOneSaveOnlyTheFirstFile()
    {
        DialogDriver::pick(form.get(), QStringLiteral("ComboNExos"), QStringLiteral("2"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(2));
        QCOMPARE(gDirty, true);
        gExoData(1).m_iMax(0) = 99;
        DialogDriver::pick(form.get(), QStringLiteral("ComboNExos"), QStringLiteral("1"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(1));
        QTemporaryDir dir;
        DeriveConfigPaths(QDir::toNativeSeparators(dir.filePath(QStringLiteral("Suits.qel"))));
        SaveConfiguration(gConfigFilePath);
        QVERIFY(QFileInfo::exists(dir.filePath(QStringLiteral("Suits/Exo1.cfg"))));
        QVERIFY(!QFileInfo::exists(dir.filePath(QStringLiteral("Suits/Exo2.cfg"))));
        QCOMPARE(gExoData(1).m_iMax(0), qint16(99));
    }

    void dialogButtonsSayWhenThereIsNothingToConfigure_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("message");
        QTest::newRow("exoskeletons") << "ExoskeletonsCalibration" << "No Exoskeletons!";
        QTest::newRow("arduinos") << "ArduinoConfig" << "No Arduinos!";
        QTest::newRow("osc") << "CommandOSC" << "No OSC connections!";
        QTest::newRow("flash") << "CommandFlash" << "No Flash players!";
        QTest::newRow("midi") << "CommandPorts" << "No MIDI devices to configure!";
        QTest::newRow("display managers") << "CommandScreen" << "No QEL Display Managers to configure!";
    }
    void dialogButtonsSayWhenThereIsNothingToConfigure()
    {
        QFETCH(QString, button);
        QFETCH(QString, message);
        DialogDriver driver;
        QString text, title;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        driver.next([&](QWidget* w) {
            text = DialogDriver::text(w);
            title = w->windowTitle();
            icon = qobject_cast<QMessageBox*>(w)->icon();
            DialogDriver::press(w, QMessageBox::Ok);
        });
        click(button);
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(text, message);
        QCOMPARE(title, QStringLiteral("QEL Setup"));
        QCOMPARE(icon, QMessageBox::Warning);
    }

    void filterBoxesFollowTheDevicesPresent()
    {
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iNMIDIs = 2;
        gMainConfig.m_iNVideoCaps = 1;
        click(QStringLiteral("CommandConn"));
        QCOMPARE(visibleCaptions(QStringLiteral("CheckSource"), 9), (QStringList{"AUT", "QEL", "EXO", "DIO", "MIDI"}));
        QCOMPARE(visibleCaptions(QStringLiteral("CheckTarget"), 6), (QStringList{"QEL", "MIDI", "VCAP"}));
        auto* heading = control<QLabel>(QStringLiteral("Label1"));
        auto* first = control<QCheckBox>(QStringLiteral("CheckSource(0)"));
        auto* second = control<QCheckBox>(QStringLiteral("CheckSource(1)"));
        QCOMPARE(first->x(), heading->x() + heading->width());
        QCOMPARE(second->x(), first->x() + first->width());
    }

    void aBoxKeepsItsCheckWhenItGetsAnotherCaption()
    {
        gMainConfig.m_iNExos = 1;
        click(QStringLiteral("CommandConn"));
        auto* box = control<QCheckBox>(QStringLiteral("CheckSource(2)"));
        QCOMPARE(box->text(), QStringLiteral("EXO"));
        QTest::mouseClick(box, Qt::LeftButton);
        QCOMPARE(gSourceFilter(1), false);
        gMainConfig.m_iNExos = 0;
        click(QStringLiteral("CommandRules"));
        click(QStringLiteral("CommandConn"));
        QCOMPARE(box->text(), QStringLiteral("DIO"));
        QVERIFY(!box->isChecked());
        QCOMPARE(gSourceFilter(5), true);   // the arrangement does not touch the filters
    }

    void filterClicksRefillTheRuleList()
    {
        auto part = gScenes.Item(1)->PartList.Item(1);
        part->AddAudioEvent(rule(6, {6}), 1);
        part->AddAudioEvent(rule(6, {6, 8}), 2);
        part->AddAudioEvent(rule(8, {8}), 3);
        gMainConfig.m_iNMIDIs = 1;
        gMainConfig.m_iNOSCs = 1;
        click(QStringLiteral("CommandConn"));
        DialogDriver::pick(form.get(), QStringLiteral("ListMain2"), QStringLiteral("000  SCENE 1"));
        QCOMPARE(ruleRows(), (QStringList{"1", "2", "3", ""}));
        // Targets: QEL, MIDI, OSC. Turning MIDI off leaves the rule that also acts on OSC.
        auto* midi = control<QCheckBox>(QStringLiteral("CheckTarget(1)"));
        QCOMPARE(midi->text(), QStringLiteral("MIDI"));
        QTest::mouseClick(midi, Qt::LeftButton);
        QCOMPARE(gTargetFilter(6), false);
        QCOMPARE(ruleRows(), (QStringList{"2", "3", ""}));
        QTest::mouseClick(midi, Qt::LeftButton);
        QCOMPARE(ruleRows(), (QStringList{"1", "2", "3", ""}));
    }

    void theEndRowMeansNoSceneIsSelected()
    {
        click(QStringLiteral("CommandConn"));
        auto* scenes = control<QTreeWidget>(QStringLiteral("ListMain2"));
        QTest::mouseClick(scenes->viewport(), Qt::LeftButton, {}, scenes->visualItemRect(scenes->topLevelItem(0)).center());
        QCOMPARE(form->iSelectedRow, qint16(0));
        QVERIFY(control<QPushButton>(QStringLiteral("CommandAdd"))->isEnabled());
        QVERIFY(control<QPushButton>(QStringLiteral("CommandUp"))->isVisible());
        QTest::mouseClick(scenes->viewport(), Qt::LeftButton, {}, scenes->visualItemRect(scenes->topLevelItem(1)).center());
        QCOMPARE(form->iSelectedRow, qint16(-1));
        QVERIFY(!control<QPushButton>(QStringLiteral("CommandAdd"))->isEnabled());
        QVERIFY(!control<QPushButton>(QStringLiteral("CommandUp"))->isVisible());
        QVERIFY(!control<QPushButton>(QStringLiteral("CommandDown"))->isVisible());
    }

    void globalRulesRowSwitchesTheViewAndASceneRowEndsIt()
    {
        click(QStringLiteral("CommandConn"));
        DialogDriver::pick(form.get(), QStringLiteral("ListGlobalRules"), QStringLiteral("GLOBAL RULES"));
        QCOMPARE(gGlobalRuleView, true);
        QCOMPARE(control<QLabel>(QStringLiteral("Label5"))->text(), QStringLiteral("Global Rules"));
        QCOMPARE(control<QPushButton>(QStringLiteral("CommandAdd"))->text(), QStringLiteral("Add global rule"));
        QVERIFY(control<QTreeWidget>(QStringLiteral("ListMain2"))->selectedItems().isEmpty());
        QVERIFY(!control<QLabel>(QStringLiteral("LabelNumScene"))->isVisible());
        DialogDriver::pick(form.get(), QStringLiteral("ListMain2"), QStringLiteral("000  SCENE 1"));
        QCOMPARE(gGlobalRuleView, false);
        QCOMPARE(control<QLabel>(QStringLiteral("Label5"))->text(), QStringLiteral("Scene"));
        QCOMPARE(control<QPushButton>(QStringLiteral("CommandAdd"))->text(), QStringLiteral("Add rule"));
    }

    void theLabelSearchIsCaseSensitive()
    {
        auto part = gScenes.Item(1)->PartList.Item(1);
        part->AddAudioEvent(rule(6, {6}, QStringLiteral("xaby")), 1);
        part->AddAudioEvent(rule(6, {6}, QStringLiteral("XABY")), 2);
        click(QStringLiteral("CommandConn"));
        DialogDriver::pick(form.get(), QStringLiteral("ListMain2"), QStringLiteral("000  SCENE 1"));
        DialogDriver::type(form.get(), QStringLiteral("TextSearched"), QStringLiteral("ab"));
        QCOMPARE(gCurrentGroup, QStringLiteral("ab"));
        QCOMPARE(ruleRows(), (QStringList{"1", ""}));
        DialogDriver::type(form.get(), QStringLiteral("TextSearched"), QString());
        QCOMPARE(ruleRows(), (QStringList{"1", "2", ""}));
    }
};

QTEST_MAIN(TestDevicePanel)
#include "test_devicepanel.moc"
