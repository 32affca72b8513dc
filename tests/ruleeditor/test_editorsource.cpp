// The rule editor's source side driven as a person would: interaction types,
// source kinds, items, values, bounds and the two warnings.
#include "EditorTestHelpers.h"
#include <QPushButton>

using namespace edtest;

namespace {
const QString kInterWarning =
    "WARNING: If you change the interaction type every command will be deleted from the command list. "
    "Do you want to continue?";
const QString kSourceWarning =
    "WARNING: If you change the source type to AUTO every command will be deleted from the command list. "
    "Do you want to continue?";
QString question(const QString& text) { return "QEL Setup|" + text + "|" + QString::number(int(QMessageBox::NoIcon)); }
}

class TestEditorSource : public QObject {
    Q_OBJECT
private slots:
    void init() { ResetAll(); }

    void automaticWithActionsChangesTypeWithoutWarning()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Click(f.get(), "CommandAdd");
        QCOMPARE(gEditActions.Count(), 1);
        DialogDriver none(1500);
        Pick(f.get(), "ComboInterType", "Gate");
        QVERIFY2(none.finished(), qPrintable(none.error()));
        QCOMPARE(f->ComboSourceType->currentText(), QString("Exoskeleton"));
        QCOMPARE(f->ComboInterType->currentText(), QString("Gate"));
        QCOMPARE(gEditActions.Count(), 1);
    }

    void automaticAloneFallsBackToTrigger()
    {
        auto f = Open(1);
        Click(f.get(), "CommandAdd");
        DialogDriver none(1500);
        Pick(f.get(), "ComboInterType", "Range");
        QVERIFY2(none.finished(), qPrintable(none.error()));
        QCOMPARE(f->ComboInterType->currentText(), QString("Trigger"));
        QCOMPARE(f->ComboSourceType->currentText(), QString("Automatic"));
        QCOMPARE(f->iPrevInterType, qint16(0));
        QCOMPARE(gEditActions.Count(), 1);
    }

    void choosingAutomaticWithActionsWarnsAndYesEmptiesTheList()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Gate");
        Click(f.get(), "CommandAdd");
        QCOMPARE(f->ListCommands->count(), 1);
        QCOMPARE(Box([&] { Pick(f.get(), "ComboSourceType", "Automatic"); }, QMessageBox::Yes),
                 question(kSourceWarning));
        QCOMPARE(gEditActions.Count(), 0);
        QCOMPARE(f->ListCommands->count(), 0);
        QCOMPARE(f->ComboInterType->currentText(), QString("Trigger"));
        QCOMPARE(f->iPrevSourceType, qint16(0));
    }

    void choosingAutomaticWithActionsAndNoKeepsEverything()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Gate");
        Click(f.get(), "CommandAdd");
        QCOMPARE(Box([&] { Pick(f.get(), "ComboSourceType", "Automatic"); }, QMessageBox::No),
                 question(kSourceWarning));
        QCOMPARE(gEditActions.Count(), 1);
        QCOMPARE(f->ListCommands->count(), 1);
        QCOMPARE(f->ComboSourceType->currentText(), QString("Exoskeleton"));
        QCOMPARE(f->ComboInterType->currentText(), QString("Gate"));
        QCOMPARE(f->iPrevSourceType, qint16(1));
    }

    void choosingAutomaticWithoutActionsShowsNothing()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Gate");
        DialogDriver none(1500);
        Pick(f.get(), "ComboSourceType", "Automatic");
        QVERIFY2(none.finished(), qPrintable(none.error()));
        QCOMPARE(f->ComboInterType->currentText(), QString("Trigger"));
        QCOMPARE(f->LabelSource->text(), QString("When"));
    }

    void changingTheTypeWithActionsWarnsYes()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Click(f.get(), "CommandAdd");
        QCOMPARE(Box([&] { Pick(f.get(), "ComboInterType", "Range"); }, QMessageBox::Yes), question(kInterWarning));
        QCOMPARE(gEditActions.Count(), 0);
        QCOMPARE(f->ListCommands->count(), 0);
        QCOMPARE(f->ComboInterType->currentText(), QString("Range"));
        QCOMPARE(f->iPrevInterType, qint16(2));
    }

    void changingTheTypeWithActionsWarnsNo()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Click(f.get(), "CommandAdd");
        const QStringList before = items(f->ComboSourceType);
        QCOMPARE(Box([&] { Pick(f.get(), "ComboInterType", "Range"); }, QMessageBox::No), question(kInterWarning));
        QCOMPARE(gEditActions.Count(), 1);
        QCOMPARE(f->ComboInterType->currentText(), QString("Trigger"));
        QCOMPARE(f->iPrevInterType, qint16(0));
        QCOMPARE(items(f->ComboSourceType), before);
        QVERIFY(Shown(f->ComboSense));
    }

    void rangeDropsDigitalInputAndGateRestoresItAtItsPlace()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Range");
        QVERIFY(!items(f->ComboSourceType).contains("Digital Input Card"));
        Pick(f.get(), "ComboInterType", "Gate");
        QCOMPARE(f->ComboSourceType->findText("Digital Input Card"), 7);
    }

    void rangeOnDigitalInputMovesToTheSecondKind()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Digital Input Card");
        Pick(f.get(), "ComboInterType", "Range");
        QCOMPARE(f->ComboSourceType->currentText(), QString("Exoskeleton"));
    }

    void exoskeletonItemsByType()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        QCOMPARE(f->ComboItem->count(), 36);
        Pick(f.get(), "ComboInterType", "Range");
        QCOMPARE(f->ComboItem->count(), 10);
        Pick(f.get(), "ComboInterType", "Trigger");
        QCOMPARE(f->ComboItem->count(), 36);
    }

    void copyOffersOnlyPassingKinds()
    {
        gMainConfig.m_iNFlash = 1;
        gMainConfig.m_iNExos = 1;
        AddMidiPort(0, 1, "In1");
        auto f = Open(1);
        QVERIFY(items(f->ComboInterType).contains("Copy"));
        Pick(f.get(), "ComboInterType", "Copy");
        QCOMPARE(items(f->ComboSourceType), (QStringList{"Automatic", "MIDI", "Flash Player"}));
        QCOMPARE(f->ComboSourceType->currentText(), QString("MIDI"));
        Pick(f.get(), "ComboSourceType", "Automatic");
        QCOMPARE(f->ComboInterType->currentText(), QString("Trigger"));
        QCOMPARE(items(f->ComboSourceType), (QStringList{"Automatic", "Exoskeleton", "MIDI", "Flash Player"}));
    }

    void joystickAxisShowsThresholdsAndButtonHidesThem()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        QCOMPARE(f->ComboItem->currentText(), QString("Eje X"));
        QVERIFY(Shown(f->TextMinSource) && Shown(f->TextMaxSource));
        QCOMPARE(f->LabelMinSource->text(), QString("Low Th"));
        QCOMPARE(f->LabelMaxSource->text(), QString("High Th"));
        QCOMPARE(f->LabelLittleMin->text(), QString("[-1000]"));
        QCOMPARE(f->LabelLittleMax->text(), QString("[1000]"));
        QCOMPARE(f->TextMinSource->text(), QString("-1000"));
        QCOMPARE(f->TextMaxSource->text(), QString("1000"));
        Pick(f.get(), "ComboItem", "Sensor 1");
        QVERIFY(!Shown(f->TextMinSource));
        QVERIFY(!Shown(f->LabelMaxSource));
        QVERIFY(!Shown(f->LabelLittleMin));
    }

    void gateOnOscWithBinaryCheckedHidesTheThresholds()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Gate");
        Pick(f.get(), "ComboSourceType", "OSC");
        Pick(f.get(), "ComboSource", "OscIn");
        QVERIFY(Shown(f->CheckClip));
        QCOMPARE(f->CheckClip->text(), QString("Binary"));
        Click(f.get(), "CheckClip");
        QVERIFY(!Shown(f->TextMinSource) && !Shown(f->TextMaxSource));
        QVERIFY(!Shown(f->LabelMinSource) && !Shown(f->LabelMaxSource));
        QVERIFY(!Shown(f->ComboValueSource));
        QVERIFY(Shown(f->LabelValueSource));
        Click(f.get(), "CheckClip");
        QVERIFY(Shown(f->TextMinSource) && Shown(f->ComboValueSource));
    }

    void defaultsAndHintsByKindAndType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("min");
        QTest::addColumn<QString>("max");
        QTest::addColumn<QString>("hint");
        QTest::newRow("exo trigger") << "Trigger" << "Exoskeleton" << "0" << "255" << "[0]";
        QTest::newRow("exo gate") << "Gate" << "Exoskeleton" << "127" << "127" << "[0]";
        QTest::newRow("exo range") << "Range" << "Exoskeleton" << "0" << "255" << "[0]";
        QTest::newRow("joy gate") << "Gate" << "Joystick" << "0" << "0" << "[-1000]";
        QTest::newRow("ard trigger") << "Trigger" << "Arduino" << "0" << "1023" << "[0]";
        QTest::newRow("ard gate") << "Gate" << "Arduino" << "127" << "127" << "[0]";
        QTest::newRow("dio trigger") << "Trigger" << "Digital Input Card" << "0" << "0" << "";
        QTest::newRow("midi trigger") << "Trigger" << "MIDI" << "0" << "127" << "[0]";
        QTest::newRow("midi gate") << "Gate" << "MIDI" << "64" << "64" << "[0]";
        QTest::newRow("midi copy") << "Copy" << "MIDI" << "0" << "127" << "[0]";
        QTest::newRow("flash trigger") << "Trigger" << "Flash Player" << "0" << "0" << "";
        QTest::newRow("flash range") << "Range" << "Flash Player" << "0" << "1" << "";
        QTest::newRow("osc copy") << "Copy" << "OSC" << "0" << "0" << "";
        QTest::newRow("osc range") << "Range" << "OSC" << "0" << "1" << "";
    }

    void defaultsAndHintsByKindAndType()
    {
        QFETCH(QString, type);
        QFETCH(QString, kind);
        QFETCH(QString, min);
        QFETCH(QString, max);
        QFETCH(QString, hint);
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", kind);
        Pick(f.get(), "ComboInterType", type);
        if (f->ComboSourceType->currentText() != kind)
            Pick(f.get(), "ComboSourceType", kind);
        QCOMPARE(f->TextMinSource->text(), min);
        QCOMPARE(f->TextMaxSource->text(), max);
        QCOMPARE(f->LabelLittleMin->text(), hint);
    }

    void controlsShownByKind()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "MIDI");
        QCOMPARE(f->LabelItemVar->text(), QString("Command"));
        QCOMPARE(items(f->ComboItem), (QStringList{"Note On", "Control Change", "Program Change", "Any"}));
        QVERIFY(Shown(f->ComboChannelSource) && Shown(f->ComboValueSource) && Shown(f->ComboVelSource));
        QCOMPARE(f->LabelValueSource->text(), QString("Note"));
        QCOMPARE(f->LabelVelSource->text(), QString("Velocity"));
        QCOMPARE(f->ComboValueSource->currentText(), QString("VAR"));
        Pick(f.get(), "ComboItem", "Program Change");
        QCOMPARE(f->LabelValueSource->text(), QString("Program"));
        QCOMPARE(f->LabelVelSource->text(), QString("Delay"));
        Pick(f.get(), "ComboItem", "Control Change");
        QCOMPARE(f->LabelValueSource->text(), QString("Control"));
        QCOMPARE(f->LabelVelSource->text(), QString("Value"));
        Pick(f.get(), "ComboSourceType", "OSC");
        QVERIFY(Shown(f->TextVarSource) && !Shown(f->ComboItem) && !Shown(f->ComboChannelSource));
        QCOMPARE(f->LabelItemVar->text(), QString("Address"));
        QCOMPARE(f->LabelValueSource->text(), QString("Value"));
        Pick(f.get(), "ComboSourceType", "Flash Player");
        QCOMPARE(f->LabelItemVar->text(), QString("Variable"));
        QCOMPARE(items(f->ComboSource), (QStringList{"Flash Player 1", "Flash Player 2"}));
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        QCOMPARE(f->LabelItemVar->text(), QString("Item"));
        QVERIFY(Shown(f->ComboItem) && !Shown(f->TextVarSource) && !Shown(f->ComboValueSource));
        QVERIFY(Shown(f->ComboSense));
    }

    void automaticMoments()
    {
        auto f = Open(1);
        QVERIFY(!Shown(f->TextVarSource));
        QVERIFY(!Shown(f->TextMinSource));
        Pick(f.get(), "ComboSource", "QEL Variable");
        QVERIFY(Shown(f->TextVarSource) && Shown(f->LabelItemVar));
        QCOMPARE(f->LabelItemVar->text(), QString("Variable"));
        QVERIFY(Shown(f->TextMinSource) && Shown(f->TextMaxSource));
        QCOMPARE(f->TextMinSource->text(), QString("0"));
        Pick(f.get(), "ComboSource", "End");
        QVERIFY(!Shown(f->TextVarSource) && !Shown(f->TextMinSource) && !Shown(f->LabelMaxSource));
    }

    void automaticWithNoMomentChosenHidesNothing()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSource", "QEL Variable");
        f->ComboSource->setCurrentIndex(-1);
        f->ComboSource_Click();
        QVERIFY(Shown(f->TextVarSource) && Shown(f->LabelItemVar));
        QVERIFY(Shown(f->TextMinSource) && Shown(f->LabelMaxSource));
        Pick(f.get(), "ComboSource", "Begin");
        QVERIFY(!Shown(f->TextVarSource) && !Shown(f->LabelItemVar) && !Shown(f->TextMinSource));
    }

    void sourceVarMovesBetweenTheTwoValues()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "MIDI");
        QCOMPARE(f->ComboValueSource->currentText(), QString("VAR"));
        QCOMPARE(f->ComboVelSource->currentText(), QString("0"));
        Pick(f.get(), "ComboVelSource", "VAR");
        QCOMPARE(f->ComboVelSource->currentText(), QString("VAR"));
        QCOMPARE(f->ComboValueSource->currentText(), QString("0"));
        QVERIFY(f->ComboValueSource->isEnabled());
        QVERIFY(!f->ComboVelSource->isEnabled());
    }

    void noSourceVarMakesPlainTargetValues()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Range");
        Pick(f.get(), "ComboSourceType", "OSC");
        Pick(f.get(), "ComboSource", "OscIn");
        QVERIFY(Shown(f->TextMinSource));
        QCOMPARE(f->CheckClip->text(), QString("Clip"));
        QVERIFY(f->ComboValueSource->isEnabled());
        Pick(f.get(), "ComboValueSource", "Any");
        // No VAR at the source: the action's values are plain numbers.
        QCOMPARE(items(f->ComboVelValue), QStringList{""});
        QCOMPARE(f->ComboVelValue->currentText(), QString("0"));
        QVERIFY(!Shown(f->TextMinSource));
    }

    void gateTakesVarForTheFirstTargetValue()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        Pick(f.get(), "ComboInterType", "Gate");
        QCOMPARE(f->ComboNoteControlProg->currentText(), QString("VAR"));
        QVERIFY(!f->ComboNoteControlProg->isEnabled());
        QCOMPARE(f->LabelMin->text(), QString("Low Val"));
        QCOMPARE(f->LabelMax->text(), QString("High Val"));
        QVERIFY(!items(f->ComboTargetType).contains("QEL"));
        QVERIFY(items(f->ComboTargetType).contains("Video Capture"));
        Pick(f.get(), "ComboInterType", "Range");
        QVERIFY(!items(f->ComboTargetType).contains("Video Capture"));
        QVERIFY(!Shown(f->ComboSense));
        QVERIFY(f->ComboValueSource->isEnabled() || f->ComboVelSource->isEnabled());
        Pick(f.get(), "ComboInterType", "Trigger");
        QVERIFY(items(f->ComboTargetType).contains("QEL"));
        QVERIFY(items(f->ComboTargetType).contains("Video Capture"));
        QVERIFY(Shown(f->ComboSense));
    }

    void nonAutomaticTriggerMakesTheFirstTargetValueVar()
    {
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        Pick(f.get(), "ComboTargetType", "OSC");
        QCOMPARE(f->ComboNoteControlProg->currentText(), QString("VAR"));
    }

    void senseHasAnEmptyHandler()
    {
        auto f = Open(1);
        const QString title = f->windowTitle();
        Pick(f.get(), "ComboSense", "Down");
        QCOMPARE(f->ComboSense->currentText(), QString("Down"));
        QCOMPARE(f->windowTitle(), title);
    }
};

QTEST_MAIN(TestEditorSource)
#include "test_editorsource.moc"
