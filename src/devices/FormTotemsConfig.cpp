#include "devices/FormTotemsConfig.h"
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cmath>
#include "devices/DeviceRows.h"
#include "devices/RuleMembers.h"
#include "files/CBotEvent.h"
#include "model/CLightsEvent.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"
#include "support/RuntimeError.h"

namespace {

constexpr qint16 kJoystickSource = 2;

// A floating-point value as an Integer: rounded half to even, overflow an error.
qint16 toInteger(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -32768 && rounded <= 32767))
        throw ConversionError(QStringLiteral("Overflow"));
    return static_cast<qint16>(rounded);
}

// The members are reached by name: a rule has m_iSourceType and m_iItem only,
// so its m_iItem2 to m_iItem4 fail and are skipped; a robot rule has neither
// m_iSourceType nor m_iItem, its failing test counts as passed, and its
// m_iItem2 to m_iItem4 are raised whatever its source.
template <typename Rule>
void raiseItems(Rule& rule, qint16 oldAxes, qint16 delta)
{
    if (!Holds([&] { return IntegerMember(rule, QStringLiteral("m_iSourceType")) == kJoystickSource; }))
        return;
    for (const char* name : {"m_iItem", "m_iItem2", "m_iItem3", "m_iItem4"}) {
        const QString member = QString::fromLatin1(name);
        if (Holds([&] { return IntegerMember(rule, member) >= oldAxes; }))
            Skip([&] {
                qint16& item = IntegerMember(rule, member);
                item = AddIntegers(item, delta);
            });
    }
}

} // namespace

void RaiseJoystickItems(qint16 oldAxes, qint16 delta)
{
    for (const auto& scene : gScenes)
        for (const auto& part : scene->PartList) {
            for (const auto& rule : part->AudioEvents)
                raiseItems(*rule, oldAxes, delta);
            for (const auto& rule : part->LightsEvents)
                raiseItems(*rule, oldAxes, delta);
            for (const auto& rule : part->BotEvents)
                raiseItems(*rule, oldAxes, delta);
        }
}

FormTotemsConfig::FormTotemsConfig(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormTotemsConfig"));
    setWindowTitle(QStringLiteral("Joysticks Configuration"));
    const QStringList heads = {QStringLiteral("Joystick remap"), QStringLiteral("No. of Axis (1 - 6)"),
                               QStringLiteral("No. of Buttons (1 - 128)")};
    const int headLeft[3] = {1560, 3000, 4800};
    for (int c = 0; c < heads.size(); ++c)
        PlaceTwips(named(new QLabel(heads[c], this), arrayName(QStringLiteral("LabelHead"), c)),
                   headLeft[c], 240, 1800, 315);
    for (int i = 0; i < 4; ++i) {
        ControlRow row(this, i, 720 + i * 480);
        TextTotem << row.text(QStringLiteral("TextTotem"), 1560, 1200);
        const QString n = QString::number(i + 1);
        auto* label = named(new QLabel(QStringLiteral("Joystick ") + n + u':', this), QStringLiteral("Label") + n);
        auto* axes = named(new QLineEdit(this), QStringLiteral("TextAxis") + n);
        auto* buttons = named(new QLineEdit(this), QStringLiteral("TextButton") + n);
        PlaceTwips(label, 240, 720 + i * 480, 1200, 315);
        PlaceTwips(axes, 3000, 720 + i * 480, 1200, 315);
        PlaceTwips(buttons, 4800, 720 + i * 480, 1200, 315);
        m_labels << label;
        m_axes << axes;
        m_buttons << buttons;
    }
    Label1 = m_labels[0]; Label2 = m_labels[1]; Label3 = m_labels[2]; Label4 = m_labels[3];
    TextAxis1 = m_axes[0]; TextAxis2 = m_axes[1]; TextAxis3 = m_axes[2]; TextAxis4 = m_axes[3];
    TextButton1 = m_buttons[0]; TextButton2 = m_buttons[1]; TextButton3 = m_buttons[2]; TextButton4 = m_buttons[3];
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    CommandOK->setDefault(true);
    PlaceTwips(CommandOK, 2160, 2880, 1200, 375);
    PlaceTwips(CommandCancel, 3600, 2880, 1200, 375);
    connect(CommandOK, &QPushButton::clicked, this, &FormTotemsConfig::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormTotemsConfig::CommandCancel_Click);
    resize(Twips(6600), Twips(3700));
}

void FormTotemsConfig::showEvent(QShowEvent* event)
{
    if (!m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::showEvent(event);
}

void FormTotemsConfig::Form_Load()
{
    gMainConfig.m_bUpdate = false;
    for (int i = 0; i < 4; ++i)
        TextTotem[i]->setText(QString::number(gMainConfig.m_iTotemDevice(i)));
    // The remap boxes stay on show for all four joysticks: OK takes them all.
    for (int i = 0; i < 4; ++i) {
        const bool inUse = i < iNumTotems;
        for (QWidget* w : {static_cast<QWidget*>(m_labels[i]), static_cast<QWidget*>(m_axes[i]),
                           static_cast<QWidget*>(m_buttons[i])})
            w->setVisible(inUse);
        if (inUse) {
            m_axes[i]->setText(QString::number(gTotemAxes(i)));
            m_buttons[i]->setText(QString::number(gTotemButtons(i)));
        }
    }
}

void FormTotemsConfig::CommandOK_Click()
{
    CMainConfig& cfg = gMainConfig;
    // Every remap box is taken, also those of joysticks not in use.
    for (int i = 0; i < cfg.m_iNTotems; ++i)
        Skip([&] { cfg.m_iTotemDevice(i) = ToInteger(At(TextTotem, i)->text()); });
    if (cfg.m_iNTotems < 4)
        for (int i = cfg.m_iNTotems; i <= 3; ++i)
            Skip([&] { cfg.m_iTotemDevice(i) = ToInteger(At(TextTotem, i)->text()); });

    // Joystick by joystick; a stop keeps what the joysticks before it changed.
    for (int j = 1; j <= 4 && j <= iNumTotems; ++j) {
        double axes = 0;
        // The head of the column admits 1; the check wants 2 to 6.
        if (Holds([&] {
                axes = ToDouble(m_axes[j - 1]->text());
                return axes < 2 || axes > 6;
            })) {
            MsgBoxExclamation(QStringLiteral("Number of Axis must be between 2 and 6"));
            return;
        }
        if (axes > gTotemAxes(j - 1)) {
            const qint16 oldAxes = gTotemAxes(j - 1);
            qint16 delta = 0;
            Skip([&] { delta = toInteger(axes - oldAxes); });
            RaiseJoystickItems(oldAxes, delta);
        }
        Skip([&] { gTotemAxes(j - 1) = toInteger(axes); });
        double buttons = 0;
        if (Holds([&] {
                buttons = ToDouble(m_buttons[j - 1]->text());
                return buttons < 1 || buttons > 128;
            })) {
            MsgBoxExclamation(QStringLiteral("Number of Buttons must be between 1 and 128"));
            return;
        }
        Skip([&] { gTotemButtons(j - 1) = toInteger(buttons); });
    }
    gDirty = true;
    cfg.m_bUpdate = true;
    accept();
}

void FormTotemsConfig::CommandCancel_Click() { reject(); }
