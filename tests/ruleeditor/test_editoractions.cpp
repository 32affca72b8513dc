// The rule editor's action side driven as a person would: target kinds and
// commands, the checks of the scratch action, its text form, and the list.
#include "EditorTestHelpers.h"
#include <QPushButton>

using namespace edtest;

namespace {
QString warning(const QString& text, const QString& title = "QEL Setup")
{
    return title + "|" + text + "|" + QString::number(int(QMessageBox::Warning));
}
}

class TestEditorActions : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        ResetAll();
        ConfigureEveryKind();
    }

    void midiFileOnlyForTriggerAndGate()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        QCOMPARE(items(f->ComboCommand), (QStringList{"Note On", "Control Change", "Program Change", "MIDI File"}));
        Pick(f.get(), "ComboInterType", "Gate");
        QVERIFY(items(f->ComboCommand).contains("MIDI File"));
        Pick(f.get(), "ComboInterType", "Range");
        QCOMPARE(items(f->ComboCommand), (QStringList{"Note On", "Control Change", "Program Change"}));
        Pick(f.get(), "ComboInterType", "Copy");
        QCOMPARE(items(f->ComboCommand), (QStringList{"Note On", "Control Change", "Program Change"}));
    }

    void midiCommandsShowTheirControls()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        QCOMPARE(f->windowTitle(), QString("MIDI Interaction"));
        QCOMPARE(f->Label3->text(), QString("Command"));
        QVERIFY(Shown(f->ComboChannel) && Shown(f->ComboNoteControlProg) && Shown(f->ComboVelValue));
        Pick(f.get(), "ComboCommand", "Program Change");
        QCOMPARE(f->LabelNoteControlProg->text(), QString("Program"));
        QVERIFY(!Shown(f->ComboVelValue) && !Shown(f->LabelVelValue));
        Pick(f.get(), "ComboCommand", "Control Change");
        QCOMPARE(f->LabelNoteControlProg->text(), QString("Control"));
        QCOMPARE(f->LabelVelValue->text(), QString("Value"));
        Pick(f.get(), "ComboCommand", "MIDI File");
        QVERIFY(Shown(f->TextMIDIFile) && Shown(f->CommandBrowse) && Shown(f->ComboAction));
        QCOMPARE(items(f->ComboAction), (QStringList{"Stop", "Play", "Play Loop"}));
        QCOMPARE(f->ComboAction->currentText(), QString("Play"));
        QVERIFY(!Shown(f->ComboChannel) && !Shown(f->ComboNoteControlProg) && !Shown(f->ComboVelValue));
        QVERIFY(f->ComboNoteControlProg->currentText().isEmpty());
        QTemporaryDir dir;
        const QString song = dir.filePath("song.mid");
        QFile file(song);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            QCOMPARE(w->objectName(), QString("CommonDialogMID"));
            DialogDriver::chooseFile(w, song);
        });
        Click(f.get(), "CommandBrowse");
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(f->TextMIDIFile->text(), QDir::toNativeSeparators(song));
        Click(f.get(), "CommandAdd");
        const CAction& a = *gEditActions(1);
        QCOMPARE(a.m_iCommand, qint16(3));
        QCOMPARE(a.m_iAction, qint16(1));
        QCOMPARE(a.m_strMIDIFile, f->TextMIDIFile->text());
        QVERIFY(a.m_strVal1.isEmpty() && a.m_strVal2.isEmpty());
        QCOMPARE(a.m_strMessage, "MIDI: Out1 - Command: MIDI File | File: " + f->TextMIDIFile->text() +
                                     " | Action: Play");
    }

    void browseCancelledKeepsTheField()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        Pick(f.get(), "ComboCommand", "MIDI File");
        Type(f.get(), "TextMIDIFile", "kept.mid");
        DialogDriver driver;
        driver.next([](QWidget* w) { DialogDriver::cancel(w); });
        Click(f.get(), "CommandBrowse");
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(f->TextMIDIFile->text(), QString("kept.mid"));
    }

    void switchPlayerToAppOnOneDisplayManager()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Pick(f.get(), "ComboTarget", "Switch Player To App");
        QCOMPARE(items(f->ComboCommand), (QStringList{"DM1", "All Display Managers"}));
        QCOMPARE(f->Label3->text(), QString("QEL Display Manager"));
        QVERIFY(f->ComboNoteControlProg->width() > 100);
        Pick(f.get(), "ComboCommand", "DM1");
        QCOMPARE(items(f->ComboNoteControlProg), (QStringList{"AppA", "AppB", "AppC"}));
        QCOMPARE(f->LabelNoteControlProg->text(), QString("Video App"));
        Pick(f.get(), "ComboCommand", "All Display Managers");
        QCOMPARE(items(f->ComboNoteControlProg), (QStringList{"AppA", "AppB", "AppC"}));
        Pick(f.get(), "ComboNoteControlProg", "AppB");
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions(1)->m_iTarget, qint16(2));
        QCOMPARE(gEditActions(1)->m_iCommand, qint16(1));
        QCOMPARE(gEditActions(1)->m_strVal1, QString("1"));
        Pick(f.get(), "ComboTarget", "Next Part");
        QCOMPARE(f->ComboNoteControlProg->width(), 100);
        QVERIFY(!Shown(f->ComboCommand));
    }

    void qelEventNumbersShowTheRule()
    {
        auto rule = MakeRule(0, 0, 0, -1);
        rule->m_strEvent = "first rule";
        Part().AddAudioEvent(rule, 0);
        Part().AddAudioEvent(MakeRule(0, 0, 0, -1), 0);
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Pick(f.get(), "ComboTarget", "Disable Event");
        QCOMPARE(f->Label3->text(), QString("Event #"));
        QCOMPARE(items(f->ComboCommand), (QStringList{"1", "2"}));
        Pick(f.get(), "ComboCommand", "1");
        QCOMPARE(f->LabelText->text(), QString("first rule"));
        Pick(f.get(), "ComboTarget", "Go To Scene");
        QCOMPARE(items(f->ComboCommand), QStringList{"1 Opening"});
        QVERIFY(!Shown(f->Label3));
        QVERIFY(f->LabelText->text().isEmpty());
    }

    void incrementVariableRequiresAName()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Pick(f.get(), "ComboTarget", "Increment Variable");
        QCOMPARE(items(f->ComboNoteControlProg), QStringList{"1"});
        QVERIFY(!Shown(f->LabelNoteControlProg));
        Type(f.get(), "TextVarTarget", "");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("Var Name field must be filled in"));
        QCOMPARE(gEditActions.Count(), 0);
    }

    void gateTargetBounds()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        Pick(f.get(), "ComboTargetType", "OSC");
        Pick(f.get(), "ComboInterType", "Gate");
        QVERIFY(Shown(f->TextMin) && Shown(f->TextMax));
        Type(f.get(), "TextMin", "5");
        Type(f.get(), "TextMax", "5");
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions.Count(), 1);
        Type(f.get(), "TextMin", "6");
        QCOMPARE(gEditActions(1)->m_strMin, QString("6"));   // the selected action follows the controls
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }),
                 warning("High Val must be greater than Low Val", "QEL Setup: Target Range Error"));
        QCOMPARE(gEditActions.Count(), 1);
    }

    void everyCheckOfTheScratchAction()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        Pick(f.get(), "ComboTargetType", "MIDI");
        Pick(f.get(), "ComboInterType", "Gate");
        Type(f.get(), "ComboVelValue", "");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("Velocity field must be a number"));
        Type(f.get(), "ComboVelValue", "1.5");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("Velocity field must be a number"));
        Type(f.get(), "ComboVelValue", "10");
        Type(f.get(), "TextMin", "x");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("Low Val field must be a number"));
        Type(f.get(), "TextMin", "-1.5");
        Type(f.get(), "TextMax", "");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("High Val field must be a number"));
        Type(f.get(), "TextMax", "2");
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions.Count(), 1);
        QCOMPARE(gEditActions(1)->m_strMin, QString("-1.5"));
    }

    void negativeValueRefusedOnAnArduino()
    {
        auto f = Open(1);
        QCOMPARE(f->ComboTargetType->currentText(), QString("Arduino"));
        QVERIFY(Shown(f->ComboNoteControlProg));
        Type(f.get(), "ComboNoteControlProg", "-3");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("Value field must be a number"));
        Type(f.get(), "ComboNoteControlProg", "");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("Value field must be a number"));
        QCOMPARE(gEditActions.Count(), 0);
    }

    void leadingPointIsRefusedButStoredWithAZeroThroughTheList()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "OSC");
        QCOMPARE(f->LabelNoteControlProg->text(), QString("Value"));
        Type(f.get(), "ComboNoteControlProg", ".5");
        QCOMPARE(Box([&] { Click(f.get(), "CommandAdd"); }), warning("Value field must be a number"));
        Type(f.get(), "ComboNoteControlProg", "-0.5");
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions(1)->m_strVal1, QString("-0.5"));
        Type(f.get(), "ComboNoteControlProg", ".5");
        QCOMPARE(gEditActions(1)->m_strVal1, QString("0.5"));
        QCOMPARE(f->ListCommands->item(0)->text(), QString("OSC: OscOut - Address: target_var | Value: .5"));
    }

    void commandStringOfTheRangeExample()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        Pick(f.get(), "ComboInterType", "Range");
        Type(f.get(), "ComboVelValue", "100");
        Type(f.get(), "TextMax", "127");
        QCOMPARE(f->BuildCommandString(),
                 QString("MIDI: Out1 - Command: Note On | Channel: 1 | Note: VAR | Velocity: 100 | Min: 0 | Max: 127"));
        Click(f.get(), "CommandAdd");
        const CAction& a = *gEditActions(1);
        QCOMPARE(a.m_iTargetType, qint16(6));
        QCOMPARE(a.m_iTarget, qint16(0));
        QCOMPARE(a.m_iChannel, qint16(0));
        QCOMPARE(a.m_iCommand, qint16(0));
        QVERIFY(a.m_strVariable.isEmpty());
        QCOMPARE(a.m_strVal1, QString("VAR"));
        QCOMPARE(a.m_strVal2, QString("100"));
        QCOMPARE(a.m_strMin, QString("0"));
        QCOMPARE(a.m_strMax, QString("127"));
        QCOMPARE(a.m_iAction, qint16(-1));
        QVERIFY(a.m_strMIDIFile.isEmpty());
    }

    void arduinoAndVideoCaptureActions()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "Arduino");
        QCOMPARE(f->windowTitle(), QString("Arduino Interaction"));
        QCOMPARE(f->Label3->text(), QString("Item"));
        Pick(f.get(), "ComboCommand", "Digital 2");
        Type(f.get(), "ComboNoteControlProg", "1");
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions(1)->m_iCommand, qint16(4));   // two analog inputs come first
        QCOMPARE(gEditActions(1)->m_strMessage, QString("Arduino: Ard1 - Item: Digital 2 | Value: 1"));
        Pick(f.get(), "ComboTargetType", "Video Capture");
        QCOMPARE(f->windowTitle(), QString("Video Capture"));
        QCOMPARE(items(f->ComboCommand), QStringList{"Rec/Stop"});
        QCOMPARE(items(f->ComboTarget), (QStringList{"0", "1"}));
        QVERIFY(items(f->ComboNoteControlProg).contains("1"));
        QVERIFY(!Shown(f->LabelNoteControlProg));
    }

    void selectingAnActionShowsItWithoutWritingBack()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "OSC");
        Type(f.get(), "TextVarTarget", "/a");
        Click(f.get(), "CommandAdd");
        f->ListCommands->clearSelection();
        f->ListCommands->setCurrentRow(-1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Pick(f.get(), "ComboTarget", "Assign Value To Variable");
        Type(f.get(), "TextVarTarget", "b");
        f->ListCommands->clearSelection();
        f->ListCommands->setCurrentRow(-1);
        Click(f.get(), "CommandAdd");
        QCOMPARE(items(f->ListCommands), (QStringList{"OSC: OscOut - Address: /a | Value: 0",
                                                      "QEL: Assign Value To Variable - Var Name: b | Value: 1"}));
        Pick(f.get(), "ListCommands", "OSC: OscOut - Address: /a | Value: 0");
        QCOMPARE(f->ComboTargetType->currentText(), QString("OSC"));
        QCOMPARE(f->TextVarTarget->text(), QString("/a"));
        QCOMPARE(f->windowTitle(), QString("OSC Interaction"));
        QCOMPARE(gEditActions(1)->m_strMessage, QString("OSC: OscOut - Address: /a | Value: 0"));
        Pick(f.get(), "ListCommands", "QEL: Assign Value To Variable - Var Name: b | Value: 1");
        QCOMPARE(f->ComboTarget->currentText(), QString("Assign Value To Variable"));
        QCOMPARE(f->TextVarTarget->text(), QString("b"));
        QCOMPARE(gEditActions(2)->m_strVariable, QString("b"));
    }

    void upOnTheFirstRowChangesNothing()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Click(f.get(), "CommandAdd");
        f->ListCommands->clearSelection();
        f->ListCommands->setCurrentRow(-1);
        Pick(f.get(), "ComboTarget", "Previous Part");
        Click(f.get(), "CommandAdd");
        auto first = gEditActions(1);
        f->ListCommands->setCurrentRow(0);
        gDirty = false;
        Click(f.get(), "CommandUp");
        QCOMPARE(gEditActions(1), first);
        QVERIFY(!gDirty);
        QCOMPARE(f->ListCommands->currentRow(), 0);
        QVERIFY(f->ListCommands->item(0)->isSelected());
        Click(f.get(), "CommandDown");
        QCOMPARE(gEditActions(2), first);
        QVERIFY(gDirty);
        QCOMPARE(f->ListCommands->currentRow(), 1);
        QCOMPARE(items(f->ListCommands), (QStringList{"QEL: Previous Part - ", "QEL: Next Part - "}));
        QCOMPARE(gEditActions(1)->m_iTarget, qint16(5));
        Click(f.get(), "CommandDown");
        QCOMPARE(gEditActions(2), first);
        QCOMPARE(f->ListCommands->currentRow(), 1);
    }

    void messageMenuAddsAndRemoves()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        f->findChild<QAction*>("AddMessage")->trigger();
        QCOMPARE(gEditActions.Count(), 1);
        QCOMPARE(f->ListCommands->currentRow(), 0);
        gDirty = false;
        f->findChild<QAction*>("RemoveMessage")->trigger();
        QCOMPARE(gEditActions.Count(), 0);
        QCOMPARE(f->ListCommands->count(), 0);
        QVERIFY(gDirty);
        gDirty = false;
        f->findChild<QAction*>("RemoveMessage")->trigger();
        QVERIFY(!gDirty);
    }
};

QTEST_MAIN(TestEditorActions)
#include "test_editoractions.moc"
