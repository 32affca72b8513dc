#include "mainwindow/FormTalpor.h"
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/OnError.h"

FormTalpor::FormTalpor(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormTalpor"));
    setWindowTitle(QStringLiteral("TalporMorax Configuration"));
    Label1 = named(new QLabel(QStringLiteral("TalporMor\u00E1x COM Port:"), this), QStringLiteral("Label1"));
    TextTalporPort = named(new QLineEdit(this), QStringLiteral("TextTalporPort"));
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandOK->setDefault(true);
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));

    auto* grid = new QGridLayout(this);
    grid->addWidget(Label1, 0, 0);
    grid->addWidget(TextTalporPort, 0, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CommandOK);
    buttons->addWidget(CommandCancel);
    grid->addLayout(buttons, 1, 0, 1, 2);

    connect(CommandOK, &QPushButton::clicked, this, &FormTalpor::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormTalpor::CommandCancel_Click);
    Form_Load();
}

void FormTalpor::Form_Load()
{
    gMainConfig.m_bUpdate = false;
    TextTalporPort->setText(QString::number(gMainConfig.m_iTalporPort));
}

void FormTalpor::CommandOK_Click()
{
    gDirty = true;
    Skip([&] { gMainConfig.m_iTalporPort = ToInteger(TextTalporPort->text()); });
    gMainConfig.m_bUpdate = true;
    accept();
}

void FormTalpor::CommandCancel_Click() { reject(); }
