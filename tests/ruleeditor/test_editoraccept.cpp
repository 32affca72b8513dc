// Accepting a rule: the checks in order with the dialog left open, the
// hand-over fields, and the rule's text form.
#include "EditorTestHelpers.h"
#include <QPushButton>

using namespace edtest;

namespace {
QString warning(const QString& text, const QString& title = "QEL Setup")
{
    return title + "|" + text + "|" + QString::number(int(QMessageBox::Warning));
}
}

class TestEditorAccept : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        ResetAll();
        ConfigureEveryKind();
        gExoData(0).m_iChannel(0) = 3;
    }

    void okWithAnEmptyListTakesTheScratchAction()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Pick(f.get(), "ComboTarget", "Next Part");
        Click(f.get(), "CommandOK");
        QVERIFY(gRuleAccepted);
        QVERIFY(f->isHidden());
        QCOMPARE(gEditActions.Count(), 1);
        QCOMPARE(gEditActions(1)->m_iTarget, qint16(4));
        QVERIFY(gDirty);
        QCOMPARE(gRuleEvent, QString("Automatic -> QEL | Trigger: Up |  || Begin * || QEL: Next Part - "));
    }

    void okWithAnEmptyVelocityStaysOpen()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        Type(f.get(), "ComboVelValue", "");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }), warning("Velocity field must be a number"));
        QVERIFY(!gRuleAccepted);
        QVERIFY(Shown(f.get()));
        QCOMPARE(gEditActions.Count(), 0);
        QVERIFY(!gDirty);
    }

    void equalSourceBoundsPass()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Type(f.get(), "TextMinSource", "5");
        Type(f.get(), "TextMaxSource", "5");
        Click(f.get(), "CommandOK");
        QVERIFY(gRuleAccepted);
        QCOMPARE(gRuleMin, QString("5"));
        QCOMPARE(gRuleMax, QString("5"));
    }

    void lowerAboveUpperIsARangeErrorAndTheAddedActionStays()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Pick(f.get(), "ComboTargetType", "QEL");
        Type(f.get(), "TextMinSource", "6");
        Type(f.get(), "TextMaxSource", "5");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }),
                 warning("High Th must be greater than Low Th", "QEL Setup: Source Range Error"));
        QVERIFY(!gRuleAccepted);
        QCOMPARE(gEditActions.Count(), 1);
        QCOMPARE(f->ListCommands->count(), 1);
        // The second press finds the list filled and does not check the scratch action again.
        Type(f.get(), "TextMinSource", "4");
        Type(f.get(), "TextVarTarget", "");
        Click(f.get(), "CommandOK");
        QVERIFY(gRuleAccepted);
    }

    void textThatIsNoNumberCountsAsZeroInTheRangeTest()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Pick(f.get(), "ComboTargetType", "QEL");
        Type(f.get(), "TextMinSource", "abc");
        Type(f.get(), "TextMaxSource", "10");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }), warning("Low Th field must be a number"));
        Type(f.get(), "TextMaxSource", "-5");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }),
                 warning("High Th must be greater than Low Th", "QEL Setup: Source Range Error"));
        Type(f.get(), "TextMaxSource", "x");
        Type(f.get(), "TextMinSource", "1");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }),
                 warning("High Th must be greater than Low Th", "QEL Setup: Source Range Error"));
        Type(f.get(), "TextMinSource", "-1");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }), warning("High Th field must be a number"));
        QVERIFY(!gRuleAccepted);
    }

    void refusedOkHasAlreadyHandedOverTheSourceFields()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Pick(f.get(), "ComboTargetType", "QEL");
        Type(f.get(), "TextMinSource", "6");
        Type(f.get(), "TextMaxSource", "5");
        const qint16 joystick = SourceTypeFromText("Joystick");
        QVERIFY(joystick != 0);
        gRuleSourceType = 0;
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }),
                 warning("High Th must be greater than Low Th", "QEL Setup: Source Range Error"));
        QVERIFY(!gRuleAccepted);
        QCOMPARE(gRuleSourceType, joystick);
        QCOMPARE(gRuleInterType, InterTypeFromText(f->ComboInterType->currentText()));
        QCOMPARE(gRuleSource, TargetIndexFromText(f->ComboSource->currentText(), f->ComboSource->currentIndex(), joystick));
    }

    void leadingPointInTheLowerBoundIsRefused()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Pick(f.get(), "ComboTargetType", "QEL");
        Type(f.get(), "TextMinSource", ".5");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }), warning("Low Th field must be a number"));
    }

    void hiddenBoundsAreIgnoredAndStoredEmpty()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Joystick");
        Pick(f.get(), "ComboTargetType", "QEL");
        Type(f.get(), "TextMinSource", ".5");
        Pick(f.get(), "ComboItem", "Sensor 2");
        QVERIFY(!Shown(f->TextMinSource));
        Click(f.get(), "CommandOK");
        QVERIFY(gRuleAccepted);
        QVERIFY(gRuleMin.isEmpty());
        QVERIFY(gRuleMax.isEmpty());
        QCOMPARE(gRuleItem, qint16(5));   // four axes, then the buttons
    }

    void negativeSourceValueByKind()
    {
        {
            auto f = Open(1);
            Pick(f.get(), "ComboInterType", "Range");
            Pick(f.get(), "ComboSourceType", "OSC");
            Pick(f.get(), "ComboSource", "OscIn");
            Pick(f.get(), "ComboTargetType", "OSC");
            Type(f.get(), "TextMinSource", "-5");
            Click(f.get(), "CommandOK");
            QVERIFY(gRuleAccepted);
            QCOMPARE(gRuleMin, QString("-5"));
        }
        {
            auto f = Open(1);
            Pick(f.get(), "ComboInterType", "Range");
            Pick(f.get(), "ComboSourceType", "OSC");
            Pick(f.get(), "ComboSource", "OscIn");
            Pick(f.get(), "ComboTargetType", "OSC");
            Type(f.get(), "ComboValueSource", "-5");
            Click(f.get(), "CommandOK");
            QVERIFY(gRuleAccepted);
            QCOMPARE(gRuleVal1, QString("-5"));
        }
        ResetAll();
        ConfigureEveryKind();
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Range");
        Pick(f.get(), "ComboSourceType", "MIDI");
        Pick(f.get(), "ComboTargetType", "OSC");
        Pick(f.get(), "ComboVelSource", "VAR");
        Type(f.get(), "ComboValueSource", "-5");
        Type(f.get(), "TextMinSource", "-5");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }), warning("Note field must be a number"));
        Type(f.get(), "ComboValueSource", "5");
        Click(f.get(), "CommandOK");
        QVERIFY(gRuleAccepted);
        QCOMPARE(gRuleMin, QString("-5"));
        QCOMPARE(gRuleVal2, QString("VAR"));
        QCOMPARE(gRuleSource, qint16(0));
        QCOMPARE(gRuleItem, qint16(0));
        QCOMPARE(gRuleChannel, qint16(1));
    }

    void emptySourceVariableNamesTheActionCaption()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSource", "QEL Variable");
        Pick(f.get(), "ComboTargetType", "MIDI");
        Type(f.get(), "TextVarSource", "");
        QCOMPARE(Box([&] { Click(f.get(), "CommandOK"); }), warning("Command field must be filled in"));
        QCOMPARE(gEditActions.Count(), 1);
        QVERIFY(!gRuleAccepted);
    }

    void beginStoresNoValuesAndNoItem()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Click(f.get(), "CommandOK");
        QVERIFY(gRuleAccepted);
        QVERIFY(gRuleVal1.isEmpty());
        QVERIFY(gRuleVal2.isEmpty());
        QCOMPARE(gRuleItem, qint16(-1));
        QCOMPARE(gRuleSourceType, qint16(0));
        QCOMPARE(gRuleSource, qint16(0));
        QVERIFY(gRuleVariable.isEmpty());
        QVERIFY(gRuleEnabled);
        QVERIFY(!gRuleClip);
    }

    void exoskeletonWithTheValueHiddenStoresVar()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        Pick(f.get(), "ComboTargetType", "QEL");
        Pick(f.get(), "ComboItem", f->ComboItem->itemText(12));
        QVERIFY(!Shown(f->ComboValueSource));
        Click(f.get(), "CommandOK");
        QCOMPARE(gRuleVal1, QString("VAR"));
        QCOMPARE(gRuleItem, qint16(12));
    }

    void binaryGateOnOscIsClipped()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboInterType", "Gate");
        Pick(f.get(), "ComboSourceType", "OSC");
        Pick(f.get(), "ComboSource", "OscIn");
        Pick(f.get(), "ComboTargetType", "OSC");
        Click(f.get(), "CheckClip");
        QVERIFY(!Shown(f->ComboValueSource));
        Type(f.get(), "TextVarSource", "/in");
        Click(f.get(), "CommandOK");
        QVERIFY(gRuleAccepted);
        QCOMPARE(gRuleVal1, QString("VAR"));
        QVERIFY(gRuleClip);
        QCOMPARE(gRuleVariable, QString("/in"));
        QVERIFY(gRuleEvent.startsWith("OSC -> OSC | Gate || OscIn(Clipped) * || OSC: OscOut - "));
    }

    void gateExampleOfTheTextForm()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        Pick(f.get(), "ComboInterType", "Gate");
        Pick(f.get(), "ComboChannelSource", "3");
        Type(f.get(), "TextMinSource", "10");
        Type(f.get(), "TextMaxSource", "200");
        Type(f.get(), "TextMax", "127");
        QCOMPARE(f->BuildEventString(),
                 QString("Exoskeleton -> MIDI | Gate || Exoskeleton 1 | Item: [3] Codo Izquierdo | Low Th: 10 | "
                         "High Th: 200 * || "));
        Click(f.get(), "CommandOK");
        QCOMPARE(gRuleEvent,
                 QString("Exoskeleton -> MIDI | Gate || Exoskeleton 1 | Item: [3] Codo Izquierdo | Low Th: 10 | "
                         "High Th: 200 * || MIDI: Out1 - Command: Note On | Channel: 1 | Note: VAR | Velocity: 0 | "
                         "Low Val: 0 | High Val: 127"));
        QCOMPARE(gRuleInterType, qint16(1));
        QCOMPARE(gRuleSourceType, qint16(1));
        QCOMPARE(gRuleItem, qint16(0));
        QCOMPARE(gRuleChannel, qint16(2));
        QCOMPARE(gRuleVal1, QString("VAR"));
    }

    void triggerHeadOfTheTextForm()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "MIDI");
        Pick(f.get(), "ComboSourceType", "Exoskeleton");
        QVERIFY(f->BuildEventString().startsWith("Exoskeleton -> MIDI | Trigger: Up |  || Exoskeleton 1 | Item: "));
    }

    void onlyTheFirstActionIsInTheText()
    {
        auto f = Open(1);
        Pick(f.get(), "ComboTargetType", "QEL");
        Click(f.get(), "CommandAdd");
        f->ListCommands->clearSelection();
        f->ListCommands->setCurrentRow(-1);
        Pick(f.get(), "ComboTarget", "Previous Part");
        Click(f.get(), "CommandAdd");
        f->CheckInit->setChecked(false);
        Type(f.get(), "TextRemarks", "rem");
        Type(f.get(), "TextGroup", "grp");
        Click(f.get(), "CommandOK");
        QCOMPARE(gRuleEvent, QString("Automatic -> QEL | Trigger: Up |  || Begin || QEL: Next Part - "));
        QCOMPARE(gEditActions.Count(), 2);
        QCOMPARE(gRuleRemarks, QString("rem"));
        QCOMPARE(gRuleGroup, QString("grp"));
        QVERIFY(!gRuleEnabled);
    }

    void storeRuleAfterTheDialogClosed()
    {
        gRuleEditMode = 1;
        gRuleIndex = -1;
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::pick(w, "ComboTargetType", "QEL");
            DialogDriver::click(w, "CommandOK");
        });
        FormAddEditAudioInter dialog;
        dialog.exec();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(gRuleAccepted);
        CEvent rule;
        StoreRule(rule, gRuleInterType, gRuleSense, gRuleSourceType, gRuleSource, gRuleItem, gRuleVariable, gRuleVal1,
                  gRuleVal2, gRuleChannel, gRuleMin, gRuleMax, gRuleClip, gRuleEnabled, gRuleRemarks, gRuleGroup,
                  gEditActions, gRuleEvent);
        QCOMPARE(rule.m_MsgOut->Count(), 1);
        QVERIFY(rule.m_MsgOut->Item(1).get() != gEditActions(1).get());
        QCOMPARE(rule.m_strEvent, gRuleEvent);
    }
};

QTEST_MAIN(TestEditorAccept)
#include "test_editoraccept.moc"
