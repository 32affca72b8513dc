#include "devices/FormExoCalibration.h"
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/ModuleGUI.h"
#include "support/NumberFormat.h"
#include "support/NumberText.h"
#include "support/OnError.h"

namespace {

// The row captions: the labels of the data file, but for the mercury
// switches and the belt buttons.
const char* const kRowCaptions[kExoRows] = {
    "CI", "CD", "HI", "HD", "RI", "RD", "II", "ID", "FCI", "FCD",
    "P1", "P2", "P3", "P4", "P5", "P6", "DI1", "DI2", "DD1", "DD2",
    "IHgI", "IHgD", "IPI", "IPD", "IC", "C1 y C2", "C3 y C4", "C5 y C6", "SEL"};

const char* rowKind(int row)
{
    if (row <= 7)
        return "Range";
    if (row <= 24)
        return "On/Off";
    if (row <= 27)
        return "Double";
    return "Selector";
}

const QString kStart = QStringLiteral("Start Automatic Calibration");
const QString kStop = QStringLiteral("Stop Automatic Calibration");

// A combo box's list index: that of the entry equal to its text, -1 for a
// text that is no entry.
int listIndex(const QComboBox* combo) { return combo->findText(combo->currentText(), Qt::MatchExactly); }

// Selects an entry by list index; -1 selects none, anything else outside the
// list is a run-time error.
void selectEntry(QComboBox* combo, int index)
{
    if (index < -1 || index >= combo->count())
        throw RangeError(QStringLiteral("Invalid property value"));
    combo->setCurrentIndex(index);
}

QComboBox* editableCombo(QWidget* parent, const QString& name)
{
    auto* combo = named(new QComboBox(parent), name);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    return combo;
}

// Empties a combo box and fills it with entries, none of them selected.
void refill(QComboBox* combo, const QStringList& entries)
{
    combo->clear();
    combo->addItems(entries);
    combo->setCurrentIndex(-1);
}

QStringList numbers(int from, int to)
{
    QStringList list;
    for (int n = from; n <= to; ++n)
        list << Format(n, QStringLiteral("0"));
    return list;
}

}  // namespace

FormExoCalibration::FormExoCalibration(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormExoCalibration"));
    setWindowTitle(QStringLiteral("Exoskeleton Calibration"));

    Label2 = named(new QLabel(QStringLiteral("Exoskeleton"), this), QStringLiteral("Label2"));
    ComboExo = editableCombo(this, QStringLiteral("ComboExo"));
    Label14 = named(new QLabel(QStringLiteral("ID"), this), QStringLiteral("Label14"));
    ComboID = editableCombo(this, QStringLiteral("ComboID"));
    LabelExoPort = named(new QLabel(QStringLiteral("COM Port"), this), QStringLiteral("LabelExoPort"));
    TextExoPort = named(new QLineEdit(QStringLiteral("1"), this), QStringLiteral("TextExoPort"));
    TextExoPort->setMaximumWidth(60);

    auto* head = new QHBoxLayout;
    head->addWidget(Label2);
    head->addWidget(ComboExo);
    head->addSpacing(16);
    head->addWidget(Label14);
    head->addWidget(ComboID);
    head->addSpacing(16);
    head->addWidget(LabelExoPort);
    head->addWidget(TextExoPort);
    head->addStretch();

    // Two columns of rows: 0 to 7 and 10 to 15 on the left, 8, 9 and 16 to 28 on the right.
    Frame1 = named(new QGroupBox(QStringLiteral("Calibration Data"), this), QStringLiteral("Frame1"));
    auto* grid = new QGridLayout(Frame1);
    grid->setVerticalSpacing(2);
    const char* const headings[5] = {"Item", "Channel", "Type", "Min.", "Max."};
    for (int side = 0; side < 2; ++side)
        for (int h = 0; h < 5; ++h)
            grid->addWidget(named(new QLabel(QString::fromLatin1(headings[h]), Frame1),
                                  arrayName(QStringLiteral("LabelHeading") + QString::fromLatin1(headings[h]).remove(u'.'), side)),
                            0, side * 6 + h);
    grid->setColumnMinimumWidth(5, 24);
    int leftLine = 1, rightLine = 1;
    for (int row = 0; row < kExoRows; ++row) {
        Label3(row) = named(new QLabel(QString::fromLatin1(kRowCaptions[row]), Frame1), arrayName(QStringLiteral("Label3"), row));
        ComboChannel(row) = editableCombo(Frame1, arrayName(QStringLiteral("ComboChannel"), row));
        ComboChannel(row)->setMinimumContentsLength(2);
        LabelType(row) = named(new QLabel(QString::fromLatin1(rowKind(row)), Frame1), arrayName(QStringLiteral("LabelType"), row));
        TextMin(row) = named(new QLineEdit(QStringLiteral("0"), Frame1), arrayName(QStringLiteral("TextMin"), row));
        TextMax(row) = named(new QLineEdit(QStringLiteral("255"), Frame1), arrayName(QStringLiteral("TextMax"), row));
        TextMin(row)->setMaximumWidth(48);
        TextMax(row)->setMaximumWidth(48);
        const bool left = row <= 7 || (row >= 10 && row <= 15);
        const int line = left ? leftLine++ : rightLine++;
        const int column = left ? 0 : 6;
        grid->addWidget(Label3(row), line, column);
        grid->addWidget(ComboChannel(row), line, column + 1);
        grid->addWidget(LabelType(row), line, column + 2);
        grid->addWidget(TextMin(row), line, column + 3);
        grid->addWidget(TextMax(row), line, column + 4);
        connect(ComboChannel(row)->lineEdit(), &QLineEdit::textEdited, this,
                [this, row] { ComboChannel_Change(row); });
    }
    grid->setRowStretch(rightLine, 1);

    CommandAuto = named(new QPushButton(kStart, this), QStringLiteral("CommandAuto"));
    Label13 = named(new QLabel(QStringLiteral("Errors:"), this), QStringLiteral("Label13"));
    LabelErrors = named(new QLabel(this), QStringLiteral("LabelErrors"));
    LabelErrors->setMinimumWidth(48);
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    CommandOK->setAutoDefault(false);
    CommandCancel->setAutoDefault(false);
    CommandAuto->setAutoDefault(false);

    auto* foot = new QHBoxLayout;
    foot->addWidget(CommandAuto);
    foot->addSpacing(16);
    foot->addWidget(Label13);
    foot->addWidget(LabelErrors);
    foot->addStretch();
    foot->addWidget(CommandOK);
    foot->addWidget(CommandCancel);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(Frame1);
    layout->addLayout(foot);

    // The line's settings are fixed; only the port number changes at run time.
    MSComm1.setInputLen(32);

    connect(ComboExo, &QComboBox::activated, this, [this] { ComboExo_Click(); });
    connect(CommandAuto, &QPushButton::clicked, this, &FormExoCalibration::CommandAuto_Click);
    connect(CommandOK, &QPushButton::clicked, this, &FormExoCalibration::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormExoCalibration::CommandCancel_Click);

    Form_Load();
}

FormExoCalibration::~FormExoCalibration() = default;

int FormExoCalibration::exec()
{
    if (m_unloaded)
        return QDialog::Rejected;
    return QDialog::exec();
}

void FormExoCalibration::Form_Load()
{
    if (gMainConfig.m_iNExos < 1) {
        MsgBoxExclamation(QStringLiteral("No Exoskeletons!"));
        m_unloaded = true;
        return;
    }
    refill(ComboExo, numbers(1, gMainConfig.m_iNExos));
    gSuppressComboEvents = true;
    ComboExo->setCurrentIndex(0);
    gSuppressComboEvents = false;

    loadRecord(0);

    iPortEdit(0) = gMainConfig.m_iExo1Port;
    iPortEdit(1) = gMainConfig.m_iExo2Port;
    TextExoPort->setText(QString::number(gMainConfig.m_iExo1Port));

    iCurrentExo = 0;
    bSampling = false;
    iErrors = 0;
}

// Fills the identity, the channels and the ranges from a working copy.
void FormExoCalibration::loadRecord(int exo)
{
    refill(ComboID, {QStringLiteral("1"), QStringLiteral("2")});
    Skip([&] { selectEntry(ComboID, gExoDataEdit(exo).m_iID - 1); });
    const QStringList channels = numbers(1, 32);
    for (int row = 0; row < kExoRows; ++row) {
        refill(ComboChannel(row), channels);
        Skip([&] { selectEntry(ComboChannel(row), gExoDataEdit(exo).m_iChannel(row) - 1); });
    }
    for (int row = 0; row < kExoRows; ++row) {
        Skip([&] { TextMin(row)->setText(QString::number(gExoDataEdit(exo).m_iMin(row))); });
        Skip([&] { TextMax(row)->setText(QString::number(gExoDataEdit(exo).m_iMax(row))); });
    }
}

// Stores the identity, the channels and the ranges shown in the working copy of the suit shown.
void FormExoCalibration::storeRecord()
{
    Skip([&] { gExoDataEdit(iCurrentExo).m_iID = static_cast<qint16>(listIndex(ComboID) + 1); });
    for (int row = 0; row < kExoRows; ++row) {
        Skip([&] { gExoDataEdit(iCurrentExo).m_iChannel(row) = static_cast<qint16>(listIndex(ComboChannel(row)) + 1); });
        Skip([&] { gExoDataEdit(iCurrentExo).m_iMin(row) = ParseInteger(TextMin(row)->text()); });
        Skip([&] { gExoDataEdit(iCurrentExo).m_iMax(row) = ParseInteger(TextMax(row)->text()); });
    }
}

void FormExoCalibration::ComboExo_Click()
{
    if (gSuppressComboEvents)
        return;
    // Closing the port ends a run, but the buttons stay as they were.
    Skip([&] {
        if (MSComm1.portOpen())
            MSComm1.setPortOpen(false);
    });
    bSampling = false;

    const int selected = listIndex(ComboExo);
    if (selected != iCurrentExo) {
        // The port shown comes from the main configuration, not from the edit of the suit.
        Skip([&] { iPortEdit(iCurrentExo) = ParseInteger(TextExoPort->text()); });
        TextExoPort->setText(QString::number(selected == 1 ? gMainConfig.m_iExo2Port : gMainConfig.m_iExo1Port));
        storeRecord();
        iCurrentExo = static_cast<qint16>(selected);
    }
    // Selecting the suit already shown throws away what was not stored.
    loadRecord(selected);
}

void FormExoCalibration::ComboChannel_Change(int index)
{
    if (gSuppressComboEvents)
        return;
    // The model, not the working copy: Cancel does not undo it, and the live calibration reads it.
    Skip([&] { gExoData(iCurrentExo).m_iChannel(index) = static_cast<qint16>(listIndex(ComboChannel(index)) + 1); });
}

void FormExoCalibration::stopSampling()
{
    CommandOK->setEnabled(true);
    CommandCancel->setEnabled(true);
    CommandAuto->setText(kStart);
    Skip([&] { MSComm1.setPortOpen(false); });
    bSampling = false;
}

void FormExoCalibration::CommandAuto_Click()
{
    if (bSampling) {
        // Entered again from within the running loop: that loop ends by itself.
        stopSampling();
        return;
    }

    for (int i = 0; i <= 31; ++i) {
        iSampleMin(i) = 255;
        iSampleMax(i) = 0;
    }
    CommandOK->setEnabled(false);
    CommandCancel->setEnabled(false);
    CommandAuto->setText(kStop);

    // The port comes from the main configuration: a number typed in TextExoPort counts only after OK.
    const int exo = listIndex(ComboExo);
    if (exo == 0)
        MSComm1.setCommPort(gMainConfig.m_iExo1Port);
    else if (exo == 1)
        MSComm1.setCommPort(gMainConfig.m_iExo2Port);
    Skip([&] { MSComm1.setPortOpen(true); });

    // The stored identity: a change in ComboID not yet stored does not reach the suit.
    QByteArray request(4, '\0');
    request[0] = 0x40;
    Skip([&] {
        const qint16 id = gExoDataEdit(iCurrentExo).m_iID;
        if (id < 0 || id > 255)
            throw RangeError(QStringLiteral("Overflow"));
        request[1] = static_cast<char>(id);
    });
    request[2] = 0x20;
    request[3] = 0x00;

    bSampling = true;
    iErrors = 0;
    while (bSampling) {
        Skip([&] { MSComm1.output(request); });
        const qint64 t0 = GetTickCount();
        bool answered = false;
        // Any 32 bytes waiting are one frame, also an answer that came late.
        while (!answered && bSampling && GetTickCount() - t0 < 50) {
            if (bSampling && MSComm1.inBufferCount() >= 32) {
                answered = true;
                QByteArray frame;
                Skip([&] { frame = MSComm1.input(); });
                updateRows(frame);
            }
            DoEvents();
            // Nothing yet: let the line have a moment rather than spin.
            if (!answered && bSampling && MSComm1.inBufferCount() < 32)
                MSComm1.waitForInput(1);
        }
        DoEvents();
        if (bSampling && !answered) {
            Skip([&] {
                if (iErrors == 32767)
                    throw RangeError(QStringLiteral("Overflow"));
                ++iErrors;
            });
            LabelErrors->setText(Format(iErrors, QStringLiteral("###0")));
        }
    }
    iErrors = 0;
}

// Widens each row's range by its channel's byte of the frame, and shows every row's range.
void FormExoCalibration::updateRows(const QByteArray& frame)
{
    const auto byteAt = [&frame](int i) -> int {
        if (i < 0 || i >= frame.size())
            throw RangeError();
        return static_cast<unsigned char>(frame.at(i));
    };
    for (int row = 0; row < kExoRows; ++row) {
        int c = 0;
        Skip([&] { c = gExoData(iCurrentExo).m_iChannel(row); });
        if (c >= 1 && c <= 32) {
            if (Holds([&] { return byteAt(c - 1) < iSampleMin(row); }))
                Skip([&] { iSampleMin(row) = static_cast<qint16>(byteAt(c - 1)); });
            if (Holds([&] { return byteAt(c - 1) > iSampleMax(row); }))
                Skip([&] { iSampleMax(row) = static_cast<qint16>(byteAt(c - 1)); });
        }
        TextMin(row)->setText(Format(iSampleMin(row), QStringLiteral("##0")));
        TextMax(row)->setText(Format(iSampleMax(row), QStringLiteral("##0")));
    }
}

// After a stop from OK or Cancel: 100 ms for the loop to see it, events running.
void FormExoCalibration::waitAfterStop()
{
    const qint64 start = GetTickCount();
    while (GetTickCount() - start < 100) {
        DoEvents();
        QThread::msleep(1);
    }
}

void FormExoCalibration::CommandOK_Click()
{
    gDirty = true;
    if (bSampling) {
        stopSampling();
        waitAfterStop();
    }
    storeRecord();
    Skip([&] { iPortEdit(iCurrentExo) = ParseInteger(TextExoPort->text()); });
    gMainConfig.m_iExo1Port = iPortEdit(0);
    gMainConfig.m_iExo2Port = iPortEdit(1);
    gMainConfig.m_bUpdate = true;
    accept();
}

void FormExoCalibration::CommandCancel_Click()
{
    // Also forgets changes made before the dialog opened.
    gDirty = false;
    if (bSampling) {
        stopSampling();
        waitAfterStop();
    }
    gMainConfig.m_bUpdate = false;
    QDialog::reject();
}

void FormExoCalibration::reject()
{
    if (bSampling)
        stopSampling();
    QDialog::reject();
}
