#include "mainwindow/FormName.h"
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"

FormName::FormName(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormName"));
    setWindowTitle(QStringLiteral("Performance Configuration Name"));
    Label1 = new QLabel(QStringLiteral("Configuration Name:"), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    TextName = new QLineEdit(this);
    TextName->setObjectName(QStringLiteral("TextName"));
    TextName->setMinimumWidth(320);
    Label1->setBuddy(TextName);
    CommandOK = new QPushButton(QStringLiteral("OK"), this);
    CommandOK->setObjectName(QStringLiteral("CommandOK"));
    CommandOK->setDefault(true);
    CommandCancel = new QPushButton(QStringLiteral("Cancel"), this);
    CommandCancel->setObjectName(QStringLiteral("CommandCancel"));

    auto* grid = new QGridLayout(this);
    grid->addWidget(Label1, 0, 0);
    grid->addWidget(TextName, 0, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CommandOK);
    buttons->addWidget(CommandCancel);
    grid->addLayout(buttons, 1, 0, 1, 2);

    connect(CommandOK, &QPushButton::clicked, this, &FormName::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormName::CommandCancel_Click);
    Form_Load();
}

void FormName::Form_Load()
{
    gMainConfig.m_bUpdate = false;
    TextName->setText(gMainConfig.m_strName);
}

void FormName::CommandOK_Click()
{
    gDirty = true;
    if (!TextName->text().isEmpty()) {
        gMainConfig.m_strName = TextName->text();
        gMainConfig.m_bUpdate = true;
    }
    accept();
}

void FormName::CommandCancel_Click() { reject(); }
