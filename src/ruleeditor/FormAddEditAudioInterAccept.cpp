// Accepting a rule: the checks of the source side, the hand-over fields and
// the rule's text form.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleRuleEdit.h"
#include "ruleeditor/FormAddEditAudioInter.h"
#include "ruleeditor/ModuleSourcesTargets.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/NumberText.h"
#include "support/OnError.h"

using namespace editor;

void FormAddEditAudioInter::CommandOK_Click()
{
    auto refuse = [](const QString& text, const QString& title = kAppTitle) {
        MsgBox(text, MsgButtons::OK, MsgIcon::Exclamation, title);
    };
    if (gEditActions.Count() == 0) {
        if (!TargetCombosOK())
            return;
        CommandAdd_Click();
    }
    // The source fields are handed over now, ahead of the checks.
    gRuleInterType = InterTypeFromText(ComboInterType->currentText());
    gRuleSense = SenseFromText(ComboSense->currentText());
    gRuleSourceType = SourceTypeFromText(ComboSourceType->currentText());
    gRuleSource = TargetIndexFromText(ComboSource->currentText(), listIndex(ComboSource), gRuleSourceType);
    const qint16 sourceType = gRuleSourceType;
    const qint16 source = gRuleSource;

    if (shown(TextMinSource) && shown(TextMaxSource)) {
        // A text that is no number counts as 0 here; the number checks come later.
        double low = 0, high = 0;
        Skip([&] { low = ToDouble(TextMinSource->text()); });
        Skip([&] { high = ToDouble(TextMaxSource->text()); });
        if (low > high) {
            refuse(LabelMaxSource->text() + QStringLiteral(" must be greater than ") + LabelMinSource->text(),
                   QStringLiteral("QEL Setup: Source Range Error"));
            return;
        }
    }
    const bool signedDecimal = sourceType == 8 || sourceType == 3;
    const QString mustBeNumber = QStringLiteral(" field must be a number");
    auto valueOK = [&](const QString& t) {
        return !t.isEmpty() && (t == QLatin1String("VAR") || t == QLatin1String("Any") ||
                                IsNumber(t, signedDecimal, signedDecimal));
    };
    if (shown(ComboValueSource) && !valueOK(ComboValueSource->currentText()))
        return refuse(LabelValueSource->text() + mustBeNumber);
    if (shown(ComboVelSource) && !valueOK(ComboVelSource->currentText()))
        return refuse(LabelVelSource->text() + mustBeNumber);
    if (shown(TextMinSource) && !IsNumber(TextMinSource->text(), true, true))
        return refuse(LabelMinSource->text() + mustBeNumber);
    if (shown(TextMaxSource) && !IsNumber(TextMaxSource->text(), true, true))
        return refuse(LabelMaxSource->text() + mustBeNumber);
    // The caption is that of the action side's Label3, as it always was.
    if (shown(TextVarSource) && TextVarSource->text().isEmpty())
        return refuse(Label3->text() + QStringLiteral(" field must be filled in"));

    gDirty = true;
    if (shown(ComboItem)) {
        gRuleItem = TextToItem(ComboItem->currentText(), sourceType, source);
        if (gRuleItem == -1)
            gRuleItem = static_cast<qint16>(listIndex(ComboItem));
    } else {
        gRuleItem = -1;
    }
    gRuleVariable = shown(TextVarSource) ? TextVarSource->text() : QString();
    if (shown(ComboValueSource))
        gRuleVal1 = leadingZero(ComboValueSource->currentText());
    else
        gRuleVal1 = sourceType != 0 ? QStringLiteral("VAR") : QString();
    gRuleVal2 = shown(ComboVelSource) ? leadingZero(ComboVelSource->currentText()) : QString();
    gRuleChannel = static_cast<qint16>(listIndex(ComboChannelSource));
    gRuleMin = shown(TextMinSource) ? leadingZero(TextMinSource->text()) : QString();
    gRuleMax = shown(TextMaxSource) ? leadingZero(TextMaxSource->text()) : QString();
    gRuleClip = CheckClip->isChecked();
    gRuleEnabled = CheckInit->isChecked();
    gRuleRemarks = TextRemarks->text();
    gRuleGroup = TextGroup->currentText();
    gRuleEvent = BuildEventString();
    Skip([&] { gRuleEvent += gEditActions(1)->m_strMessage; });
    gRuleAccepted = true;
    accept();
}

QString FormAddEditAudioInter::BuildEventString()
{
    QString s = ComboSourceType->currentText() + QStringLiteral(" -> ") + ComboTargetType->currentText();
    if (shown(ComboInterType))
        s += QStringLiteral(" | ") + ComboInterType->currentText();
    if (shown(ComboSense))
        s += QStringLiteral(": ") + ComboSense->currentText() + QStringLiteral(" | ");
    s += QStringLiteral(" || ") + ComboSource->currentText();
    auto part = [&](QWidget* control, const QString& caption, const QString& text) {
        if (shown(control))
            s += QStringLiteral(" | ") + caption + QStringLiteral(": ") + text;
    };
    part(ComboItem, LabelItemVar->text(), ComboItem->currentText());
    part(ComboChannelSource, LabelChannelSource->text(), ComboChannelSource->currentText());
    part(ComboValueSource, LabelValueSource->text(), ComboValueSource->currentText());
    part(ComboVelSource, LabelVelSource->text(), ComboVelSource->currentText());
    part(TextMinSource, LabelMinSource->text(), TextMinSource->text());
    part(TextMaxSource, LabelMaxSource->text(), TextMaxSource->text());
    if (CheckClip->isChecked())
        s += QStringLiteral("(Clipped)");
    if (CheckInit->isChecked())
        s += QStringLiteral(" *");
    s += QStringLiteral(" || ");
    return s;
}
