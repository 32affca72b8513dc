// The rule editor's action side: the scratch action in the target controls,
// its checks and text form, and the list of the rule's actions.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include "model/CMainConfig.h"
#include "model/CPart.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "rules/ModuleRuleEdit.h"
#include "ruleeditor/FormAddEditAudioInter.h"
#include "ruleeditor/ModuleSourcesTargets.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/NumberText.h"
#include "support/OnError.h"

using namespace editor;

namespace {
const QString kVar = QStringLiteral("VAR");
const QString kAllDisplayManagers = QStringLiteral("All Display Managers");
constexpr int kNormalWidth = 100;
constexpr int kWideWidth = 260;

void setWidth(QComboBox* combo, int width) { combo->resize(width, combo->height()); }

// The rule the action side works on, at a 1-based position of its list.
std::shared_ptr<CEvent> ruleAt(int position)
{
    if (gGlobalRuleView)
        return gGlobalEvents(position);
    return gScenes(gCurrentScene + 1)->PartList(gCurrentPart + 1)->AudioEvents(position);
}

int ruleCount()
{
    if (gGlobalRuleView)
        return gGlobalEvents.Count();
    return gScenes(gCurrentScene + 1)->PartList(gCurrentPart + 1)->AudioEvents.Count();
}
} // namespace

void FormAddEditAudioInter::showTargetBounds(bool visible)
{
    for (QWidget* w : QList<QWidget*>{LabelMin, TextMin, LabelMax, TextMax})
        w->setVisible(visible);
}

void FormAddEditAudioInter::ComboTargetType_Click()
{
    const qint16 type = interType();
    for (QWidget* w : QList<QWidget*>{ComboCommand, Label3, ComboChannel, LabelChannel})
        w->hide();
    LabelText->clear();

    ComboNoteControlProg->hide();
    setWidth(ComboNoteControlProg, kNormalWidth);
    ComboNoteControlProg->clear();
    QStringList copied;
    for (int i = 0; i < ComboVelValue->count(); ++i)
        copied << ComboVelValue->itemText(i);
    addKeepingText(ComboNoteControlProg, copied);
    if (ComboNoteControlProg->findText(kVar, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0)
        Skip([&] { selectText(ComboNoteControlProg, kVar); });
    else if (ComboNoteControlProg->count() > 0)
        Skip([&] { select(ComboNoteControlProg, 0); });
    else
        ComboNoteControlProg->setEditText(QStringLiteral("0"));

    for (QWidget* w : QList<QWidget*>{LabelNoteControlProg, ComboVelValue, LabelVelValue, TextMIDIFile, LabelMIDIFile,
                                      ComboAction, LabelAction, CommandBrowse, TextVarTarget})
        w->hide();
    showTargetBounds(false);

    Label9->setText(QStringLiteral("Target"));
    Label3->setText(QStringLiteral("Variable"));
    LabelNoteControlProg->setText(QStringLiteral("Note"));
    ComboTarget->clear();
    ComboCommand->clear();

    const qint16 kind = targetKind();
    FillTargets(ComboTarget, kind);
    Skip([&] { select(ComboTarget, 0); });
    switch (kind) {
    case 3:
        setWindowTitle(QStringLiteral("Movies Interaction"));
        TextVarTarget->show();
        Label3->show();
        ComboNoteControlProg->show();
        LabelNoteControlProg->show();
        LabelNoteControlProg->setText(QStringLiteral("Value"));
        break;
    case 6:
        setWindowTitle(QStringLiteral("MIDI Interaction"));
        ComboTarget_Click();
        ComboCommand->addItems({QStringLiteral("Note On"), QStringLiteral("Control Change"),
                                QStringLiteral("Program Change")});
        if (type == 0 || type == 1)
            ComboCommand->addItem(QStringLiteral("MIDI File"));
        suppressed([&] { select(ComboCommand, 0); });
        Label3->setText(QStringLiteral("Command"));
        for (QWidget* w : QList<QWidget*>{ComboCommand, Label3, ComboChannel, LabelChannel, ComboNoteControlProg,
                                          LabelNoteControlProg, ComboVelValue, LabelVelValue})
            w->show();
        break;
    case 7:
        setWindowTitle(QStringLiteral("Arduino Interaction"));
        ComboTarget_Click();
        ComboCommand->show();
        Skip([&] { select(ComboCommand, 0); });
        Label3->setText(QStringLiteral("Item"));
        Label3->show();
        if (type == 0) {
            ComboNoteControlProg->show();
            LabelNoteControlProg->setText(QStringLiteral("Value"));
        }
        break;
    case 8:
        setWindowTitle(QStringLiteral("OSC Interaction"));
        TextVarTarget->show();
        Label3->show();
        Label3->setText(QStringLiteral("Address"));
        ComboNoteControlProg->show();
        LabelNoteControlProg->show();
        LabelNoteControlProg->setText(QStringLiteral("Value"));
        break;
    case 9:
        setWindowTitle(QStringLiteral("QEL Interaction"));
        ComboTarget_Click();
        break;
    case 10:
        setWindowTitle(QStringLiteral("Video Capture"));
        ComboCommand->addItem(QStringLiteral("Rec/Stop"));
        ComboCommand->show();
        Skip([&] { select(ComboCommand, 0); });
        Label3->setText(QStringLiteral("Item"));
        Label3->show();
        if (type == 0) {
            addKeepingText(ComboNoteControlProg, {QStringLiteral("0"), QStringLiteral("1")});
            ComboNoteControlProg->show();
        }
        break;
    default:
        break;
    }
    if (sourceKind() > 0) {
        ComboValueSource_Click();
        ComboVelSource_Click();
        ComboNoteControlProg_Click();
        ComboVelValue_Click();
    }
}

void FormAddEditAudioInter::ComboTarget_Click()
{
    LabelText->clear();
    if (gSuppressComboEvents)
        return;
    const qint16 kind = targetKind();
    if (kind == 7)
        suppressed([&] {
            const int index = FillItems(ComboCommand, 7, targetNumber(), interType(), false);
            select(ComboCommand, index);
        });
    if (kind != 9) {
        ApplyActionEdit();
        return;
    }
    ComboCommand->clear();
    ComboCommand->show();
    for (QWidget* w : QList<QWidget*>{ComboNoteControlProg, LabelNoteControlProg, Label3, TextVarTarget})
        w->hide();
    setWidth(ComboNoteControlProg, kNormalWidth);
    const CMainConfig& c = gMainConfig;
    switch (targetNumber()) {
    case 0:
    case 1:
        Label3->setText(QStringLiteral("Event #"));
        Label3->show();
        Skip([&] {
            for (int i = 1; i <= ruleCount(); ++i)
                ComboCommand->addItem(QString::number(i));
        });
        break;
    case 2:
        Label3->setText(QStringLiteral("QEL Display Manager"));
        Label3->show();
        for (int d = 0; d < c.m_iNQDMs && d <= 7; ++d)
            ComboCommand->addItem(c.m_strDisplayManagerPath(d));
        if (!CommonVideoApps().isEmpty())
            ComboCommand->addItem(kAllDisplayManagers);
        setWidth(ComboNoteControlProg, kWideWidth);
        ComboNoteControlProg->show();
        LabelNoteControlProg->show();
        break;
    case 3:
        Label3->setText(QStringLiteral("Scene"));
        for (int i = 1; i <= gScenes.Count(); ++i)
            ComboCommand->addItem(QStringLiteral("%1 %2").arg(i).arg(gScenes(i)->m_strName));
        break;
    case 4:
    case 5:
        ComboCommand->hide();
        break;
    default:
        Label3->setText(QStringLiteral("Var Name"));
        Label3->show();
        ComboCommand->hide();
        TextVarTarget->show();
        ComboNoteControlProg->clear();
        ComboNoteControlProg->addItem(QStringLiteral("1"));
        Skip([&] { select(ComboNoteControlProg, 0); });
        ComboNoteControlProg->show();
        LabelNoteControlProg->setText(QStringLiteral("Value"));
        break;
    }
    if (shown(ComboCommand))
        Skip([&] { select(ComboCommand, 0); });
    ApplyActionEdit();
}

void FormAddEditAudioInter::ComboCommand_Change()
{
    if (gSuppressComboEvents)
        return;
    const qint16 kind = targetKind();
    const qint16 type = interType();
    const qint16 itemKind = GetItemKind(kind, targetNumber(), ComboCommand->currentText(), listIndex(ComboCommand));
    if (itemKind != 0 || type == 3 || type == 0) {
        showTargetBounds(false);
    } else if (type == 1 || type == 2) {
        showTargetBounds(true);
        LabelMin->setText(type == 1 ? QStringLiteral("Low Val") : QStringLiteral("Min"));
        LabelMax->setText(type == 1 ? QStringLiteral("High Val") : QStringLiteral("Max"));
    }
    for (QWidget* w : QList<QWidget*>{LabelMIDIFile, TextMIDIFile, CommandBrowse, LabelAction, ComboAction})
        w->hide();

    if (kind == 6) {
        if (!ComboNoteControlProg->isEnabled())
            ComboNoteControlProg->setEditText(kVar);
        if (!ComboVelValue->isEnabled())
            ComboVelValue->setEditText(kVar);
        const QString command = ComboCommand->currentText();
        auto channelAndValues = [&](const char* note, const char* vel) {
            LabelChannel->show();
            ComboChannel->show();
            ComboNoteControlProg->show();
            LabelNoteControlProg->show();
            LabelNoteControlProg->setText(QString::fromLatin1(note));
            ComboVelValue->setVisible(vel != nullptr);
            LabelVelValue->setVisible(vel != nullptr);
            if (vel)
                LabelVelValue->setText(QString::fromLatin1(vel));
        };
        if (command == QLatin1String("Note On")) {
            channelAndValues("Note", "Velocity");
        } else if (command == QLatin1String("Control Change")) {
            channelAndValues("Control", "Value");
        } else if (command == QLatin1String("Program Change")) {
            channelAndValues("Program", nullptr);
        } else if (command == QLatin1String("MIDI File")) {
            LabelMIDIFile->setText(QStringLiteral("MIDI File"));
            for (QWidget* w : QList<QWidget*>{LabelMIDIFile, TextMIDIFile, CommandBrowse, LabelAction})
                w->show();
            ComboAction->clear();
            ComboAction->addItems({QStringLiteral("Stop"), QStringLiteral("Play"), QStringLiteral("Play Loop")});
            suppressed([&] { select(ComboAction, 1); });
            ComboAction->show();
            for (QWidget* w : QList<QWidget*>{LabelChannel, ComboChannel, ComboNoteControlProg, LabelNoteControlProg,
                                              ComboVelValue, LabelVelValue})
                w->hide();
            ComboNoteControlProg->setEditText(QString());
            ComboVelValue->setEditText(QString());
        }
    }
    if (kind == 9) {
        LabelText->clear();
        const qint16 command = targetNumber();
        if (command == 0 || command == 1) {
            Skip([&] { LabelText->setText(ruleAt(listIndex(ComboCommand) + 1)->m_strEvent); });
        } else if (command == 2) {
            ComboNoteControlProg->clear();
            LabelNoteControlProg->setText(QStringLiteral("Video App"));
            const CMainConfig& c = gMainConfig;
            const int row = listIndex(ComboCommand);
            if (ComboCommand->currentText() == kAllDisplayManagers) {
                for (int a : CommonVideoApps())
                    ComboNoteControlProg->addItem(c.m_strVideoAppLabel(0, a));
            } else if (row >= 0 && row < c.m_iNQDMs) {
                Skip([&] {
                    for (int a = 0; a < c.m_iNAppPerQDM(row); ++a)
                        ComboNoteControlProg->addItem(c.m_strVideoAppLabel(row, a));
                });
            }
            if (ComboNoteControlProg->count() > 0)
                Skip([&] { select(ComboNoteControlProg, 0); });
        }
    }
    if (sourceKind() > 0)
        ComboValueSource_Click();
    ApplyActionEdit();
}

void FormAddEditAudioInter::ComboNoteControlProg_Click()
{
    if (gSuppressComboEvents)
        return;
    const qint16 itemKind =
        GetItemKind(targetKind(), targetNumber(), ComboCommand->currentText(), listIndex(ComboCommand));
    if (ComboNoteControlProg->currentText() == kVar) {
        suppressed([&] {
            if (ComboVelValue->currentText() == kVar) {
                Skip([&] { select(ComboVelValue, 0); });
                zeroIfEmpty(ComboVelValue);
            }
        });
        ComboVelValue->setEnabled(true);
        ComboNoteControlProg->setEnabled(false);
        if (itemKind == 0)
            showTargetBounds(true);
    } else if (ComboValueSource->currentText() == kVar || ComboVelSource->currentText() == kVar) {
        showTargetBounds(true);
    } else if (ComboVelValue->currentText() != kVar || ComboNoteControlProg->findText(kVar) < 0) {
        showTargetBounds(false);
    }
    ApplyActionEdit();
}

void FormAddEditAudioInter::ComboVelValue_Click()
{
    if (gSuppressComboEvents)
        return;
    const qint16 type = interType();
    const qint16 itemKind =
        GetItemKind(targetKind(), targetNumber(), ComboCommand->currentText(), listIndex(ComboCommand));
    if (ComboVelValue->currentText() == kVar) {
        suppressed([&] {
            if (ComboNoteControlProg->currentText() == kVar) {
                Skip([&] { select(ComboNoteControlProg, 0); });
                zeroIfEmpty(ComboNoteControlProg);
            }
        });
        ComboNoteControlProg->setEnabled(true);
        ComboVelValue->setEnabled(false);
        if (itemKind == 0)
            showTargetBounds(true);
    } else if (ComboValueSource->currentText() == kVar || ComboVelSource->currentText() == kVar) {
        if (itemKind == 0 && (type == 2 || type == 1))
            showTargetBounds(true);
    } else if (ComboNoteControlProg->currentText() != kVar || ComboVelValue->findText(kVar) < 0) {
        showTargetBounds(false);
    }
    ApplyActionEdit();
}

void FormAddEditAudioInter::TextMin_Change()
{
    if (!gSuppressComboEvents)
        ApplyActionEdit();
}
void FormAddEditAudioInter::TextMax_Change() { TextMin_Change(); }
void FormAddEditAudioInter::TextVarTarget_Change() { TextMin_Change(); }
void FormAddEditAudioInter::TextMIDIFile_Change() { TextMin_Change(); }
void FormAddEditAudioInter::ComboChannel_Click() { TextMin_Change(); }
void FormAddEditAudioInter::ComboAction_Click() { TextMin_Change(); }

void FormAddEditAudioInter::CommandBrowse_Click()
{
    const QString path = ShowOpenDialog(this, QStringLiteral("CommonDialogMID"),
                                        QStringLiteral("MIDI files (*.mid)|*.mid"), QString());
    if (path.isEmpty())
        return;
    TextMIDIFile->setText(path);
    TextMIDIFile_Change();
}

// ---------------------------------------------------------------- the scratch action

bool FormAddEditAudioInter::TargetCombosOK()
{
    const qint16 kind = targetKind();
    const bool signedDecimal = kind == 8 || kind == 3;
    auto refuse = [](const QString& text, const QString& title = kAppTitle) {
        MsgBox(text, MsgButtons::OK, MsgIcon::Exclamation, title);
        return false;
    };
    auto valueOK = [&](const QString& t) {
        return !t.isEmpty() && (t == kVar || IsNumber(t, signedDecimal, signedDecimal));
    };
    const QString mustBeNumber = QStringLiteral(" field must be a number");
    if (shown(ComboNoteControlProg)) {
        const QString t = ComboNoteControlProg->currentText();
        const bool ok = kind == 9 && targetNumber() == 2 ? !t.isEmpty() : valueOK(t);
        if (!ok)
            return refuse(LabelNoteControlProg->text() + mustBeNumber);
    }
    if (shown(ComboVelValue) && !valueOK(ComboVelValue->currentText()))
        return refuse(LabelVelValue->text() + mustBeNumber);
    if (shown(TextMin) && !IsNumber(TextMin->text(), true, true))
        return refuse(LabelMin->text() + mustBeNumber);
    if (shown(TextMax) && !IsNumber(TextMax->text(), true, true))
        return refuse(LabelMax->text() + mustBeNumber);
    if (shown(TextVarTarget) && TextVarTarget->text().isEmpty())
        return refuse(Label3->text() + QStringLiteral(" field must be filled in"));
    if (shown(TextMin) && shown(TextMax)) {
        double low = 0, high = 0;
        Skip([&] { low = ToDouble(TextMin->text()); });
        Skip([&] { high = ToDouble(TextMax->text()); });
        if (low > high)
            return refuse(LabelMax->text() + QStringLiteral(" must be greater than ") + LabelMin->text(),
                          QStringLiteral("QEL Setup: Target Range Error"));
    }
    return true;
}

QString FormAddEditAudioInter::BuildCommandString()
{
    QString s = ComboTargetType->currentText() + QStringLiteral(": ") + ComboTarget->currentText() +
                QStringLiteral(" - ");
    if (shown(ComboCommand))
        s += Label3->text() + QStringLiteral(": ") + ComboCommand->currentText();
    else if (shown(TextVarTarget))
        s += Label3->text() + QStringLiteral(": ") + TextVarTarget->text();
    auto part = [&](QWidget* control, const QString& caption, const QString& text) {
        if (shown(control))
            s += QStringLiteral(" | ") + caption + QStringLiteral(": ") + text;
    };
    part(ComboChannel, LabelChannel->text(), ComboChannel->currentText());
    part(ComboNoteControlProg, LabelNoteControlProg->text(), ComboNoteControlProg->currentText());
    part(ComboVelValue, LabelVelValue->text(), ComboVelValue->currentText());
    part(TextMin, LabelMin->text(), TextMin->text());
    part(TextMax, LabelMax->text(), TextMax->text());
    part(TextMIDIFile, QStringLiteral("File"), TextMIDIFile->text());
    part(ComboAction, LabelAction->text(), ComboAction->currentText());
    return s;
}

void FormAddEditAudioInter::StoreAction(CAction& action)
{
    const qint16 kind = targetKind();
    action.m_strMessage = BuildCommandString();
    action.m_iTargetType = SourceTypeFromText(ComboTargetType->currentText());
    action.m_iTarget = targetNumber();
    action.m_iChannel = static_cast<qint16>(listIndex(ComboChannel));
    if (shown(ComboCommand)) {
        action.m_iCommand = TextToItem(ComboCommand->currentText(), kind, action.m_iTarget);
        if (action.m_iCommand == -1)
            action.m_iCommand = static_cast<qint16>(listIndex(ComboCommand));
    } else {
        action.m_iCommand = -1;
    }
    action.m_strVariable = shown(TextVarTarget) ? TextVarTarget->text() : QString();
    if (!shown(ComboNoteControlProg)) {
        action.m_strVal1.clear();
    } else if (kind == 9 && action.m_iTarget == 2) {
        const CMainConfig& c = gMainConfig;
        if (action.m_iCommand < c.m_iNQDMs) {
            action.m_strVal1 = QString::number(listIndex(ComboNoteControlProg));
        } else {
            for (int a : CommonVideoApps())
                if (c.m_strVideoAppLabel(0, a) == ComboNoteControlProg->currentText())
                    action.m_strVal1 = QString::number(a);
        }
    } else {
        action.m_strVal1 = leadingZero(ComboNoteControlProg->currentText());
    }
    action.m_strVal2 = shown(ComboVelValue) ? leadingZero(ComboVelValue->currentText()) : QString();
    action.m_strMin = shown(TextMin) ? leadingZero(TextMin->text()) : QString();
    action.m_strMax = shown(TextMax) ? leadingZero(TextMax->text()) : QString();
    action.m_strMIDIFile = TextMIDIFile->text();
    action.m_iAction = static_cast<qint16>(listIndex(ComboAction));
}

void FormAddEditAudioInter::ApplyActionEdit()
{
    const int row = ListCommands->currentRow();
    if (gLoadingAction || row < 0 || !ListCommands->item(row)->isSelected())
        return;
    Skip([&] { StoreAction(*gEditActions(row + 1)); });
    BuildCommandList(gEditActions, ListCommands);
    suppressed([&] { ListCommands->setCurrentRow(row); });
}

void FormAddEditAudioInter::BuildCommandList(const Collection<CAction>& actions, QListWidget* list)
{
    list->clear();
    for (const auto& action : actions)
        list->addItem(action->m_strMessage);
}

// ---------------------------------------------------------------- the action list

void FormAddEditAudioInter::CommandAdd_Click()
{
    if (!TargetCombosOK())
        return;
    auto action = std::make_shared<CAction>();
    StoreAction(*action);
    gEditActions.Add(action);
    BuildCommandList(gEditActions, ListCommands);
    suppressed([&] { ListCommands->setCurrentRow(ListCommands->count() - 1); });
}

void FormAddEditAudioInter::AddMessage_Click() { CommandAdd_Click(); }

void FormAddEditAudioInter::RemoveMessage_Click()
{
    const int row = ListCommands->currentRow();
    if (row < 0 || !ListCommands->item(row)->isSelected())
        return;
    Skip([&] { gEditActions.Remove(row + 1); });
    gDirty = true;
    BuildCommandList(gEditActions, ListCommands);
    suppressed([&] { ListCommands->setCurrentRow(-1); });
}

void FormAddEditAudioInter::moveAction(int by)
{
    int row = ListCommands->currentRow();
    if (row < 0 || !ListCommands->item(row)->isSelected())
        return;
    const int to = row + by;
    if (to >= 0 && to < gEditActions.Count()) {
        Skip([&] {
            auto action = gEditActions(row + 1);
            gEditActions.Remove(row + 1);
            if (to + 1 <= gEditActions.Count())
                gEditActions.Add(action, to + 1);
            else
                gEditActions.Add(action);
        });
        gDirty = true;
        row = to;
    }
    BuildCommandList(gEditActions, ListCommands);
    suppressed([&] { ListCommands->setCurrentRow(row); });
}

void FormAddEditAudioInter::CommandUp_Click() { moveAction(-1); }
void FormAddEditAudioInter::CommandDown_Click() { moveAction(+1); }

void FormAddEditAudioInter::ListCommands_Click()
{
    if (gSuppressComboEvents)
        return;
    const int row = ListCommands->currentRow();
    if (row < 0 || row >= gEditActions.Count())
        return;
    const CAction& a = *gEditActions(row + 1);
    gLoadingAction = true;
    // Choosing the kind and the target sets up their controls, as the operator's choice would.
    Skip([&] { select(ComboTargetType, IndexOfSourceType(a.m_iTargetType, ComboTargetType)); });
    ComboTargetType_Click();
    const qint16 kind = targetKind();
    Skip([&] { select(ComboTarget, IndexOfSource(kind, a.m_iTarget, ComboTarget)); });
    ComboTarget_Click();
    Skip([&] { select(ComboChannel, a.m_iChannel); });
    if (kind == 7)
        Skip([&] { select(ComboCommand, IndexOfArduinoItem(a.m_iCommand, a.m_iTarget, ComboCommand).toInt()); });
    else
        Skip([&] { select(ComboCommand, a.m_iCommand); });
    TextVarTarget->setText(a.m_strVariable);
    if (kind == 9 && a.m_iTarget != 6 && a.m_iTarget != 7 && a.m_iTarget != 8)
        Skip([&] { select(ComboNoteControlProg, ToInteger(a.m_strVal1)); });
    else
        ComboNoteControlProg->setEditText(a.m_strVal1);
    ComboNoteControlProg_Click();
    ComboVelValue->setEditText(a.m_strVal2);
    TextMin->setText(a.m_strMin);
    TextMax->setText(a.m_strMax);
    TextMIDIFile->setText(a.m_strMIDIFile);
    Skip([&] { select(ComboAction, a.m_iAction); });
    gLoadingAction = false;
}
