// The rule editor's source side: the interaction type, the source kind, the
// device and its item, the source values and bounds, and the two warnings
// that empty the action list.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleRuleEdit.h"
#include "ruleeditor/FormAddEditAudioInter.h"
#include "ruleeditor/ModuleSourcesTargets.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

using namespace editor;

namespace {
const QString kVar = QStringLiteral("VAR");
const QString kInterTypeWarning = QStringLiteral(
    "WARNING: If you change the interaction type every command will be deleted from the command list. "
    "Do you want to continue?");
const QString kSourceTypeWarning = QStringLiteral(
    "WARNING: If you change the source type to AUTO every command will be deleted from the command list. "
    "Do you want to continue?");
} // namespace

void FormAddEditAudioInter::showSourceBounds(bool visible)
{
    for (QWidget* w : {static_cast<QWidget*>(LabelMinSource), static_cast<QWidget*>(TextMinSource),
                       static_cast<QWidget*>(LabelMaxSource), static_cast<QWidget*>(TextMaxSource),
                       static_cast<QWidget*>(LabelLittleMin), static_cast<QWidget*>(LabelLittleMax)})
        w->setVisible(visible);
}

void FormAddEditAudioInter::addTargetType(const QString& text) { addIfAbsent(ComboTargetType, text); }

void FormAddEditAudioInter::ComboInterType_Change()
{
    if (gSuppressComboEvents)
        return;
    const qint16 type = interType();
    const qint16 kind = sourceKind();
    const qint16 target = targetKind();

    if (!bLoading && gEditActions.Count() >= 1 && type != iPrevInterType && kind != 0) {
        if (MsgBox(kInterTypeWarning, MsgButtons::YesNo) == MsgAnswer::No) {
            suppressed([&] { select(ComboInterType, IndexOfInterType(iPrevInterType, ComboInterType)); });
            return;
        }
        gEditActions.Clear();
        BuildCommandList(gEditActions, ListCommands);
    }
    ComboCommand->clear();
    if (kind != 0)
        ComboSourceType_Click();
    ComboTargetType_Click();
    LabelSense->hide();
    ComboSense->hide();
    FillSourceTypes(ComboSourceType);

    Skip([&] { select(ComboValueSource, 1); });
    ComboValueSource->setEnabled(false);
    ComboVelSource->setEnabled(true);
    Skip([&] { select(ComboVelSource, 0); });
    zeroIfEmpty(ComboVelSource);

    ComboNoteControlProg->clear();
    ComboNoteControlProg->setEditText(QStringLiteral("0"));
    ComboVelValue->clear();
    ComboVelValue->setEditText(QStringLiteral("0"));
    ComboVelValue->setEnabled(true);

    if (target == 9)
        Skip([&] { select(ComboTargetType, 0); });
    removeAll(ComboTargetType, QStringLiteral("QEL"));
    if (target == 10)
        Skip([&] { select(ComboTargetType, 0); });
    removeAll(ComboTargetType, QStringLiteral("Video Capture"));

    if (type != 0 && kind == 0) {
        if (ComboSourceType->count() >= 2) {
            Skip([&] { select(ComboSourceType, 1); });
            ComboSourceType_Click();
        } else {
            // Automatic allows nothing but a trigger: the type falls back, and that change does the rest.
            Skip([&] { selectText(ComboInterType, QStringLiteral("Trigger")); });
            ComboInterType_Change();
            return;
        }
    }

    auto valueLists = [&] {
        for (QComboBox* c : {ComboNoteControlProg, ComboVelValue})
            addKeepingText(c, {QString(), kVar});
        Skip([&] { select(ComboNoteControlProg, 1); });
        ComboNoteControlProg->setEnabled(false);
    };
    // A kind that the new type forbids gives way to the second entry of the list.
    auto removeKinds = [&](const QStringList& kinds) {
        const qint16 before = sourceKind();
        for (const QString& k : kinds)
            removeAll(ComboSourceType, k);
        if (kinds.contains(SourceTypeText(before))) {
            Skip([&] { select(ComboSourceType, 1); });
            ComboSourceType_Click();
        }
        FillSources(ComboSource, sourceKind());
        Skip([&] { select(ComboSource, 0); });
        ComboSource->setEnabled(true);
    };
    switch (type) {
    case 0:
        ComboSense->show();
        LabelSense->show();
        ComboNoteControlProg->setEnabled(true);
        addTargetType(QStringLiteral("QEL"));
        if (gMainConfig.m_iNVideoCaps >= 1)
            addTargetType(QStringLiteral("Video Capture"));
        break;
    case 1:
        FillSources(ComboSource, sourceKind());
        Skip([&] { select(ComboSource, 0); });
        ComboSource->setEnabled(true);
        valueLists();
        if (gMainConfig.m_iNVideoCaps >= 1)
            addTargetType(QStringLiteral("Video Capture"));
        break;
    case 2:
        removeKinds({QStringLiteral("Digital Input Card")});
        ComboValueSource->setEnabled(true);
        valueLists();
        break;
    case 3:
        removeKinds({QStringLiteral("Digital Input Card"), QStringLiteral("Exoskeleton"), QStringLiteral("Joystick"),
                     QStringLiteral("Arduino")});
        valueLists();
        break;
    default:
        break;
    }

    ComboCommand_Change();
    if (ComboTargetType->currentText().isEmpty() && ComboTargetType->count() > 0) {
        Skip([&] { select(ComboTargetType, 0); });
        ComboTargetType_Click();
    }
    if (ComboSourceType->currentText().isEmpty() && ComboSourceType->count() > 0) {
        Skip([&] { select(ComboSourceType, 0); });
        ComboSourceType_Click();
    }
    iPrevInterType = type;
}

void FormAddEditAudioInter::ComboSourceType_Click()
{
    if (gSuppressComboEvents)
        return;
    const qint16 kind = sourceKind();

    if (kind == 0 && !bLoading && gEditActions.Count() > 0 && iPrevSourceType != 0) {
        if (MsgBox(kSourceTypeWarning, MsgButtons::YesNo) == MsgAnswer::No) {
            // Not suppressed: the handler runs again with the old kind.
            Skip([&] { select(ComboSourceType, IndexOfSourceType(iPrevSourceType, ComboSourceType)); });
            ComboSourceType_Click();
            return;
        }
        gEditActions.Clear();
        BuildCommandList(gEditActions, ListCommands);
    }

    for (QWidget* w : QList<QWidget*>{ComboItem, TextVarSource, LabelItemVar, ComboChannelSource, LabelChannelSource,
                                      ComboValueSource, LabelValueSource, ComboVelSource, LabelVelSource,
                                      LabelMinSource, TextMinSource, LabelMaxSource, TextMaxSource})
        w->hide();
    Label1->show();
    ComboInterType->show();
    const qint16 type = interType();
    LabelSense->setVisible(type == 0);
    ComboSense->setVisible(type == 0);

    LabelItemVar->setText(QStringLiteral("Variable"));
    LabelValueSource->setText(QStringLiteral("Note"));
    LabelSource->setText(QStringLiteral("Source"));
    ComboSource->clear();

    Skip([&] { select(ComboValueSource, 1); });
    ComboVelSource->setEnabled(true);
    Skip([&] { select(ComboVelSource, 0); });
    zeroIfEmpty(ComboVelSource);
    ComboValueSource->setEnabled(type == 2);

    auto bounds = [&](const char* min, const char* max) {
        TextMinSource->setText(QString::fromLatin1(min));
        TextMaxSource->setText(QString::fromLatin1(max));
    };
    if (type == 2)
        bounds("0", "1");
    else if (kind == 7 || kind == 1)
        bounds("127", "127");
    else
        bounds("0", "0");
    LabelLittleMin->clear();
    LabelLittleMax->clear();

    if (kind == 0) {
        LabelSource->setText(QStringLiteral("When"));
        FillSources(ComboSource, kind);
        Skip([&] { select(ComboSource, 0); });
        Skip([&] { selectText(ComboInterType, QStringLiteral("Trigger")); });
        ComboInterType_Change();
        Skip([&] { select(ComboValueSource, 0); });
    } else {
        FillSources(ComboSource, kind);
        Skip([&] { select(ComboSource, 0); });
        const bool gate = type == 1;
        auto hints = [&](const char* min, const char* max) {
            LabelLittleMin->setText(QString::fromLatin1(min));
            LabelLittleMax->setText(QString::fromLatin1(max));
        };
        auto showItem = [&](const char* caption) {
            ComboItem->show();
            LabelItemVar->show();
            LabelItemVar->setText(QString::fromLatin1(caption));
        };
        switch (kind) {
        case 1:
            showItem("Item");
            gate ? bounds("127", "127") : bounds("0", "255");
            hints("[0]", "[255]");
            break;
        case 2:
            showItem("Item");
            gate ? bounds("0", "0") : bounds("-1000", "1000");
            hints("[-1000]", "[1000]");
            break;
        case 7:
            showItem("Item");
            gate ? bounds("127", "127") : bounds("0", "1023");
            hints("[0]", "[1023]");
            break;
        case 5:
            showItem("Item");
            break;
        case 6:
            showItem("Command");
            for (QWidget* w : QList<QWidget*>{ComboValueSource, LabelValueSource, ComboVelSource, LabelVelSource,
                                              ComboChannelSource, LabelChannelSource})
                w->show();
            gate ? bounds("64", "64") : bounds("0", "127");
            hints("[0]", "[127]");
            break;
        case 3:
        case 8:
            TextVarSource->show();
            LabelItemVar->show();
            if (kind == 8)
                LabelItemVar->setText(QStringLiteral("Address"));
            ComboValueSource->show();
            LabelValueSource->show();
            LabelValueSource->setText(QStringLiteral("Value"));
            break;
        default:
            break;
        }
        if (kind == 1 || kind == 2 || kind == 5 || kind == 7 || kind == 6)
            ComboSource_Click();
        if (kind == 1 || kind == 2 || kind == 5 || kind == 7)
            Skip([&] { select(ComboItem, 0); });
    }

    if (shown(ComboInterType) && ComboInterType->currentText() == QLatin1String("Trigger")) {
        LabelSense->show();
        ComboSense->show();
    }
    CheckClip_Click();
    iPrevSourceType = kind;
}

void FormAddEditAudioInter::ComboSource_Click()
{
    if (gSuppressComboEvents)
        return;
    ComboItem->clear();
    const qint16 kind = sourceKind();
    if (kind != 0) {
        const int index = FillItems(ComboItem, kind, sourceNumber(), interType(), true);
        Skip([&] { select(ComboItem, index); });
        ComboItem_Change();
    } else if (ComboSource->currentText() == QLatin1String("QEL Variable")) {
        TextVarSource->show();
        if (TextVarSource->text().isEmpty())
            TextVarSource->setText(QStringLiteral("source_var"));
        LabelItemVar->setText(QStringLiteral("Variable"));
        LabelItemVar->show();
        for (QLineEdit* t : {TextMinSource, TextMaxSource}) {
            t->show();
            if (t->text().isEmpty())
                t->setText(QStringLiteral("0"));
        }
        LabelMinSource->show();
        LabelMaxSource->show();
    } else if (const QString moment = ComboSource->currentText();
               moment == QLatin1String("Begin") || moment == QLatin1String("End")) {
        for (QWidget* w : QList<QWidget*>{TextVarSource, LabelItemVar, TextMinSource, TextMaxSource, LabelMinSource,
                                          LabelMaxSource})
            w->hide();
    }
}

void FormAddEditAudioInter::ComboItem_Change()
{
    const qint16 kind = sourceKind();
    const qint16 type = interType();
    const qint16 itemKind = GetItemKind(kind, sourceNumber(), ComboItem->currentText(), listIndex(ComboItem));
    CheckClip->hide();
    CheckClip->setText(QStringLiteral("Clip"));
    if (itemKind != 0 || type == 3) {
        showSourceBounds(false);
    } else {
        showSourceBounds(true);
        if (type == 0 || type == 1) {
            LabelMinSource->setText(QStringLiteral("Low Th"));
            LabelMaxSource->setText(QStringLiteral("High Th"));
            if (type == 1 && (kind == 8 || kind == 3)) {
                CheckClip->show();
                CheckClip->setText(QStringLiteral("Binary"));
            }
        } else {
            LabelMinSource->setText(QStringLiteral("Min"));
            LabelMaxSource->setText(QStringLiteral("Max"));
            CheckClip->show();
            CheckClip->setText(QStringLiteral("Clip"));
        }
    }
    if (kind == 6) {
        const QString item = ComboItem->currentText();
        auto captions = [&](const char* value, const char* vel) {
            LabelValueSource->setText(QString::fromLatin1(value));
            LabelVelSource->setText(QString::fromLatin1(vel));
        };
        if (item == QLatin1String("Note On"))
            captions("Note", "Velocity");
        else if (item == QLatin1String("Control Change"))
            captions("Control", "Value");
        else if (item == QLatin1String("Program Change"))
            captions("Program", "Delay");
    }
    if (shown(ComboValueSource) && ComboValueSource->count() >= 2) {
        Skip([&] { select(ComboValueSource, 1); });
        ComboValueSource_Click();
    }
}

void FormAddEditAudioInter::CheckClip_Click()
{
    const qint16 kind = sourceKind();
    if (interType() != 1 || (kind != 8 && kind != 3))
        return;
    const bool visible = !CheckClip->isChecked();
    for (QWidget* w : QList<QWidget*>{TextMinSource, TextMaxSource, LabelMinSource, LabelMaxSource, LabelLittleMin,
                                      LabelLittleMax, ComboValueSource})
        w->setVisible(visible);
    LabelValueSource->show();
}

namespace {
// Plain values at the target: both value lists hold only the empty text, read as "0".
void plainTargetValues(QComboBox* note, QComboBox* vel, bool zeroFirst)
{
    for (QComboBox* c : {note, vel}) {
        c->clear();
        if (zeroFirst)
            c->setEditText(QStringLiteral("0"));
        c->setEnabled(true);
        c->addItem(QString());
        Skip([&] { select(c, 0); });
        zeroIfEmpty(c);
    }
}

// The source passes a value on: the target's value lists offer "VAR", on the first.
void varTargetValues(QComboBox* note, QComboBox* vel)
{
    if (note->currentText() == kVar || vel->currentText() == kVar)
        return;
    for (QComboBox* c : {note, vel}) {
        c->clear();
        c->addItems({QString(), kVar});
    }
    Skip([&] { select(vel, 0); });
    zeroIfEmpty(vel);
    Skip([&] { select(note, 1); });
    note->setEnabled(false);
}
} // namespace

void FormAddEditAudioInter::ComboValueSource_Click()
{
    if (gSuppressComboEvents)
        return;
    CheckClip->hide();
    CheckClip->setText(QStringLiteral("Clip"));
    const qint16 kind = sourceKind();
    const qint16 type = interType();
    const qint16 itemKind = GetItemKind(kind, sourceNumber(), ComboItem->currentText(), listIndex(ComboItem));
    if (ComboValueSource->currentText() != kVar) {
        if (ComboVelSource->currentText() == kVar)
            return;
        showSourceBounds(false);
        plainTargetValues(ComboNoteControlProg, ComboVelValue, true);
        return;
    }
    varTargetValues(ComboNoteControlProg, ComboVelValue);
    if (itemKind != 0)
        return;
    if (type != 3) {
        if (type == 1 && (kind == 8 || kind == 3)) {
            CheckClip->show();
            CheckClip->setText(QStringLiteral("Binary"));
        } else if (type == 2) {
            CheckClip->show();
            CheckClip->setText(QStringLiteral("Clip"));
        }
        if (!(type == 1 && CheckClip->isChecked()))
            showSourceBounds(true);
    }
    if (!ComboVelSource->isEnabled()) {
        ComboVelSource->setEnabled(true);
        ComboValueSource->setEnabled(false);
    }
    if (ComboVelSource->currentText() == kVar)
        suppressed([&] {
            Skip([&] { select(ComboVelSource, 0); });
            zeroIfEmpty(ComboVelSource);
        });
}

void FormAddEditAudioInter::ComboVelSource_Click()
{
    if (gSuppressComboEvents)
        return;
    const qint16 kind = sourceKind();
    const qint16 type = interType();
    const qint16 itemKind = GetItemKind(kind, sourceNumber(), ComboItem->currentText(), listIndex(ComboItem));
    if (ComboVelSource->currentText() != kVar) {
        if (ComboValueSource->currentText() == kVar)
            return;
        showSourceBounds(false);
        plainTargetValues(ComboNoteControlProg, ComboVelValue, false);
        return;
    }
    CheckClip->hide();
    CheckClip->setText(QStringLiteral("Clip"));
    varTargetValues(ComboNoteControlProg, ComboVelValue);
    if (itemKind != 0)
        return;
    if (type != 3) {
        showSourceBounds(true);
        if (type == 1 && (kind == 8 || kind == 3)) {
            CheckClip->show();
            CheckClip->setText(QStringLiteral("Binary"));
        } else if (type == 2) {
            CheckClip->show();
            CheckClip->setText(QStringLiteral("Clip"));
        }
    }
    if (!ComboValueSource->isEnabled()) {
        ComboValueSource->setEnabled(true);
        ComboVelSource->setEnabled(false);
    }
    if (ComboValueSource->currentText() == kVar)
        suppressed([&] {
            Skip([&] { select(ComboValueSource, 0); });
            zeroIfEmpty(ComboValueSource);
        });
}

void FormAddEditAudioInter::ComboSense_Click() {}
