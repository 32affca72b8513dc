#include "robots/FormBotsInteraction.h"
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include "files/CBotEvent.h"
#include "files/ModuleBotEvents.h"
#include "files/ModuleClipboard.h"
#include "model/CPart.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "robots/FormAddEditBotInter.h"
#include "robots/ModuleBotSave.h"
#include "robots/ModuleBotTransit.h"
#include "rules/ModuleRuleEdit.h"
#include "support/Controls.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

FormBotsInteraction::FormBotsInteraction(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormBotsInteraction"));
    setWindowTitle(QStringLiteral("RukaBots Interaction"));

    auto* bar = new QMenuBar(this);
    File = named(bar->addMenu(QStringLiteral("&File")), QStringLiteral("File"));
    Save = named(File->addAction(QStringLiteral("&Save")), QStringLiteral("Save"));
    Quit = named(File->addAction(QStringLiteral("&Quit")), QStringLiteral("Quit"));
    Edit = named(bar->addMenu(QStringLiteral("&Edit")), QStringLiteral("Edit"));
    Copy = named(Edit->addAction(QStringLiteral("&Copy")), QStringLiteral("Copy"));
    Cut = named(Edit->addAction(QStringLiteral("C&ut")), QStringLiteral("Cut"));
    Paste = named(Edit->addAction(QStringLiteral("&Paste")), QStringLiteral("Paste"));
    GoTo = named(bar->addMenu(QStringLiteral("&Go To")), QStringLiteral("GoTo"));
    ToMovies = named(GoTo->addAction(QStringLiteral("&Movies")), QStringLiteral("ToMovies"));
    ToAudio = named(GoTo->addAction(QStringLiteral("&Audio")), QStringLiteral("ToAudio"));
    ToLights = named(GoTo->addAction(QStringLiteral("&Lights")), QStringLiteral("ToLights"));
    ToVideoCapture = named(GoTo->addAction(QStringLiteral("Video &Capture")), QStringLiteral("ToVideoCapture"));
    Events = named(bar->addMenu(QStringLiteral("E&vents")), QStringLiteral("Events"));
    AddEvent = named(Events->addAction(QStringLiteral("&Add")), QStringLiteral("AddEvent"));
    EditEvent = named(Events->addAction(QStringLiteral("&Edit")), QStringLiteral("EditEvent"));
    RemoveEvent = named(Events->addAction(QStringLiteral("&Remove")), QStringLiteral("RemoveEvent"));

    Label1 = named(new QLabel(QStringLiteral("Scene"), this), QStringLiteral("Label1"));
    LabelNumScene = named(new QLabel(this), QStringLiteral("LabelNumScene"));
    Label2 = named(new QLabel(QStringLiteral("Subscene"), this), QStringLiteral("Label2"));
    LabelNumPart = named(new QLabel(this), QStringLiteral("LabelNumPart"));
    LabelName = named(new QLabel(this), QStringLiteral("LabelName"));
    ListBotsInteraction = named(new QListWidget(this), QStringLiteral("ListBotsInteraction"));
    ListRemarks = named(new QListWidget(this), QStringLiteral("ListRemarks"));
    ListBotsInteraction->setMinimumSize(160, 240);
    ListRemarks->setMinimumSize(300, 240);
    CommandAdd = named(new QPushButton(QStringLiteral("Add"), this), QStringLiteral("CommandAdd"));
    CommandRemove = named(new QPushButton(QStringLiteral("Remove"), this), QStringLiteral("CommandRemove"));
    CommandClose = named(new QPushButton(QStringLiteral("Close"), this), QStringLiteral("CommandClose"));
    for (QPushButton* b : {CommandAdd, CommandRemove, CommandClose})
        b->setAutoDefault(false);

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    auto* header = new QHBoxLayout;
    for (QWidget* w : {static_cast<QWidget*>(Label1), static_cast<QWidget*>(LabelNumScene),
                       static_cast<QWidget*>(Label2), static_cast<QWidget*>(LabelNumPart),
                       static_cast<QWidget*>(LabelName)})
        header->addWidget(w);
    header->addStretch();
    layout->addLayout(header);
    auto* lists = new QHBoxLayout;
    lists->addWidget(ListBotsInteraction);
    lists->addWidget(ListRemarks, 1);
    layout->addLayout(lists);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(CommandAdd);
    buttons->addWidget(CommandRemove);
    buttons->addStretch();
    buttons->addWidget(CommandClose);
    layout->addLayout(buttons);

    connect(ListBotsInteraction, &QListWidget::itemClicked, this, &FormBotsInteraction::ListBotsInteraction_Click);
    connect(ListRemarks, &QListWidget::itemClicked, this, &FormBotsInteraction::ListRemarks_Click);
    // The arrow keys select a row as well: a change of the current row in the
    // list that has the focus counts as a click on that row.
    connect(ListBotsInteraction, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && ListBotsInteraction->hasFocus())
            ListBotsInteraction_Click(ListBotsInteraction->item(row));
    });
    connect(ListRemarks, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && ListRemarks->hasFocus())
            ListRemarks_Click(ListRemarks->item(row));
    });
    connect(ListBotsInteraction, &QListWidget::itemDoubleClicked, this,
            &FormBotsInteraction::ListBotsInteraction_DblClick);
    connect(ListRemarks, &QListWidget::itemDoubleClicked, this, &FormBotsInteraction::ListRemarks_DblClick);
    connect(CommandAdd, &QPushButton::clicked, this, &FormBotsInteraction::CommandAdd_Click);
    connect(CommandRemove, &QPushButton::clicked, this, &FormBotsInteraction::CommandRemove_Click);
    connect(CommandClose, &QPushButton::clicked, this, &FormBotsInteraction::CommandClose_Click);
    connect(AddEvent, &QAction::triggered, this, &FormBotsInteraction::AddEvent_Click);
    connect(EditEvent, &QAction::triggered, this, &FormBotsInteraction::EditEvent_Click);
    connect(RemoveEvent, &QAction::triggered, this, &FormBotsInteraction::RemoveEvent_Click);
    connect(Copy, &QAction::triggered, this, &FormBotsInteraction::Copy_Click);
    connect(Cut, &QAction::triggered, this, &FormBotsInteraction::Cut_Click);
    connect(Paste, &QAction::triggered, this, &FormBotsInteraction::Paste_Click);
    connect(Save, &QAction::triggered, this, &FormBotsInteraction::Save_Click);
    connect(Quit, &QAction::triggered, this, &FormBotsInteraction::Quit_Click);
    for (QAction* entry : {ToMovies, ToAudio, ToLights, ToVideoCapture})
        connect(entry, &QAction::triggered, this, &FormBotsInteraction::GoTo_Click);
    Form_Load();
}

CPart& FormBotsInteraction::currentPart() const
{
    return *gScenes.Item(gCurrentScene + 1)->PartList.Item(gCurrentPart + 1);
}

int FormBotsInteraction::selectedRow() const
{
    const auto selected = ListBotsInteraction->selectedItems();
    return selected.isEmpty() ? -1 : ListBotsInteraction->row(selected.first());
}

int FormBotsInteraction::ruleCount() const
{
    int count = 0;
    Skip([&] { count = currentPart().BotEvents.Count(); });
    return count;
}

void FormBotsInteraction::Form_Load()
{
    LabelNumScene->setText(QString::number(gCurrentScene));
    LabelNumPart->setText(QString::number(gCurrentPart));
    Skip([&] { LabelName->setText(currentPart().m_strName); });
    FillLists();
}

void FormBotsInteraction::FillLists()
{
    ListBotsInteraction->clear();
    ListRemarks->clear();
    Skip([&] {
        const CPart& part = currentPart();
        for (int k = 1; k <= part.BotEvents.Count(); ++k) {
            ListBotsInteraction->addItem(BuildBotEventID(gCurrentScene + 1, gCurrentPart + 1, k, true));
            ListRemarks->addItem(part.BotEvents.Item(k)->m_strRemarks);
        }
    });
    ListBotsInteraction->addItem(QString());
    ListRemarks->addItem(QString());
}

void FormBotsInteraction::ListBotsInteraction_Click(QListWidgetItem* item)
{
    ListRemarks->setCurrentRow(ListBotsInteraction->row(item));
}

void FormBotsInteraction::ListRemarks_Click(QListWidgetItem* item)
{
    ListBotsInteraction->setCurrentRow(ListRemarks->row(item));
}

void FormBotsInteraction::ListBotsInteraction_DblClick(QListWidgetItem*) { EditEvent_Click(); }

void FormBotsInteraction::ListRemarks_DblClick(QListWidgetItem*) { EditEvent_Click(); }

void FormBotsInteraction::openRuleDialog(qint16 mode)
{
    // The index of the rule worked on: the selected row, or the number of rows
    // of the list, the empty row included, when the empty row is selected; -1
    // with no row selected.
    const int row = selectedRow();
    const int rules = ruleCount();
    const bool ruleRow = row >= 0 && row < rules;
    gRuleIndex = static_cast<qint16>(row >= 0 && !ruleRow ? ListBotsInteraction->count() : row);
    gRuleEditMode = mode;
    {
        FormAddEditBotInter dialog(this);
        dialog.exec();
    }
    if (!gRuleAccepted)
        return;
    auto event = std::make_shared<CBotEvent>();
    StoreBotRule(*event);
    // Added ahead of the selected rule, or at the end from the empty row or with
    // no row selected; an edit from there has no rule to replace.
    if (mode == 1)
        Skip([&] { currentPart().AddBotEvent(event, ruleRow ? row + 1 : rules + 1); });
    else if (ruleRow)
        Skip([&] { CopyBotEvent(*currentPart().BotEvents.Item(row + 1), *event); });
    FillLists();
    gRuleAccepted = false;
}

void FormBotsInteraction::CommandAdd_Click() { openRuleDialog(1); }

void FormBotsInteraction::AddEvent_Click() { openRuleDialog(1); }

void FormBotsInteraction::EditEvent_Click() { openRuleDialog(2); }

void FormBotsInteraction::CommandRemove_Click()
{
    const int row = selectedRow();
    if (row < 0 || row >= ruleCount())
        return;   // no rule row selected: the empty row or none
    if (MsgBox(QStringLiteral("Delete Event?"), MsgButtons::YesNo, MsgIcon::Question) != MsgAnswer::Yes)
        return;
    gDirty = true;
    Skip([&] { currentPart().RemoveBotEvent(row + 1); });
    FillLists();
}

void FormBotsInteraction::RemoveEvent_Click() { CommandRemove_Click(); }

void FormBotsInteraction::CommandClose_Click() { reject(); }

// Copy puts the selected robot rule alone on the clipboard that the main window
// shares; with no rule row selected the clipboard stays as it was.
void FormBotsInteraction::Copy_Click()
{
    const int row = selectedRow();
    if (row < 0 || row >= ruleCount())
        return;
    gClipboard.Clear();
    auto item = std::make_shared<CClipboardItem>();
    item->BotEvent = std::make_shared<CBotEvent>();
    Skip([&] { CopyBotEvent(*item->BotEvent, *currentPart().BotEvents.Item(row + 1)); });
    gClipboard.Add(item);
}

// Cut is Copy and then the removal of the rule, with no question.
void FormBotsInteraction::Cut_Click()
{
    const int row = selectedRow();
    if (row < 0 || row >= ruleCount())
        return;
    Copy_Click();
    Skip([&] { currentPart().RemoveBotEvent(row + 1); });
    FillLists();
}

// Paste inserts a fresh copy of every robot rule of the clipboard ahead of the
// selected row, keeping their order; with the empty row or no row selected they
// go to the end. Rules of the main window's kind on the clipboard are skipped:
// a subscene's rule cannot become a robot rule.
void FormBotsInteraction::Paste_Click()
{
    const int row = selectedRow();
    const int rules = ruleCount();
    const int first = (row >= 0 && row < rules ? row : rules) + 1;
    int pasted = 0;
    for (const auto& entry : gClipboard) {
        if (!entry->BotEvent)
            continue;
        auto copy = std::make_shared<CBotEvent>();
        CopyBotEvent(*copy, *entry->BotEvent);
        Skip([&] { currentPart().AddBotEvent(copy, first + pasted); });
        ++pasted;
    }
    FillLists();
}

void FormBotsInteraction::Save_Click() { SaveFromBotForm(this); }

// Quit, as in the dialog of one robot rule, clears the accepted flag.
void FormBotsInteraction::Quit_Click()
{
    gRuleAccepted = false;
    reject();
}

void FormBotsInteraction::GoTo_Click() { reject(); }
