#include "devices/FormDigitalIOSetup.h"
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "devices/DeviceRows.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/OnError.h"

FormDigitalIOSetup::FormDigitalIOSetup(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormDigitalIOSetup"));
    setWindowTitle(QStringLiteral("Digital IO Setup"));
    LabelNCards = named(new QLabel(QStringLiteral("Number of Digital IO Cards:"), this), QStringLiteral("LabelNCards"));
    PlaceTwips(LabelNCards, 240, 240, 2400, 315);
    ComboNCards = named(new QComboBox(this), QStringLiteral("ComboNCards"));
    PlaceTwips(ComboNCards, 2760, 240, 900, 315);
    for (int i = 0; i < 4; ++i) {
        ControlRow row(this, i, 840 + i * 480);
        LabelCard << row.label(QStringLiteral("LabelCard"), QStringLiteral("Card %1:").arg(i + 1), 240, 900);
        LabelID << row.label(QStringLiteral("LabelID"), QStringLiteral("Card ID:"), 1200, 900);
        TextID << row.text(QStringLiteral("TextID"), 2100, 720);
        LabelNIn << row.label(QStringLiteral("LabelNIn"), QStringLiteral("Number of Inputs:"), 3000, 1500);
        TextNIn << row.text(QStringLiteral("TextNIn"), 4500, 720);
        LabelNOut << row.label(QStringLiteral("LabelNOut"), QStringLiteral("Number of Outputs:"), 5400, 1560);
        TextNOut << row.text(QStringLiteral("TextNOut"), 6960, 720);
    }
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    CommandOK->setDefault(true);
    PlaceTwips(CommandOK, 2640, 2880, 1200, 375);
    PlaceTwips(CommandCancel, 4080, 2880, 1200, 375);
    connect(ComboNCards, &QComboBox::activated, this, &FormDigitalIOSetup::ComboNCards_Click);
    connect(CommandOK, &QPushButton::clicked, this, &FormDigitalIOSetup::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormDigitalIOSetup::CommandCancel_Click);
    resize(Twips(7920), Twips(3700));
}

void FormDigitalIOSetup::showEvent(QShowEvent* event)
{
    if (!m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::showEvent(event);
}

void FormDigitalIOSetup::showCards(int cards, bool fill)
{
    for (int i = 0; i < 4; ++i) {
        const bool inUse = i < cards;
        for (QWidget* w : {static_cast<QWidget*>(LabelCard[i]), static_cast<QWidget*>(LabelID[i]),
                           static_cast<QWidget*>(TextID[i]), static_cast<QWidget*>(LabelNIn[i]),
                           static_cast<QWidget*>(TextNIn[i]), static_cast<QWidget*>(LabelNOut[i]),
                           static_cast<QWidget*>(TextNOut[i])})
            w->setVisible(inUse);
        if (inUse && fill) {
            TextID[i]->setText(QString::number(gDigitalIOCardID(i)));
            TextNIn[i]->setText(QString::number(gDigitalIONIn(i)));
            TextNOut[i]->setText(QString::number(gDigitalIONOut(i)));
        }
    }
}

void FormDigitalIOSetup::Form_Load()
{
    gSuppressComboEvents = true;
    gMainConfig.m_bUpdate = false;
    if (gNDigitalIO > 4)
        gNDigitalIO = 4;
    if (gNDigitalIO < 0)
        gNDigitalIO = 0;
    ComboNCards->clear();
    for (int n = 1; n <= 4; ++n)
        ComboNCards->addItem(QString::number(n));
    // With no cards, as an older file leaves it, nothing is selected.
    ComboNCards->setCurrentIndex(gNDigitalIO - 1);
    showCards(gNDigitalIO, true);
    gSuppressComboEvents = false;
}

// The rows newly shown are filled from the tables, not left blank.
void FormDigitalIOSetup::ComboNCards_Click()
{
    if (gSuppressComboEvents)
        return;
    showCards(ComboNCards->currentIndex() + 1, true);
}

void FormDigitalIOSetup::CommandOK_Click()
{
    gDirty = true;
    gNDigitalIO = ComboNCards->currentIndex() + 1;
    for (int i = 0; i < gNDigitalIO; ++i) {
        Skip([&] { gDigitalIOCardID(i) = ToLong(At(TextID, i)->text()); });
        Skip([&] { gDigitalIONIn(i) = ToLong(At(TextNIn, i)->text()); });
        Skip([&] { gDigitalIONOut(i) = ToLong(At(TextNOut, i)->text()); });
    }
    gMainConfig.m_bUpdate = true;
    accept();
}

void FormDigitalIOSetup::CommandCancel_Click() { reject(); }
