// The rule editor opened as the main window opens it: its lists after load in
// both modes, the header, and a stored rule shown in the controls.
#include "EditorTestHelpers.h"
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

using namespace edtest;

class TestEditorFrame : public QObject {
    Q_OBJECT
private slots:
    void init() { ResetAll(); }

    void controlsAndMenusCarryTheirNames()
    {
        auto f = Open(1);
        QCOMPARE(f->objectName(), QString("FormAddEditAudioInter"));
        for (const char* name : {"ComboInterType", "ComboSourceType", "ComboSource", "ComboItem", "TextVarSource",
                                 "ComboChannelSource", "ComboValueSource", "ComboVelSource", "TextMinSource",
                                 "TextMaxSource", "ComboSense", "CheckClip", "CheckInit", "TextGroup", "TextRemarks",
                                 "ComboTargetType", "ComboTarget", "ComboCommand", "TextVarTarget", "ComboChannel",
                                 "ComboNoteControlProg", "ComboVelValue", "TextMin", "TextMax", "TextMIDIFile",
                                 "CommandBrowse", "ComboAction", "LabelText", "CommandAdd", "ListCommands",
                                 "CommandUp", "CommandDown", "CommandOK", "CommandCancel", "LabelNumEvent"})
            QVERIFY2(f->findChild<QWidget*>(name), name);
        QCOMPARE(f->CommandAdd->text(), QString("Add Action"));
        QCOMPARE(f->LabelCommandList->text(), QString("Actions List"));
        QCOMPARE(f->Label6->text(), QString("Label"));
        QCOMPARE(f->File->title(), QString("&File"));
        QCOMPARE(f->findChild<QAction*>("Save")->text(), QString("&Save"));
        QCOMPARE(f->findChild<QAction*>("Quit")->text(), QString("&Quit"));
        QCOMPARE(f->findChild<QAction*>("AddMessage")->text(), QString("&Add"));
        QCOMPARE(f->findChild<QAction*>("RemoveMessage")->text(), QString("&Remove"));
        QVERIFY(f->TextGroup->isEditable());
    }

    void noDeviceAtAll()
    {
        auto f = Open(1);
        QCOMPARE(items(f->ComboSourceType), QStringList{"Automatic"});
        QCOMPARE(items(f->ComboTargetType), QStringList{"QEL"});
        QCOMPARE(items(f->ComboInterType), (QStringList{"Trigger", "Gate", "Range"}));
    }

    void addModeListsOfASubsceneRule()
    {
        ConfigureEveryKind();
        Part().AddAudioEvent(MakeRule(0, 0, 0, -1), 0);
        auto f = Open(1, 0);
        QCOMPARE(items(f->ComboInterType), (QStringList{"Trigger", "Gate", "Range", "Copy"}));
        QCOMPARE(items(f->ComboSourceType), (QStringList{"Automatic", "Exoskeleton", "Joystick", "Arduino", "MIDI",
                                                         "OSC", "Flash Player", "Digital Input Card"}));
        QCOMPARE(items(f->ComboTargetType),
                 (QStringList{"Arduino", "MIDI", "OSC", "Flash Player", "QEL", "Video Capture"}));
        QCOMPARE(f->ComboSourceType->currentText(), QString("Automatic"));
        QCOMPARE(items(f->ComboSource), (QStringList{"Begin", "End", "QEL Variable"}));
        QCOMPARE(f->LabelSource->text(), QString("When"));
        QCOMPARE(f->ComboTargetType->currentText(), QString("Arduino"));
        QCOMPARE(items(f->ComboTarget), QStringList{"Ard1"});
        QCOMPARE(items(f->ComboCommand), (QStringList{"Digital 1", "Digital 2"}));
        QCOMPARE(items(f->ComboSense), (QStringList{"Up", "Down", "Any"}));
        QCOMPARE(items(f->ComboValueSource), (QStringList{"", "VAR", "Any"}));
        QCOMPARE(f->ComboChannel->count(), 16);
        QCOMPARE(f->ComboChannelSource->count(), 17);
        QCOMPARE(f->ComboChannelSource->itemText(16), QString("Any"));
        QCOMPARE(f->windowTitle(), QString("Arduino Interaction"));
        QVERIFY(f->CheckInit->isChecked());
        QVERIFY(!f->CheckClip->isChecked());
        QVERIFY(f->TextMIDIFile->text().isEmpty());
        QCOMPARE(f->TextVarTarget->text(), QString("target_var"));
        QCOMPARE(f->TextVarSource->text(), QString("source_var"));
        QCOMPARE(f->ListCommands->count(), 0);
        QCOMPARE(f->Label4->text(), QString("Rule"));
        QCOMPARE(f->LabelNumEvent->text(), QString("1"));
        QCOMPARE(f->LabelNumScene->text(), QString("0"));
        QCOMPARE(f->LabelNumPart->text(), QString("0"));
        QCOMPARE(f->LabelName->text(), QString("Intro"));
        QVERIFY(Shown(f->Label2) && Shown(f->LabelNumScene) && Shown(f->LabelName));
        QVERIFY(!gRuleAccepted);
        QVERIFY(!f->bLoading);
    }

    void appendedRuleShowsNumberZero()
    {
        auto f = Open(1, -1);
        QCOMPARE(f->LabelNumEvent->text(), QString("0"));
        QCOMPARE(f->windowTitle(), QString("QEL Interaction"));
    }

    void addModeOfAGlobalRule()
    {
        gGlobalRuleView = true;
        auto f = Open(1, 3);
        QCOMPARE(f->Label4->text(), QString("Global Rule"));
        QVERIFY(!Shown(f->Label2));
        QVERIFY(!Shown(f->LabelNumScene));
        QVERIFY(!Shown(f->LabelName));
        QVERIFY(f->LabelNumEvent->text().isEmpty());
        QVERIFY(Shown(f->Label5));
        QCOMPARE(items(f->ComboTarget), (QStringList{"Next Part", "Previous Part", "Go To Scene",
                                                     "Increment Variable", "Decrement Variable",
                                                     "Assign Value To Variable"}));
    }

    void editModeOfAGlobalRule()
    {
        gGlobalRuleView = true;
        AddGlobalEvent(MakeRule(0, 0, 2, -1), 0);
        gGlobalEvents(1)->m_strRemarks = "global one";
        auto f = Open(2, 0);
        QCOMPARE(f->Label4->text(), QString("Global Rule"));
        QCOMPARE(f->ComboSource->currentText(), QString("QEL Variable"));
        QCOMPARE(f->TextRemarks->text(), QString("global one"));
        QCOMPARE(items(f->ListCommands), QStringList{"QEL: Increment Variable - Var Name: v"});
        QCOMPARE(f->ComboTarget->currentText(), QString("Increment Variable"));
        QCOMPARE(f->windowTitle(), QString("QEL Interaction"));
        QCOMPARE(gEditActions(1).get(), gGlobalEvents(1)->m_MsgOut->Item(1).get());
    }

    void anyOtherModeLoadsNothing()
    {
        Part().AddAudioEvent(MakeRule(0, 0, 2, -1), 0);
        auto f = Open(0, 0);
        QVERIFY(f->windowTitle().isEmpty());
        QCOMPARE(f->ListCommands->count(), 0);
        QVERIFY(!f->CheckInit->isChecked());
        QCOMPARE(gEditActions.Count(), 0);
    }

    void newRuleSourceChannelIsTwo()
    {
        auto f = Open(1);
        QCOMPARE(f->ComboChannelSource->currentText(), QString("2"));
        QCOMPARE(f->ComboChannel->currentText(), QString("1"));
    }

    void twoFlashPlayersAllIsStoredAsTheCount()
    {
        gMainConfig.m_iNFlash = 2;
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "Flash Player");
        QCOMPARE(items(f->ComboTarget), (QStringList{"Flash Player 1", "Flash Player 2", "All Flash Players"}));
        QCOMPARE(f->windowTitle(), QString("Movies Interaction"));
        Pick(f.get(), "ComboTarget", "All Flash Players");
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions.Count(), 1);
        QCOMPARE(gEditActions(1)->m_iTarget, qint16(2));
        QCOMPARE(gEditActions(1)->m_iTargetType, qint16(3));
    }

    void oneFlashPlayerIsStoredAsZero()
    {
        gMainConfig.m_iNFlash = 1;
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "Flash Player");
        QCOMPARE(items(f->ComboTarget), QStringList{"The Flash Player"});
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions(1)->m_iTarget, qint16(0));
    }

    void arduinoWithOutputsOnlyIsNoSource()
    {
        AddArduino(0, "Outs", 0, {2});
        auto f = Open(1);
        QVERIFY(!items(f->ComboSourceType).contains("Arduino"));
        QVERIFY(items(f->ComboTargetType).contains("Arduino"));
    }

    void arduinoWithOneAnalogInputIsNoTarget()
    {
        AddArduino(0, "Ins", 1, {});
        auto f = Open(1);
        QVERIFY(items(f->ComboSourceType).contains("Arduino"));
        QVERIFY(!items(f->ComboTargetType).contains("Arduino"));
    }

    void midiSourcePortBeyondTheListKeepsTheSelection()
    {
        AddMidiPort(1, 1, "InOne");
        AddMidiPort(3, 1, "InThree");
        Part().AddAudioEvent(MakeRule(0, 6, 3, 0), 0);
        auto f = Open(2, 0);
        QCOMPARE(f->ComboSourceType->currentText(), QString("MIDI"));
        QCOMPARE(f->ComboSource->count(), 2);
        QCOMPARE(f->ComboSource->currentIndex(), 0);
        QCOMPARE(f->ComboSource->currentText(), QString("InOne"));
    }

    void cancelledEditKeepsAChangedNote()
    {
        AddMidiPort(0, 2, "Out1");
        auto rule = MakeRule(0, 0, 0, -1, 6, 0);
        CAction& a = *rule->m_MsgOut->Item(1);
        a.m_iCommand = 0;
        a.m_iChannel = 0;
        a.m_strVariable.clear();
        a.m_strVal1 = "60";
        a.m_strVal2 = "100";
        Part().AddAudioEvent(rule, 0);
        auto f = Open(2, 0);
        QCOMPARE(f->ComboNoteControlProg->currentText(), QString("60"));
        Type(f.get(), "ComboNoteControlProg", "62");
        Click(f.get(), "CommandCancel");
        QVERIFY(!gRuleAccepted);
        QCOMPARE(Part().AudioEvents(1)->m_MsgOut->Item(1)->m_strVal1, QString("62"));
    }

    void cancelForgetsAddedActions()
    {
        Part().AddAudioEvent(MakeRule(0, 0, 0, -1), 0);
        auto f = Open(2, 0);
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions.Count(), 2);
        f->findChild<QAction*>("Quit")->trigger();
        QVERIFY(!gRuleAccepted);
        QCOMPARE(Part().AudioEvents(1)->m_MsgOut->Count(), 1);
        QVERIFY(f->isHidden());
    }

    void storedRulesShowTheirFields_data()
    {
        QTest::addColumn<int>("inter");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("item");
        QTest::addColumn<QString>("sourceText");
        QTest::addColumn<QString>("itemText");
        QTest::newRow("begin") << 0 << 0 << 0 << -1 << "Begin" << "";
        QTest::newRow("variable") << 0 << 0 << 2 << -1 << "QEL Variable" << "";
        QTest::newRow("exoskeleton") << 1 << 1 << 0 << 4 << "Exoskeleton 1" << "[5] Rodilla Izquierda";
        QTest::newRow("joystick") << 2 << 2 << 0 << 1 << "Joystick 1" << "Eje Y";
        QTest::newRow("arduino") << 0 << 7 << 0 << 5 << "Ard1" << "Digital 3";
        QTest::newRow("midi") << 1 << 6 << 0 << 1 << "In1" << "Control Change";
        QTest::newRow("digital input") << 0 << 5 << 0 << 6 << "Digital Input Card 1" << "6";
        QTest::newRow("osc") << 1 << 8 << 0 << 0 << "OscIn" << "";
        QTest::newRow("flash") << 3 << 3 << 1 << 0 << "Flash Player 2" << "";
    }

    void storedRulesShowTheirFields()
    {
        QFETCH(int, inter);
        QFETCH(int, kind);
        QFETCH(int, source);
        QFETCH(int, item);
        QFETCH(QString, sourceText);
        QFETCH(QString, itemText);
        ConfigureEveryKind();
        for (int r = 0; r < 29; ++r)
            gExoData(0).m_iChannel(r) = qint16(r + 1);
        auto rule = MakeRule(qint16(inter), qint16(kind), qint16(source), qint16(item), 8, 0);
        rule->m_MsgOut->Item(1)->m_strMessage = "OSC: OscOut - Address: v";
        rule->m_iSense = 1;
        rule->m_strVariable = "addr";
        rule->m_strMin = "3";
        rule->m_strMax = "9";
        rule->m_bEnabled = false;
        rule->m_strRemarks = "remark";
        rule->m_strGroup = "grp";
        rule->m_iChannel = 4;
        rule->m_strVal1 = kind == 0 ? "" : "VAR";
        rule->m_strVal2 = kind == 6 ? "77" : "";
        Part().AddAudioEvent(rule, 0);
        auto f = Open(2, 0);
        QCOMPARE(f->windowTitle(), QString("OSC Interaction"));
        QCOMPARE(f->ComboTarget->currentText(), QString("OscOut"));
        QCOMPARE(f->ComboInterType->currentText(), InterTypeText(qint16(kind == 0 ? 0 : inter)));
        QCOMPARE(f->ComboSourceType->currentText(), SourceTypeText(qint16(kind)));
        QCOMPARE(f->ComboSource->currentText(), sourceText);
        if (!itemText.isEmpty())
            QCOMPARE(f->ComboItem->currentText(), itemText);
        if (kind != 0 || source == 2) {
            QCOMPARE(f->TextMinSource->text(), QString("3"));
            QCOMPARE(f->TextMaxSource->text(), QString("9"));
        }
        QCOMPARE(f->TextVarSource->text(), QString("addr"));
        QVERIFY(!f->CheckInit->isChecked());
        QCOMPARE(f->TextRemarks->text(), QString("remark"));
        QCOMPARE(f->TextGroup->currentText(), QString("grp"));
        QCOMPARE(f->ComboChannelSource->currentIndex(), 4);
        if (kind != 0)
            QCOMPARE(f->ComboValueSource->currentText(), QString("VAR"));
        if (kind == 6)
            QCOMPARE(f->ComboVelSource->currentText(), QString("77"));
        if (inter == 0 && kind != 0)
            QCOMPARE(f->ComboSense->currentText(), QString("Down"));
        QCOMPARE(items(f->ListCommands), QStringList{"OSC: OscOut - Address: v"});
        QVERIFY(f->ListCommands->item(0)->isSelected());
        QCOMPARE(f->TextVarTarget->text(), QString("v"));
    }

    void storedClipAndSourceValuesShowAsStored()
    {
        ConfigureEveryKind();
        auto osc = MakeRule(1, 8, 0, 0);
        osc->m_bClip = true;
        auto midi = MakeRule(0, 6, 0, 0);
        midi->m_strVal1 = "Any";
        midi->m_strVal2 = "VAR";
        auto automatic = MakeRule(0, 0, 0, -1);
        automatic->m_strVal1 = "Any";
        Part().AddAudioEvent(osc, 0);
        Part().AddAudioEvent(midi, 0);
        Part().AddAudioEvent(automatic, 0);
        {
            auto f = Open(2, 0);
            QVERIFY(f->CheckClip->isChecked());
            QCOMPARE(f->CheckClip->text(), QString("Binary"));
            QVERIFY(Shown(f->CheckClip));
            QCOMPARE(f->ComboValueSource->currentText(), QString("VAR"));
        }
        {
            auto f = Open(2, 1);
            QVERIFY(!f->CheckClip->isChecked());
            QCOMPARE(f->ComboValueSource->currentIndex(), 2);
            QCOMPARE(f->ComboValueSource->currentText(), QString("Any"));
            QCOMPARE(f->ComboVelSource->currentIndex(), 1);
            QCOMPARE(f->ComboVelSource->currentText(), QString("VAR"));
        }
        {
            // An automatic source keeps the value list as its kind left it.
            auto f = Open(2, 2);
            QCOMPARE(f->ComboSourceType->currentText(), QString("Automatic"));
            QCOMPARE(f->ComboValueSource->currentIndex(), 0);
        }
    }

    void groupsListedWithTheCurrentOneSelected()
    {
        Part().AddAudioEvent(MakeRule(0, 0, 0, -1), 0);
        Part().AddAudioEvent(MakeRule(0, 0, 0, -1), 0);
        Part().AudioEvents(1)->m_strGroup = "drums";
        Part().AudioEvents(2)->m_strGroup = "lights";
        gCurrentGroup = "lights";
        auto f = Open(1);
        QCOMPARE(items(f->TextGroup), (QStringList{"drums", "lights"}));
        QCOMPARE(f->TextGroup->currentText(), QString("lights"));
    }

    void saveAsksForAFileWhenThereIsNone()
    {
        gConfigFilePath.clear();
        auto f = Open(1);
        DialogDriver driver;
        driver.next([](QWidget* w) {
            QCOMPARE(w->objectName(), QString("TheCommonDialog"));
            DialogDriver::cancel(w);
        });
        f->findChild<QAction*>("Save")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(gConfigFilePath.isEmpty());
        QVERIFY(Shown(f.get()));
    }

    void updateCommandWritesTheControlsIntoAnAction()
    {
        auto f = Open(1);
        Click(f.get(), "CommandAdd");
        f->ListCommands->clearSelection();
        f->ListCommands->setCurrentRow(-1);
        Pick(f.get(), "ComboTarget", "Increment Variable");
        Type(f.get(), "TextVarTarget", "counter");
        QCOMPARE(gEditActions(1)->m_iTarget, qint16(4));
        f->UpdateCommand(1);
        QCOMPARE(gEditActions(1)->m_iTarget, qint16(6));
        QCOMPARE(gEditActions(1)->m_strVariable, QString("counter"));
    }
};

QTEST_MAIN(TestEditorFrame)
#include "test_editorframe.moc"
