#include "devices/FormArduinoIO.h"
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>
#include "devices/ModuleScrollBar.h"
#include "model/CArduinoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/NumberFormat.h"
#include "support/OnError.h"
#include "support/RuntimeError.h"

cScrollBar FormArduinoIO::cScroll;

namespace {

// Sizes in twips.
constexpr int kFormWidth = 7800, kFormHeight = 3150;
constexpr int kRowLabelWidth = 1600, kRowLabelHeight = 230;
constexpr int kTextHeight = 285, kComboWidth = 1000, kComboHeight = 300;
constexpr int kIORowPitch = 300;
constexpr int kFirstAnalogTop = 1000, kFirstDigitalTop = 600;
constexpr int kComboGap = 500;   // between a digital label and its combo box
const QColor kRowColour(0xE0, 0xE0, 0xE0);

QLabel* designLabel(QWidget* form, const char* name, const char* caption, int left, int top, int width)
{
    auto* label = named(new QLabel(QString::fromLatin1(caption), form), QString::fromLatin1(name));
    label->setGeometry(Twips(left), Twips(top), Twips(width), Twips(kRowLabelHeight));
    return label;
}

QLabel* rowLabel(QWidget* form, const QString& name, const QString& caption, int left, int top)
{
    auto* label = named(new QLabel(caption, form), name);
    label->setGeometry(left, Twips(top), Twips(kRowLabelWidth), Twips(kRowLabelHeight));
    label->setAutoFillBackground(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, kRowColour);
    label->setPalette(palette);
    label->setVisible(true);
    return label;
}

template <typename T>
T* present(T* control)
{
    if (!control)
        throw RuntimeError(QStringLiteral("Object variable not set"));
    return control;
}

} // namespace

FormArduinoIO::FormArduinoIO(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormArduinoIO"));
    setWindowTitle(QStringLiteral("Arduino IO Configuration"));
    KeepControlOrder(this);

    LabelAnalogInputs = designLabel(this, "LabelAnalogInputs", "Analog Inputs", 240, 700, kRowLabelWidth);
    LabelDigitalIOs = designLabel(this, "LabelDigitalIOs", "Digital IOs", 4200, 300, kRowLabelWidth);
    LabelMin = designLabel(this, "LabelMin", "Min", 1950, 700, 750);
    LabelMax = designLabel(this, "LabelMax", "Max", 2850, 700, 750);

    FrameOKCancel = named(new QGroupBox(QStringLiteral("FrameOK"), this), QStringLiteral("FrameOKCancel"));
    FrameOKCancel->setGeometry(0, Twips(kFormHeight - 600), Twips(kFormWidth), Twips(600));
    DrawWithoutCaption(FrameOKCancel);
    CommandOK = named(new QPushButton(QStringLiteral("OK"), FrameOKCancel), QStringLiteral("CommandOK"));
    CommandOK->setGeometry(Twips(2400), Twips(110), Twips(1200), Twips(375));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), FrameOKCancel), QStringLiteral("CommandCancel"));
    CommandCancel->setGeometry(Twips(4200), Twips(110), Twips(1200), Twips(375));
    connect(CommandOK, &QPushButton::clicked, this, &FormArduinoIO::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormArduinoIO::CommandCancel_Click);

    resize(Twips(kFormWidth), Twips(kFormHeight));
}

void FormArduinoIO::setVisible(bool visible)
{
    if (visible && !m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::setVisible(visible);
}

void FormArduinoIO::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    Form_Resize();
}

// An index beyond the arrays (32 analog, 96 digital rows) ends the row creation.
void FormArduinoIO::Form_Load()
{
    try {
        const CArduinoData& board = gArduinoData(iArduino);
        for (int i = 0; i < iNumAnalog; ++i) {
            QLabel*& label = AnalogInput(i);
            QLineEdit*& min = TxtMin(i);
            QLineEdit*& max = TxtMax(i);
            const int top = i * kIORowPitch + kFirstAnalogTop;
            const QString n = Format(i, QStringLiteral("#0"));
            label = rowLabel(this, QStringLiteral("AnalogInput") + n, QStringLiteral("Analog Input ") + n,
                             LabelAnalogInputs->x(), top);
            min = named(new QLineEdit(this), QStringLiteral("TxtMin") + n);
            min->setGeometry(LabelMin->x(), Twips(top), LabelMin->width(), Twips(kTextHeight));
            min->setText(QString::number(board.m_iMin(i)));
            min->setVisible(true);
            max = named(new QLineEdit(this), QStringLiteral("TxtMax") + n);
            max->setGeometry(LabelMax->x(), Twips(top), LabelMax->width(), Twips(kTextHeight));
            max->setText(QString::number(board.m_iMax(i)));
            max->setVisible(true);
        }
        for (int i = 0; i < iNumDigital; ++i) {
            QLabel*& label = DigitalIO(i);
            QComboBox*& combo = ComboDigital(i);
            const int top = i * kIORowPitch + kFirstDigitalTop;
            const QString n = Format(i, QStringLiteral("#0"));
            label = rowLabel(this, QStringLiteral("DigitalIO") + n, QStringLiteral("Digital IO ") + n,
                             LabelDigitalIOs->x(), top);
            combo = named(new QComboBox(this), QStringLiteral("ComboDigital") + n);
            combo->setGeometry(label->x() + label->width() + Twips(kComboGap), Twips(top),
                               Twips(kComboWidth), Twips(kComboHeight));
            combo->addItems({QStringLiteral("PWM"), QStringLiteral("IN"), QStringLiteral("OUT")});
            // The list index of the entry is the stored direction.
            combo->setCurrentIndex(board.m_iDigitalType(i));
            combo->setVisible(true);
        }
    } catch (const RangeError&) {
    }
    // The rows pass under the strip of OK and Cancel.
    FrameOKCancel->raise();
}

void FormArduinoIO::Form_Resize()
{
    cScroll.DibujarScrollBarVert(this);
}

void FormArduinoIO::CommandOK_Click()
{
    for (int i = 0; i < iNumAnalog; ++i) {
        Skip([&] { gArduinoData(iArduino).m_iMin(i) = ToInteger(present(TxtMin(i))->text()); });
        Skip([&] { gArduinoData(iArduino).m_iMax(i) = ToInteger(present(TxtMax(i))->text()); });
    }
    for (int i = 0; i < iNumDigital; ++i)
        Skip([&] { gArduinoData(iArduino).m_iDigitalType(i) = static_cast<qint16>(present(ComboDigital(i))->currentIndex()); });
    gDirty = true;
    gMainConfig.m_bUpdate = true;
    cScroll.m_bCreated = false;
    accept();
}

void FormArduinoIO::CommandCancel_Click()
{
    gDirty = false;
    gMainConfig.m_bUpdate = false;
    cScroll.m_bCreated = false;
    reject();
}
