#include "robots/FormAddEditBotInter.h"
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include "robots/ModuleBotSave.h"
#include "rules/ModuleRuleEdit.h"
#include "support/Controls.h"
#include "support/ModuleGUI.h"

namespace {

QComboBox* combo(QWidget* owner, const QString& name)
{
    auto* box = named(new QComboBox(owner), name);
    box->setMinimumWidth(140);
    return box;
}

} // namespace

FormAddEditBotInter::FormAddEditBotInter(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormAddEditBotInter"));
    setWindowTitle(QStringLiteral("Add RukaBot Interaction Event"));

    auto* bar = new QMenuBar(this);
    File = named(bar->addMenu(QStringLiteral("&File")), QStringLiteral("File"));
    Save = named(File->addAction(QStringLiteral("&Save")), QStringLiteral("Save"));
    Quit = named(File->addAction(QStringLiteral("&Quit")), QStringLiteral("Quit"));

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);

    // Header: scene, subscene, rule and name, left empty by the empty load.
    auto* header = new QHBoxLayout;
    LabelNumScene = named(new QLabel(this), QStringLiteral("LabelNumScene"));
    LabelNumPart = named(new QLabel(this), QStringLiteral("LabelNumPart"));
    LabelNumEvent = named(new QLabel(this), QStringLiteral("LabelNumEvent"));
    LabelName = named(new QLabel(this), QStringLiteral("LabelName"));
    header->addWidget(named(new QLabel(QStringLiteral("Scene"), this), QStringLiteral("LabelScene")));
    header->addWidget(LabelNumScene);
    header->addWidget(named(new QLabel(QStringLiteral("Subscene"), this), QStringLiteral("LabelPart")));
    header->addWidget(LabelNumPart);
    header->addWidget(named(new QLabel(QStringLiteral("Event"), this), QStringLiteral("LabelEvent")));
    header->addWidget(LabelNumEvent);
    header->addWidget(LabelName);
    header->addStretch();
    layout->addLayout(header);

    auto* grid = new QGridLayout;
    int row = 0;
    auto addRow = [&](const QString& caption, const QString& labelName, QWidget* field, int column) {
        grid->addWidget(named(new QLabel(caption, this), labelName), row, column * 2);
        grid->addWidget(field, row, column * 2 + 1);
    };
    ComboInterType = combo(this, QStringLiteral("ComboInterType"));
    ComboSource = combo(this, QStringLiteral("ComboSource"));
    ComboTarget = combo(this, QStringLiteral("ComboTarget"));
    addRow(QStringLiteral("Event Type"), QStringLiteral("LabelInterType"), ComboInterType, 0);
    ++row;
    addRow(QStringLiteral("Source"), QStringLiteral("LabelSource"), ComboSource, 0);
    ++row;
    addRow(QStringLiteral("RukaBot"), QStringLiteral("LabelTarget"), ComboTarget, 0);
    ++row;
    ComboItem1 = combo(this, QStringLiteral("ComboItem1"));
    ComboItem2 = combo(this, QStringLiteral("ComboItem2"));
    ComboItem3 = combo(this, QStringLiteral("ComboItem3"));
    ComboItem4 = combo(this, QStringLiteral("ComboItem4"));
    ComboItem5 = combo(this, QStringLiteral("ComboItem5"));
    ComboItem6 = combo(this, QStringLiteral("ComboItem6"));
    TextMIDIFile1 = named(new QLineEdit(this), QStringLiteral("TextMIDIFile1"));
    TextMIDIFile2 = named(new QLineEdit(this), QStringLiteral("TextMIDIFile2"));
    TextMIDIFile3 = named(new QLineEdit(this), QStringLiteral("TextMIDIFile3"));
    TextMIDIFile4 = named(new QLineEdit(this), QStringLiteral("TextMIDIFile4"));
    TextMIDIFile5 = named(new QLineEdit(this), QStringLiteral("TextMIDIFile5"));
    TextMIDIFile6 = named(new QLineEdit(this), QStringLiteral("TextMIDIFile6"));
    CommandBrowse1 = named(new QPushButton(QStringLiteral("..."), this), QStringLiteral("CommandBrowse1"));
    CommandBrowse2 = named(new QPushButton(QStringLiteral("..."), this), QStringLiteral("CommandBrowse2"));
    CommandBrowse3 = named(new QPushButton(QStringLiteral("..."), this), QStringLiteral("CommandBrowse3"));
    CommandBrowse4 = named(new QPushButton(QStringLiteral("..."), this), QStringLiteral("CommandBrowse4"));
    CommandBrowse5 = named(new QPushButton(QStringLiteral("..."), this), QStringLiteral("CommandBrowse5"));
    CommandBrowse6 = named(new QPushButton(QStringLiteral("..."), this), QStringLiteral("CommandBrowse6"));
    const QList<QLineEdit*> files = {TextMIDIFile1, TextMIDIFile2, TextMIDIFile3, TextMIDIFile4, TextMIDIFile5, TextMIDIFile6};
    const QList<QComboBox*> items = {ComboItem1, ComboItem2, ComboItem3, ComboItem4, ComboItem5, ComboItem6};
    const QList<QPushButton*> browse = {CommandBrowse1, CommandBrowse2, CommandBrowse3,
                                        CommandBrowse4, CommandBrowse5, CommandBrowse6};
    for (int n = 1; n <= 6; ++n) {
        addRow(QStringLiteral("Item %1").arg(n), QStringLiteral("LabelItem%1").arg(n), items[n - 1], 0);
        addRow(QStringLiteral("MIDI File %1").arg(n), QStringLiteral("LabelMIDIFile%1").arg(n), files[n - 1], 1);
        files[n - 1]->setMinimumWidth(240);
        grid->addWidget(browse[n - 1], row, 4);
        browse[n - 1]->setAutoDefault(false);
        ++row;
    }
    ComboItemEmbrague = combo(this, QStringLiteral("ComboItemEmbrague"));
    ComboItemSelect = combo(this, QStringLiteral("ComboItemSelect"));
    addRow(QStringLiteral("Embrague"), QStringLiteral("LabelItemEmbrague"), ComboItemEmbrague, 0);
    CheckLoop = named(new QCheckBox(QStringLiteral("Loop"), this), QStringLiteral("CheckLoop"));
    grid->addWidget(CheckLoop, row, 3);
    ++row;
    addRow(QStringLiteral("Item (Select)"), QStringLiteral("LabelItemSelect"), ComboItemSelect, 0);
    ++row;
    TextRemarks = named(new QLineEdit(this), QStringLiteral("TextRemarks"));
    grid->addWidget(named(new QLabel(QStringLiteral("Remarks"), this), QStringLiteral("LabelRemarks")), row, 0);
    grid->addWidget(TextRemarks, row, 1, 1, 4);
    layout->addLayout(grid);

    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    CommandOK->setAutoDefault(false);
    CommandCancel->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CommandOK);
    buttons->addWidget(CommandCancel);
    layout->addLayout(buttons);

    connect(ComboInterType, &QComboBox::activated, this, &FormAddEditBotInter::ComboInterType_Change);
    connect(CommandOK, &QPushButton::clicked, this, &FormAddEditBotInter::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormAddEditBotInter::CommandCancel_Click);
    connect(CommandBrowse1, &QPushButton::clicked, this, &FormAddEditBotInter::CommandBrowse1_Click);
    connect(CommandBrowse2, &QPushButton::clicked, this, &FormAddEditBotInter::CommandBrowse2_Click);
    connect(CommandBrowse3, &QPushButton::clicked, this, &FormAddEditBotInter::CommandBrowse3_Click);
    connect(CommandBrowse4, &QPushButton::clicked, this, &FormAddEditBotInter::CommandBrowse4_Click);
    connect(CommandBrowse5, &QPushButton::clicked, this, &FormAddEditBotInter::CommandBrowse5_Click);
    connect(CommandBrowse6, &QPushButton::clicked, this, &FormAddEditBotInter::CommandBrowse6_Click);
    connect(Save, &QAction::triggered, this, &FormAddEditBotInter::Save_Click);
    connect(Quit, &QAction::triggered, this, &FormAddEditBotInter::Quit_Click);
    Form_Load();
}

// Nothing is loaded: the lists stay empty, the labels blank.
void FormAddEditBotInter::Form_Load() {}

void FormAddEditBotInter::ComboInterType_Change() {}

// Stores nothing and leaves the dialog open.
void FormAddEditBotInter::CommandOK_Click() {}

void FormAddEditBotInter::CommandCancel_Click()
{
    gRuleAccepted = false;
    QDialog::reject();
    if (QWidget* rules = parentWidget())
        rules->update();
}

void FormAddEditBotInter::Quit_Click() { CommandCancel_Click(); }

void FormAddEditBotInter::reject() { CommandCancel_Click(); }

void FormAddEditBotInter::browseMIDIFile(QLineEdit* text)
{
    const QString path = ShowOpenDialog(this, QStringLiteral("CommonDialogMID"),
                                        QStringLiteral("MIDI files (*.mid)|*.mid"), QStringLiteral(".mid"));
    if (!path.isEmpty())
        text->setText(path);
}

void FormAddEditBotInter::CommandBrowse1_Click() { browseMIDIFile(TextMIDIFile1); }
void FormAddEditBotInter::CommandBrowse2_Click() { browseMIDIFile(TextMIDIFile2); }
void FormAddEditBotInter::CommandBrowse3_Click() { browseMIDIFile(TextMIDIFile3); }
void FormAddEditBotInter::CommandBrowse4_Click() { browseMIDIFile(TextMIDIFile4); }
void FormAddEditBotInter::CommandBrowse5_Click() { browseMIDIFile(TextMIDIFile5); }
void FormAddEditBotInter::CommandBrowse6_Click() { browseMIDIFile(TextMIDIFile6); }

void FormAddEditBotInter::Save_Click() { SaveFromBotForm(this); }
