// The rule editor's frame: its controls and menus, the load, the showing of a
// stored rule, Save, Quit and Cancel.
#include "ruleeditor/FormAddEditAudioInter.h"
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include "files/ModuleSaveOpen.h"
#include "model/CMainConfig.h"
#include "model/CPart.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "rules/ModuleRuleEdit.h"
#include "ruleeditor/ModuleSourcesTargets.h"
#include "support/Controls.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

bool gLoadingAction = false;

namespace editor {

void select(QComboBox* combo, int index)
{
    if (index < -1 || index >= combo->count())
        throw RangeError(QStringLiteral("Invalid list index %1 of %2").arg(index).arg(combo->objectName()));
    combo->setCurrentIndex(index);
    if (index >= 0 && combo->isEditable())
        combo->setEditText(combo->itemText(index));
}

void selectText(QComboBox* combo, const QString& text)
{
    for (int i = 0; i < combo->count(); ++i)
        if (combo->itemText(i) == text) {
            select(combo, i);
            return;
        }
    throw RangeError(QStringLiteral("No entry \"%1\" in %2").arg(text, combo->objectName()));
}

void removeAll(QComboBox* combo, const QString& text)
{
    for (int i = 0; i < combo->count();) {
        if (combo->itemText(i) == text) {
            const bool current = i == combo->currentIndex();
            combo->removeItem(i);
            if (current)
                combo->setCurrentIndex(-1);
        } else {
            ++i;
        }
    }
}

void addIfAbsent(QComboBox* combo, const QString& text)
{
    for (int i = 0; i < combo->count(); ++i)
        if (combo->itemText(i) == text)
            return;
    combo->addItem(text);
}

void addKeepingText(QComboBox* combo, const QStringList& entries)
{
    const int index = combo->currentIndex();
    const QString text = combo->currentText();
    combo->addItems(entries);
    combo->setCurrentIndex(index);
    if (combo->isEditable())
        combo->setEditText(text);
}

int listIndex(const QComboBox* combo)
{
    const int i = combo->currentIndex();
    if (combo->isEditable() && i >= 0 && combo->itemText(i) != combo->currentText())
        return -1;
    return i;
}

bool shown(const QWidget* widget) { return !widget->isHidden(); }

void suppressed(const std::function<void()>& statements)
{
    const bool before = gSuppressComboEvents;
    gSuppressComboEvents = true;
    Skip(statements);
    gSuppressComboEvents = before;
}

void zeroIfEmpty(QComboBox* combo)
{
    if (combo->currentText().isEmpty())
        combo->setEditText(QStringLiteral("0"));
}

QString leadingZero(const QString& text) { return text.startsWith(QLatin1Char('.')) ? QStringLiteral("0") + text : text; }

} // namespace editor

using namespace editor;

namespace {

QLabel* label(QWidget* parent, const char* name, const QString& caption, int x, int y, int w = 110)
{
    auto* l = named(new QLabel(caption, parent), QString::fromLatin1(name));
    l->setGeometry(x, y, w, 22);
    return l;
}

QComboBox* combo(QWidget* parent, const char* name, bool editable, int x, int y, int w = 190)
{
    auto* c = named(new QComboBox(parent), QString::fromLatin1(name));
    c->setEditable(editable);
    if (editable)
        c->setInsertPolicy(QComboBox::NoInsert);
    c->setGeometry(x, y, w, 24);
    return c;
}

QLineEdit* text(QWidget* parent, const char* name, const QString& value, int x, int y, int w = 190)
{
    auto* t = named(new QLineEdit(value, parent), QString::fromLatin1(name));
    t->setGeometry(x, y, w, 24);
    return t;
}

QPushButton* button(QWidget* parent, const char* name, const QString& caption, int x, int y, int w = 90)
{
    auto* b = named(new QPushButton(caption, parent), QString::fromLatin1(name));
    b->setGeometry(x, y, w, 28);
    return b;
}

} // namespace

FormAddEditAudioInter::FormAddEditAudioInter(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("FormAddEditAudioInter"));
    setWindowTitle(QStringLiteral("Add Audio Interaction Event"));
    setModal(true);
    buildControls();
    connectHandlers();
    Form_Load();
}

void FormAddEditAudioInter::buildControls()
{
    MenuBar = named(new QMenuBar(this), QStringLiteral("MenuBar"));
    File = named(MenuBar->addMenu(QStringLiteral("&File")), QStringLiteral("File"));
    Save = named(File->addAction(QStringLiteral("&Save")), QStringLiteral("Save"));
    Quit = named(File->addAction(QStringLiteral("&Quit")), QStringLiteral("Quit"));
    Message = named(MenuBar->addMenu(QStringLiteral("&Message")), QStringLiteral("Message"));
    AddMessage = named(Message->addAction(QStringLiteral("&Add")), QStringLiteral("AddMessage"));
    RemoveMessage = named(Message->addAction(QStringLiteral("&Remove")), QStringLiteral("RemoveMessage"));
    MenuBar->setGeometry(0, 0, 860, 24);

    // Header.
    const int top = 32;
    Label4 = label(this, "Label4", QStringLiteral("Rule"), 10, top, 80);
    LabelNumEvent = label(this, "LabelNumEvent", QString(), 90, top, 50);
    Label2 = label(this, "Label2", QStringLiteral("Scene"), 150, top, 50);
    LabelNumScene = label(this, "LabelNumScene", QString(), 200, top, 40);
    Label5 = label(this, "Label5", QStringLiteral("Subscene"), 250, top, 70);
    LabelNumPart = label(this, "LabelNumPart", QString(), 320, top, 40);
    LabelName = label(this, "LabelName", QString(), 370, top, 300);

    // Source side: captions at x 10, controls at x 130, one row every 30 pixels.
    auto row = [](int i) { return 70 + 30 * i; };
    const int lx = 10, cx = 130;
    Label1 = label(this, "Label1", QStringLiteral("Interaction Type"), lx, row(0));
    ComboInterType = combo(this, "ComboInterType", false, cx, row(0));
    LabelSense = label(this, "LabelSense", QStringLiteral("Sense"), lx, row(1));
    ComboSense = combo(this, "ComboSense", false, cx, row(1));
    LabelSourceType = label(this, "LabelSourceType", QStringLiteral("Source Type"), lx, row(2));
    ComboSourceType = combo(this, "ComboSourceType", false, cx, row(2));
    LabelSource = label(this, "LabelSource", QStringLiteral("Source"), lx, row(3));
    ComboSource = combo(this, "ComboSource", false, cx, row(3));
    LabelItemVar = label(this, "LabelItemVar", QStringLiteral("Variable"), lx, row(4));
    ComboItem = combo(this, "ComboItem", false, cx, row(4), 260);
    TextVarSource = text(this, "TextVarSource", QStringLiteral("source_var"), cx, row(4));
    LabelChannelSource = label(this, "LabelChannelSource", QStringLiteral("Channel"), lx, row(5));
    ComboChannelSource = combo(this, "ComboChannelSource", false, cx, row(5), 80);
    LabelValueSource = label(this, "LabelValueSource", QStringLiteral("Value"), lx, row(6));
    ComboValueSource = combo(this, "ComboValueSource", true, cx, row(6), 100);
    LabelVelSource = label(this, "LabelVelSource", QStringLiteral("Velocity"), lx, row(7));
    ComboVelSource = combo(this, "ComboVelSource", true, cx, row(7), 100);
    LabelMinSource = label(this, "LabelMinSource", QStringLiteral("Min"), lx, row(8));
    TextMinSource = text(this, "TextMinSource", QStringLiteral("0"), cx, row(8), 80);
    LabelLittleMin = label(this, "LabelLittleMin", QStringLiteral("LittleMin"), cx + 90, row(8), 80);
    LabelMaxSource = label(this, "LabelMaxSource", QStringLiteral("Max"), lx, row(9));
    TextMaxSource = text(this, "TextMaxSource", QStringLiteral("0"), cx, row(9), 80);
    LabelLittleMax = label(this, "LabelLittleMax", QStringLiteral("LittleMax"), cx + 90, row(9), 80);
    CheckClip = named(new QCheckBox(QStringLiteral("Clip"), this), QStringLiteral("CheckClip"));
    CheckClip->setGeometry(cx, row(10), 120, 22);   // wide enough for "Binary"
    CheckInit = named(new QCheckBox(QStringLiteral("Enabled"), this), QStringLiteral("CheckInit"));
    CheckInit->setGeometry(cx, row(11), 120, 22);
    Label6 = label(this, "Label6", QStringLiteral("Label"), lx, row(12));
    TextGroup = combo(this, "TextGroup", true, cx, row(12));
    Label7 = label(this, "Label7", QStringLiteral("Remarks"), lx, row(13));
    TextRemarks = text(this, "TextRemarks", QString(), cx, row(13), 260);

    // Action side: captions at x 420, controls at x 540.
    const int rx = 420, rcx = 540;
    LabelTargetType = label(this, "LabelTargetType", QStringLiteral("Target Type"), rx, row(0));
    ComboTargetType = combo(this, "ComboTargetType", false, rcx, row(0));
    Label9 = label(this, "Label9", QStringLiteral("Target"), rx, row(1));
    ComboTarget = combo(this, "ComboTarget", false, rcx, row(1), 260);
    Label3 = label(this, "Label3", QStringLiteral("Command"), rx, row(2));
    ComboCommand = combo(this, "ComboCommand", false, rcx, row(2), 260);
    TextVarTarget = text(this, "TextVarTarget", QStringLiteral("target_var"), rcx, row(2));
    LabelChannel = label(this, "LabelChannel", QStringLiteral("Channel"), rx, row(3));
    ComboChannel = combo(this, "ComboChannel", false, rcx, row(3), 80);
    LabelNoteControlProg = label(this, "LabelNoteControlProg", QStringLiteral("Note"), rx, row(4));
    ComboNoteControlProg = combo(this, "ComboNoteControlProg", true, rcx, row(4), 100);
    LabelVelValue = label(this, "LabelVelValue", QStringLiteral("Velocity"), rx, row(5));
    ComboVelValue = combo(this, "ComboVelValue", true, rcx, row(5), 100);
    LabelMin = label(this, "LabelMin", QStringLiteral("Min"), rx, row(6));
    TextMin = text(this, "TextMin", QStringLiteral("0"), rcx, row(6), 80);
    LabelMax = label(this, "LabelMax", QStringLiteral("Max"), rx, row(7));
    TextMax = text(this, "TextMax", QStringLiteral("0"), rcx, row(7), 80);
    LabelMIDIFile = label(this, "LabelMIDIFile", QStringLiteral("MIDI File"), rx, row(8));
    TextMIDIFile = text(this, "TextMIDIFile", QString(), rcx, row(8), 230);
    CommandBrowse = button(this, "CommandBrowse", QString(), rcx + 236, row(8), 28);
    CommandBrowse->setIcon(style()->standardIcon(QStyle::SP_DirOpenIcon));
    LabelAction = label(this, "LabelAction", QStringLiteral("Action"), rx, row(9));
    ComboAction = combo(this, "ComboAction", false, rcx, row(9), 120);
    LabelText = label(this, "LabelText", QString(), rx, row(10), 420);
    CommandAdd = button(this, "CommandAdd", QStringLiteral("Add Action"), rx, row(11), 110);
    LabelCommandList = label(this, "LabelCommandList", QStringLiteral("Actions List"), 10, row(14) + 6);
    ListCommands = named(new QListWidget(this), QStringLiteral("ListCommands"));
    ListCommands->setGeometry(10, row(15), 790, 110);
    CommandUp = button(this, "CommandUp", QString(), 806, row(15), 32);
    CommandUp->setIcon(style()->standardIcon(QStyle::SP_ArrowUp));
    CommandDown = button(this, "CommandDown", QString(), 806, row(15) + 40, 32);
    CommandDown->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
    CommandOK = button(this, "CommandOK", QStringLiteral("OK"), 620, row(19) + 10);
    CommandCancel = button(this, "CommandCancel", QStringLiteral("Cancel"), 720, row(19) + 10);
    CommandOK->setAutoDefault(false);
    CommandCancel->setAutoDefault(false);
    CommandAdd->setAutoDefault(false);

    // Children of a dialog not yet shown count as hidden until shown once.
    for (QWidget* w : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        w->show();
    resize(860, row(20) + 20);
}

void FormAddEditAudioInter::connectHandlers()
{
    connect(Save, &QAction::triggered, this, &FormAddEditAudioInter::Save_Click);
    connect(Quit, &QAction::triggered, this, &FormAddEditAudioInter::Quit_Click);
    connect(AddMessage, &QAction::triggered, this, &FormAddEditAudioInter::AddMessage_Click);
    connect(RemoveMessage, &QAction::triggered, this, &FormAddEditAudioInter::RemoveMessage_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormAddEditAudioInter::CommandCancel_Click);
    connect(CommandOK, &QPushButton::clicked, this, &FormAddEditAudioInter::CommandOK_Click);
    connect(CommandAdd, &QPushButton::clicked, this, &FormAddEditAudioInter::CommandAdd_Click);
    connect(CommandUp, &QPushButton::clicked, this, &FormAddEditAudioInter::CommandUp_Click);
    connect(CommandDown, &QPushButton::clicked, this, &FormAddEditAudioInter::CommandDown_Click);
    connect(CommandBrowse, &QPushButton::clicked, this, &FormAddEditAudioInter::CommandBrowse_Click);
    connect(CheckClip, &QCheckBox::clicked, this, &FormAddEditAudioInter::CheckClip_Click);
    connect(ListCommands, &QListWidget::itemClicked, this, &FormAddEditAudioInter::ListCommands_Click);

    connect(ComboInterType, &QComboBox::activated, this, &FormAddEditAudioInter::ComboInterType_Change);
    connect(ComboSourceType, &QComboBox::activated, this, &FormAddEditAudioInter::ComboSourceType_Click);
    connect(ComboSource, &QComboBox::activated, this, &FormAddEditAudioInter::ComboSource_Click);
    connect(ComboItem, &QComboBox::activated, this, &FormAddEditAudioInter::ComboItem_Change);
    connect(ComboSense, &QComboBox::activated, this, &FormAddEditAudioInter::ComboSense_Click);
    connect(ComboValueSource, &QComboBox::activated, this, &FormAddEditAudioInter::ComboValueSource_Click);
    connect(ComboValueSource->lineEdit(), &QLineEdit::textEdited, this, &FormAddEditAudioInter::ComboValueSource_Click);
    connect(ComboVelSource, &QComboBox::activated, this, &FormAddEditAudioInter::ComboVelSource_Click);
    connect(ComboVelSource->lineEdit(), &QLineEdit::textEdited, this, &FormAddEditAudioInter::ComboVelSource_Click);

    connect(ComboTargetType, &QComboBox::activated, this, &FormAddEditAudioInter::ComboTargetType_Click);
    connect(ComboTarget, &QComboBox::activated, this, &FormAddEditAudioInter::ComboTarget_Click);
    connect(ComboCommand, &QComboBox::activated, this, &FormAddEditAudioInter::ComboCommand_Change);
    connect(ComboNoteControlProg, &QComboBox::activated, this, &FormAddEditAudioInter::ComboNoteControlProg_Click);
    connect(ComboNoteControlProg->lineEdit(), &QLineEdit::textEdited, this,
            &FormAddEditAudioInter::ComboNoteControlProg_Click);
    connect(ComboVelValue, &QComboBox::activated, this, &FormAddEditAudioInter::ComboVelValue_Click);
    connect(ComboVelValue->lineEdit(), &QLineEdit::textEdited, this, &FormAddEditAudioInter::ComboVelValue_Click);
    connect(ComboChannel, &QComboBox::activated, this, &FormAddEditAudioInter::ComboChannel_Click);
    connect(ComboAction, &QComboBox::activated, this, &FormAddEditAudioInter::ComboAction_Click);
    connect(TextMin, &QLineEdit::textEdited, this, &FormAddEditAudioInter::TextMin_Change);
    connect(TextMax, &QLineEdit::textEdited, this, &FormAddEditAudioInter::TextMax_Change);
    connect(TextVarTarget, &QLineEdit::textEdited, this, &FormAddEditAudioInter::TextVarTarget_Change);
    connect(TextMIDIFile, &QLineEdit::textEdited, this, &FormAddEditAudioInter::TextMIDIFile_Change);
}

// ---------------------------------------------------------------- reading the combos

qint16 FormAddEditAudioInter::interType() const { return InterTypeFromText(ComboInterType->currentText()); }
qint16 FormAddEditAudioInter::sourceKind() const { return SourceTypeFromText(ComboSourceType->currentText()); }
qint16 FormAddEditAudioInter::targetKind() const { return SourceTypeFromText(ComboTargetType->currentText()); }

qint16 FormAddEditAudioInter::sourceNumber() const
{
    if (sourceKind() == 7)
        return ArduinoIndexFromLabel(ComboSource->currentText());
    return static_cast<qint16>(listIndex(ComboSource));
}

qint16 FormAddEditAudioInter::targetNumber() const
{
    return TargetIndexFromText(ComboTarget->currentText(), listIndex(ComboTarget), targetKind());
}

// ---------------------------------------------------------------- load

void FormAddEditAudioInter::Form_Load()
{
    bLoading = true;
    gRuleAccepted = false;
    gSuppressComboEvents = false;
    gLoadingAction = false;

    FillTargetTypes(ComboTargetType);
    Skip([&] { select(ComboTargetType, 0); });
    ComboTargetType_Click();

    if (gGlobalRuleView) {
        Label2->hide();
        LabelNumScene->hide();
        LabelName->hide();
        Label4->setText(QStringLiteral("Global Rule"));
    } else {
        Label2->show();
        LabelNumScene->show();
        LabelName->show();
        Label4->setText(QStringLiteral("Rule"));
        LabelNumScene->setText(QString::number(gCurrentScene));
        LabelNumPart->setText(QString::number(gCurrentPart));
        Skip([&] { LabelName->setText(gScenes(gCurrentScene + 1)->PartList(gCurrentPart + 1)->m_strName); });
        LabelNumEvent->setText(QString::number(gRuleIndex + 1));
    }

    for (QComboBox* c : {ComboInterType, ComboSource, ComboSourceType, ComboItem, ComboCommand, ComboChannel,
                         ComboNoteControlProg, ComboVelValue, ComboAction, ComboSense, ComboValueSource,
                         ComboVelSource})
        c->clear();
    ListCommands->clear();
    gEditActions.Clear();

    ComboInterType->addItems({QStringLiteral("Trigger"), QStringLiteral("Gate"), QStringLiteral("Range")});
    if (gMainConfig.m_iNFlash >= 1 || gMainConfig.m_iNOSCs >= 1)
        ComboInterType->addItem(QStringLiteral("Copy"));
    select(ComboInterType, 0);

    FillTargets(ComboTarget, 6);
    Skip([&] { select(ComboTarget, 0); });

    for (int i = 1; i <= 16; ++i) {
        ComboChannel->addItem(QString::number(i));
        ComboChannelSource->addItem(QString::number(i));
    }
    ComboChannelSource->addItem(QStringLiteral("Any"));
    suppressed([&] {
        select(ComboChannel, 0);
        select(ComboChannelSource, 1);
    });

    for (QComboBox* c : {ComboValueSource, ComboVelSource})
        c->addItems({QString(), QStringLiteral("VAR"), QStringLiteral("Any")});

    for (QLineEdit* t : {TextMinSource, TextMaxSource, TextMin, TextMax})
        t->setText(QStringLiteral("0"));
    TextVarSource->setText(QStringLiteral("source_var"));
    TextVarTarget->setText(QStringLiteral("target_var"));

    LabelSense->show();
    ComboSense->addItems({QStringLiteral("Up"), QStringLiteral("Down"), QStringLiteral("Any")});
    suppressed([&] { select(ComboSense, 0); });

    ComboSourceType->clear();
    FillSourceTypes(ComboSourceType);
    suppressed([&] { select(ComboSourceType, 0); });

    FillGroups(TextGroup);

    if (gRuleEditMode == 1) {
        setWindowTitle(QStringLiteral("Add MIDI Interaction Event"));
        CheckInit->setChecked(true);
        ComboSourceType_Click();
        ComboTargetType_Click();
    } else if (gRuleEditMode == 2) {
        setWindowTitle(QStringLiteral("Edit MIDI Interaction Event"));
        LoadRule();
    } else {
        setWindowTitle(QString());
    }
    bLoading = false;
}

void FormAddEditAudioInter::LoadRule()
{
    std::shared_ptr<CEvent> rule;
    Skip([&] {
        rule = gGlobalRuleView ? gGlobalEvents(gRuleIndex + 1)
                               : gScenes(gCurrentScene + 1)->PartList(gCurrentPart + 1)->AudioEvents(gRuleIndex + 1);
    });
    if (!rule)
        return;
    const CEvent& r = *rule;

    Skip([&] { select(ComboInterType, IndexOfInterType(r.m_iInterType, ComboInterType)); });
    ComboInterType_Change();
    Skip([&] { select(ComboSourceType, IndexOfSourceType(r.m_iSourceType, ComboSourceType)); });
    ComboSourceType_Click();
    Skip([&] { select(ComboSense, IndexOfSense(r.m_iSense, ComboSense)); });
    const qint16 kind = sourceKind();
    Skip([&] { select(ComboSource, IndexOfSource(kind, r.m_iSource, ComboSource)); });
    ComboSource_Click();
    if (r.m_iItem != -1) {
        if (kind == 7)
            Skip([&] { select(ComboItem, IndexOfArduinoItem(r.m_iItem, r.m_iSource, ComboItem).toInt()); });
        else
            Skip([&] { select(ComboItem, r.m_iItem); });
        if (kind != 0)
            ComboItem_Change();
    }
    TextVarSource->setText(r.m_strVariable);
    TextMinSource->setText(r.m_strMin);
    TextMaxSource->setText(r.m_strMax);
    CheckInit->setChecked(r.m_bEnabled);
    CheckClip->setChecked(r.m_bClip);
    TextRemarks->setText(r.m_strRemarks);
    TextGroup->setEditText(r.m_strGroup);
    Skip([&] { select(ComboChannelSource, r.m_iChannel); });
    auto value = [&](QComboBox* c, const QString& v) {
        if (kind == 0 || v.isEmpty())
            return;
        if (v == QLatin1String("VAR"))
            Skip([&] { select(c, 1); });
        else if (v == QLatin1String("Any"))
            Skip([&] { select(c, 2); });
        else
            c->setEditText(v);
    };
    value(ComboValueSource, r.m_strVal1);
    value(ComboVelSource, r.m_strVal2);
    if (r.m_MsgOut)
        for (const auto& action : *r.m_MsgOut)
            gEditActions.Add(action);
    BuildCommandList(gEditActions, ListCommands);
    if (ListCommands->count() > 0) {
        ListCommands->setCurrentRow(0);
        ListCommands_Click();
    }
}

// ---------------------------------------------------------------- menus and closing

void FormAddEditAudioInter::Save_Click()
{
    if (gConfigFilePath.isEmpty()) {
        const QString path = ShowSaveDialog(this, QStringLiteral("TheCommonDialog"),
                                            QStringLiteral("Configuration Files (*.qel)|*.qel"),
                                            QStringLiteral(".qel"));
        if (path.isEmpty())
            return;
        DeriveConfigPaths(path);
    }
    SaveConfiguration(gConfigFilePath);
}

void FormAddEditAudioInter::Quit_Click() { CommandCancel_Click(); }

void FormAddEditAudioInter::CommandCancel_Click()
{
    gRuleAccepted = false;
    reject();
}

void FormAddEditAudioInter::UpdateCommand(int index)
{
    if (!TargetCombosOK())
        return;
    Skip([&] { StoreAction(*gEditActions(index)); });
}
