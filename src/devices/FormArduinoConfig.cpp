#include "devices/FormArduinoConfig.h"
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "devices/FormArduinoIO.h"
#include "devices/DeviceRows.h"
#include "model/CArduinoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/NumberFormat.h"
#include "support/OnError.h"

namespace {

// Row i stands 480 twips below row i - 1, under the column heads.
constexpr int kColumnHeadTop = 240;
constexpr int kRowHeight = 315;
constexpr int RowTop(int row) { return 600 + row * 480; }

// Columns, in twips: left edge and width.
constexpr int kLabelLeft = 240, kLabelWidth = 1200;
constexpr int kTextLabelLeft = 1560, kTextLabelWidth = 2400;
constexpr int kCOMPortLeft = 4080, kCOMPortWidth = 900;
constexpr int kAnalogLeft = 5100, kAnalogWidth = 1300;
constexpr int kDigitalLeft = 6520, kDigitalWidth = 1300;
constexpr int kIOLeft = 7940, kIOWidth = 1200;
constexpr int kFormWidth = 9500;

QLabel* columnHead(QWidget* form, const char* name, const char* caption, int left, int width)
{
    auto* head = named(new QLabel(QString::fromLatin1(caption), form), QString::fromLatin1(name));
    PlaceTwips(head, left, kColumnHeadTop, width, kRowHeight);
    return head;
}

} // namespace

FormArduinoConfig::FormArduinoConfig(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormArduinoConfig"));
    setWindowTitle(QStringLiteral("Arduino Configuration"));

    LabelLabel = columnHead(this, "LabelLabel", "Label:", kTextLabelLeft, kTextLabelWidth);
    LabelCOMPort = columnHead(this, "LabelCOMPort", "COM Port:", kCOMPortLeft, kCOMPortWidth);
    LabelAnalogIn = columnHead(this, "LabelAnalogIn", "#Analog Inputs:", kAnalogLeft, kAnalogWidth);
    LabelDigitalIO = columnHead(this, "LabelDigitalIO", "#Digital I/O:", kDigitalLeft, kDigitalWidth);

    for (int i = 0; i <= 15; ++i) {
        ControlRow row(this, i, RowTop(i));
        Label(i) = row.label(QStringLiteral("Label"), QStringLiteral("Arduino ") + QString::number(i + 1) + QStringLiteral(":"),
                             kLabelLeft, kLabelWidth);
        TextLabel(i) = row.text(QStringLiteral("TextLabel"), kTextLabelLeft, kTextLabelWidth);
        TextCOMPort(i) = row.text(QStringLiteral("TextCOMPort"), kCOMPortLeft, kCOMPortWidth);
        NumberAnalogIn(i) = row.combo(QStringLiteral("NumberAnalogIn"), kAnalogLeft, kAnalogWidth);
        NumberDigitalIO(i) = row.combo(QStringLiteral("NumberDigitalIO"), kDigitalLeft, kDigitalWidth);
        ArduinoInOutConf(i) = row.button(QStringLiteral("ArduinoInOutConf"), QStringLiteral("I/O Config"), kIOLeft, kIOWidth);
        // Rows come into view only for the boards in use.
        row.setVisible(false);
        connect(ArduinoInOutConf(i), &QPushButton::clicked, this, [this, i] { ArduinoInOutConf_Click(i); });
    }

    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    PlaceTwips(CommandOK, kFormWidth / 2 - 1500, RowTop(16), 1200, 375);
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    PlaceTwips(CommandCancel, kFormWidth / 2 + 300, RowTop(16), 1200, 375);
    connect(CommandOK, &QPushButton::clicked, this, &FormArduinoConfig::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormArduinoConfig::CommandCancel_Click);

    resize(Twips(kFormWidth), Twips(RowTop(16) + 1000));
}

void FormArduinoConfig::setVisible(bool visible)
{
    if (visible && !m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::setVisible(visible);
}

void FormArduinoConfig::Form_Load()
{
    gMainConfig.m_bUpdate = false;
    for (int i = 0; i < iNumArduinos; ++i) {
        Skip([&] { Label(i)->show(); });
        Skip([&] { TextLabel(i)->show(); });
        Skip([&] { TextCOMPort(i)->show(); });
        Skip([&] { TextLabel(i)->setText(gArduinoData(i).m_strLabel); });
        Skip([&] { TextCOMPort(i)->setText(QString::number(gArduinoData(i).m_iCOMPort)); });
        Skip([&] {
            NumberAnalogIn(i)->show();
            for (int n = 0; n <= 32; ++n)
                NumberAnalogIn(i)->addItem(Format(n, QStringLiteral("0")));
        });
        Skip([&] { NumberAnalogIn(i)->setCurrentIndex(gArduinoData(i).m_iNumAnalogInputs); });
        Skip([&] {
            NumberDigitalIO(i)->show();
            for (int n = 0; n <= 96; ++n)
                NumberDigitalIO(i)->addItem(Format(n, QStringLiteral("0")));
        });
        Skip([&] { NumberDigitalIO(i)->setCurrentIndex(gArduinoData(i).m_iNumDigitalIOs); });
        Skip([&] { ArduinoInOutConf(i)->show(); });
        // The counts are overruled: every board is offered with 2 analog
        // inputs and 10 digital connections, which reach the record on OK.
        Skip([&] { NumberAnalogIn(i)->setCurrentIndex(2); });
        Skip([&] { NumberAnalogIn(i)->setEnabled(false); });
        Skip([&] { NumberDigitalIO(i)->setCurrentIndex(10); });
        Skip([&] { NumberDigitalIO(i)->setEnabled(false); });
    }
    // The rows beyond the count are cut off from view by the foot of the form.
    CommandOK->move(CommandOK->x(), Twips(iNumArduinos * 480 + 1050));
    CommandCancel->move(CommandCancel->x(), Twips(iNumArduinos * 480 + 1050));
    resize(width(), Twips(iNumArduinos * 480 + 2000));
}

void FormArduinoConfig::ArduinoInOutConf_Click(int index)
{
    FormArduinoIO io(this);
    io.iArduino = static_cast<qint16>(index);
    Skip([&] { io.iNumAnalog = ToInteger(NumberAnalogIn(index)->currentText()); });
    Skip([&] { io.iNumDigital = ToInteger(NumberDigitalIO(index)->currentText()); });
    io.exec();
}

// Row by row; the first empty field stops with its message, and what the rows
// before it (and the fields of its row before it) stored stays stored.
void FormArduinoConfig::CommandOK_Click()
{
    for (int i = 0; i < iNumArduinos; ++i) {
        if (Holds([&] { return TextLabel(i)->text().trimmed().isEmpty(); })) {
            MsgBox(QStringLiteral("You have to enter a label for every Arduino"));
            return;
        }
        Skip([&] { gArduinoData(i).m_strLabel = TextLabel(i)->text(); });
        if (Holds([&] { return TextCOMPort(i)->text().trimmed().isEmpty(); })) {
            MsgBox(QStringLiteral("Enter a COM port for every Arduino"));
            return;
        }
        Skip([&] { gArduinoData(i).m_iCOMPort = ToInteger(TextCOMPort(i)->text()); });
        if (Holds([&] { return NumberAnalogIn(i)->currentText().trimmed().isEmpty(); })) {
            MsgBox(QStringLiteral("You have to enter the number of analog inputs for every Arduino"));
            return;
        }
        Skip([&] { gArduinoData(i).m_iNumAnalogInputs = ToInteger(NumberAnalogIn(i)->currentText()); });
        if (Holds([&] { return NumberDigitalIO(i)->currentText().trimmed().isEmpty(); })) {
            MsgBox(QStringLiteral("You have to enter the number of digital connections for every Arduino"));
            return;
        }
        Skip([&] { gArduinoData(i).m_iNumDigitalIOs = ToInteger(NumberDigitalIO(i)->currentText()); });
    }
    gDirty = true;
    gMainConfig.m_bUpdate = true;
    accept();
}

void FormArduinoConfig::CommandCancel_Click()
{
    gDirty = false;
    gMainConfig.m_bUpdate = false;
    reject();
}
