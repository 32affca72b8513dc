#include "devices/FormMIDIPorts.h"
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include "devices/DeviceRows.h"
#include "devices/RuleMembers.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/CheckedArray.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

namespace {

using Positions = CheckedArray<qint16, 0, 7>;

// Each row's place among the inputs or among the outputs, by the directions
// the record holds; -1 for a row with neither.
Positions portPositions()
{
    Positions positions;
    qint16 inputs = 0, outputs = 0;
    for (int i = 0; i <= 7; ++i) {
        const qint16 direction = gMainConfig.m_iPortInOut(i);
        if (direction == 1)
            positions(i) = inputs++;
        else if (direction == 2)
            positions(i) = outputs++;
        else
            positions(i) = -1;
    }
    return positions;
}

// The pass that was meant to keep a rule on its port when the rows change:
// it reads the direction and port of a rule by name. A rule record has no
// such members, so each read fails, its statement is skipped and no rule changes.
void movePortOfRule(CEvent& rule, const Positions& oldPositions, const Positions& newPositions)
{
    qint16 direction = 1;
    if (Holds([&] { return IntegerMember(rule, QStringLiteral("m_iType")) == 0; }))
        direction = 2;
    for (int k = 0; k <= 7; ++k) {
        if (Holds([&] {
                return oldPositions(k) == IntegerMember(rule, QStringLiteral("m_iPort"))
                       && gMainConfig.m_iPortInOut(k) == direction;
            })) {
            Skip([&] { IntegerMember(rule, QStringLiteral("m_iPort")) = newPositions(k); });
            break;
        }
    }
}

} // namespace

FormMIDIPorts::FormMIDIPorts(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormMIDIPorts"));
    setWindowTitle(QStringLiteral("Performance Ports Configuration"));
    FramePorts = named(new QGroupBox(QStringLiteral("Generic MIDI Ports"), this), QStringLiteral("FramePorts"));
    PlaceTwips(FramePorts, 120, 120, 7800, 4920);
    const QStringList heads = {QStringLiteral("Label:"), QStringLiteral("Port:"), QStringLiteral("IN"), QStringLiteral("OUT")};
    const int headLeft[4] = {1800, 4440, 5640, 6360};
    for (int c = 0; c < heads.size(); ++c)
        PlaceTwips(named(new QLabel(heads[c], FramePorts), arrayName(QStringLiteral("LabelHead"), c)),
                   headLeft[c], 300, 900, 315);
    for (int i = 0; i < 8; ++i) {
        ControlRow row(FramePorts, i, 720 + i * 480);
        Label4 << row.label(QStringLiteral("Label4"), QStringLiteral("Generic Port %1:").arg(i + 1), 120, 1600);
        TextMIDIPortLabel << row.text(QStringLiteral("TextMIDIPortLabel"), 1800, 2520);
        TextPortNumber << row.text(QStringLiteral("TextPortNumber"), 4440, 960);
        const InOutButtons pair = row.inOut(QString(), 5640, 1440);
        // No captions: the buttons stand under the heads "IN" and "OUT".
        pair.in->setText(QString());
        pair.out->setText(QString());
        PlaceTwips(pair.in, 5700, 720 + i * 480, 300, 315);
        PlaceTwips(pair.out, 6420, 720 + i * 480, 300, 315);
        optIn << pair.in;
        optOut << pair.out;
        row.setVisible(false);
        connect(pair.in, &QRadioButton::clicked, this, [this, i] { optIn_Click(i); });
        connect(pair.out, &QRadioButton::clicked, this, [this, i] { optOut_Click(i); });
    }
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    CommandOK->setDefault(true);
    PlaceTwips(CommandOK, 2640, 5220, 1200, 375);
    PlaceTwips(CommandCancel, 4080, 5220, 1200, 375);
    connect(CommandOK, &QPushButton::clicked, this, &FormMIDIPorts::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormMIDIPorts::CommandCancel_Click);
    resize(Twips(8100), Twips(5900));
}

void FormMIDIPorts::showEvent(QShowEvent* event)
{
    if (!m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::showEvent(event);
}

void FormMIDIPorts::Form_Load()
{
    CMainConfig& cfg = gMainConfig;
    cfg.m_bUpdate = false;
    for (int i = 0; i < iNumMIDIs && i < 8; ++i) {
        Label4[i]->show();
        TextMIDIPortLabel[i]->show();
        TextPortNumber[i]->show();
        optIn[i]->show();
        optOut[i]->show();
    }
    // Every row is filled, also those not on show.
    for (int i = 0; i <= 7; ++i) {
        if (cfg.m_iMIDIPort(i) == -1) {
            TextPortNumber[i]->clear();
            optOut[i]->setChecked(true);
        } else {
            TextPortNumber[i]->setText(QString::number(cfg.m_iMIDIPort(i)));
            if (cfg.m_iPortInOut(i) == 1) {
                optIn[i]->setChecked(true);
                iPortDirection[i] = 1;
            } else {
                optOut[i]->setChecked(true);
                iPortDirection[i] = 2;
            }
        }
        TextMIDIPortLabel[i]->setText(cfg.m_strMIDIPortLabel(i));
    }
}

void FormMIDIPorts::optIn_Click(int index) { iPortDirection[index] = 1; }

void FormMIDIPorts::optOut_Click(int index) { iPortDirection[index] = 2; }

void FormMIDIPorts::CommandOK_Click()
{
    CMainConfig& cfg = gMainConfig;
    // Set before the checks: a stop below leaves the performance marked changed.
    gDirty = true;

    for (int i = 0; i <= 7; ++i) {
        const QString n = QString::number(i + 1);
        const QString label = TextMIDIPortLabel[i]->text().trimmed();
        const QString port = TextPortNumber[i]->text().trimmed();
        if (label.isEmpty() && !port.isEmpty()) {
            if (Holds([&] { return ToInteger(port) >= 0; }))
                MsgBoxExclamation(QStringLiteral("You have to enter a label for MIDI port ") + n);
            else
                MsgBoxExclamation(QStringLiteral("You have to enter a valid port number for MIDI port ") + n);
            return;
        }
        if (!label.isEmpty() && Holds([&] { return port.isEmpty() || ToInteger(port) < 0; })) {
            MsgBoxExclamation(QStringLiteral("You have to enter a valid port number for MIDI port ") + n);
            return;
        }
    }

    const Positions oldPositions = portPositions();

    for (int i = 0; i <= 7; ++i) {
        if (TextPortNumber[i]->text().trimmed().isEmpty()) {
            cfg.m_iMIDIPort(i) = -1;
            cfg.m_iPortInOut(i) = 0;
        } else {
            cfg.m_iPortInOut(i) = optIn[i]->isChecked() ? 1 : 2;
            Skip([&] { cfg.m_iMIDIPort(i) = ToInteger(TextPortNumber[i]->text()); });
        }
        cfg.m_strMIDIPortLabel(i) = TextMIDIPortLabel[i]->text();
    }

    // The packed lists: the rows with a port, in row order, by direction.
    for (int i = 0; i <= 7; ++i) {
        cfg.m_iInMIDIPort(i) = -1;
        cfg.m_iOutMIDIPort(i) = -1;
        cfg.m_strInMIDIPortLabel(i).clear();
        cfg.m_strOutMIDIPortLabel(i).clear();
    }
    int inputs = 0, outputs = 0;
    for (int i = 0; i <= 7; ++i) {
        if (cfg.m_iPortInOut(i) == 0)
            continue;
        if (cfg.m_iPortInOut(i) == 1) {
            cfg.m_iInMIDIPort(inputs) = cfg.m_iMIDIPort(i);
            cfg.m_strInMIDIPortLabel(inputs) = cfg.m_strMIDIPortLabel(i);
            ++inputs;
        } else {
            cfg.m_iOutMIDIPort(outputs) = cfg.m_iMIDIPort(i);
            cfg.m_strOutMIDIPortLabel(outputs) = cfg.m_strMIDIPortLabel(i);
            ++outputs;
        }
    }

    const Positions newPositions = portPositions();

    for (const auto& scene : gScenes)
        for (const auto& part : scene->PartList)
            for (const auto& rule : part->AudioEvents)
                movePortOfRule(*rule, oldPositions, newPositions);
    for (const auto& rule : gGlobalEvents)
        movePortOfRule(*rule, oldPositions, newPositions);

    cfg.m_bUpdate = true;
    accept();
}

void FormMIDIPorts::CommandCancel_Click() { reject(); }
