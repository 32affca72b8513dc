#include "ruleeditor/ModuleSourcesTargets.h"
#include <QComboBox>
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CPart.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/Convert.h"
#include "support/OnError.h"

namespace {

const QStringList kKindTexts = {QStringLiteral("Automatic"), QStringLiteral("Exoskeleton"), QStringLiteral("Joystick"),
                                QStringLiteral("Flash Player"), QString(), QStringLiteral("Digital Input Card"),
                                QStringLiteral("MIDI"), QStringLiteral("Arduino"), QStringLiteral("OSC"),
                                QStringLiteral("QEL"), QStringLiteral("Video Capture")};
const QStringList kInterTypes = {QStringLiteral("Trigger"), QStringLiteral("Gate"), QStringLiteral("Range"),
                                 QStringLiteral("Copy")};
const QStringList kSenses = {QStringLiteral("Up"), QStringLiteral("Down"), QStringLiteral("Any")};
const QStringList kQelCommands = {QStringLiteral("Enable Event"), QStringLiteral("Disable Event"),
                                  QStringLiteral("Switch Player To App"), QStringLiteral("Go To Scene"),
                                  QStringLiteral("Next Part"), QStringLiteral("Previous Part"),
                                  QStringLiteral("Increment Variable"), QStringLiteral("Decrement Variable"),
                                  QStringLiteral("Assign Value To Variable")};
const QStringList kExoItems = {
    QStringLiteral("Codo Izquierdo"), QStringLiteral("Codo Derecho"), QStringLiteral("Hombro Izquierdo"),
    QStringLiteral("Hombro Derecho"), QStringLiteral("Rodilla Izquierda"), QStringLiteral("Rodilla Derecha"),
    QStringLiteral("Ingle Izquierda"), QStringLiteral("Ingle Derecha"),
    QStringLiteral("Final de Carrera en Ingle Izquierda"), QStringLiteral("Final de Carrera en Ingle Derecha"),
    QStringLiteral("Pulsador Pecho 1"), QStringLiteral("Pulsador Pecho 2"), QStringLiteral("Pulsador Pecho 3"),
    QStringLiteral("Pulsador Pecho 4"), QStringLiteral("Pulsador Pecho 5"), QStringLiteral("Pulsador Pecho 6"),
    QStringLiteral("Pulsador Dedo Índice Izquierdo"), QStringLiteral("Pulsador Dedo Corazón Izquierdo"),
    QStringLiteral("Pulsador Dedo Índice Derecho"), QStringLiteral("Pulsador Dedo Corazón Derecho"),
    QStringLiteral("Interruptor de Mercurio Izquierdo"), QStringLiteral("Interruptor de Mercurio Derecho"),
    QStringLiteral("Interruptor Pierna Izquierda"), QStringLiteral("Interruptor Pierna Derecha"),
    QStringLiteral("Interruptor Cintura"), QStringLiteral("Pulsador Cinto 1"), QStringLiteral("Pulsador Cinto 2"),
    QStringLiteral("Pulsador Cinto 3"), QStringLiteral("Pulsador Cinto 4"), QStringLiteral("Pulsador Cinto 5"),
    QStringLiteral("Pulsador Cinto 6"), QStringLiteral("Selector"), QStringLiteral("Selector Posición 1"),
    QStringLiteral("Selector Posición 2"), QStringLiteral("Selector Posición 3"),
    QStringLiteral("Selector Posición 4")};
const QStringList kAxes = {QStringLiteral("Eje X"), QStringLiteral("Eje Y"), QStringLiteral("Eje Z"),
                           QStringLiteral("Eje RX"), QStringLiteral("Eje RY"), QStringLiteral("Eje RZ")};

int indexOfText(const QComboBox* combo, const QString& text)
{
    for (int i = 0; i < combo->count(); ++i)
        if (combo->itemText(i) == text)
            return i;
    return -1;
}

// The pins 0 to m_iNumDigitalIOs - 1 of a board, with their types.
bool hasPinOfType(const CArduinoData& board, std::initializer_list<int> types)
{
    for (int p = 0; p < board.m_iNumDigitalIOs; ++p)
        for (int t : types)
            if (board.m_iDigitalType(p) == t)
                return true;
    return false;
}

bool isSourceArduino(const CArduinoData& board) { return board.m_iNumAnalogInputs > 0 || hasPinOfType(board, {1}); }
bool isTargetArduino(const CArduinoData& board) { return hasPinOfType(board, {0, 2}); }

bool midiPortWith(int inOut)
{
    for (int i = 0; i <= 7; ++i)
        if (gMainConfig.m_iMIDIPort(i) >= 0 && gMainConfig.m_iPortInOut(i) == inOut)
            return true;
    return false;
}

bool oscWith(int inOut)
{
    for (int i = 0; i < gMainConfig.m_iNOSCs && i <= 15; ++i)
        if (gMainConfig.m_iOSCPortInOut(i) == inOut)
            return true;
    return false;
}

bool arduinoWith(bool (*test)(const CArduinoData&))
{
    if (gMainConfig.m_iNArduinos <= 0)
        return false;
    for (int i = 0; i < gMainConfig.m_iNArduinos && i <= 15; ++i)
        if (test(gArduinoData(i)))
            return true;
    return false;
}

// The number of rules of the list the editor works on.
int currentRuleCount()
{
    if (gGlobalRuleView)
        return gGlobalEvents.Count();
    return gScenes(gCurrentScene + 1)->PartList(gCurrentPart + 1)->AudioEvents.Count();
}

} // namespace

qint16 SourceTypeFromText(const QString& text)
{
    if (text == QLatin1String("The Flash Player") || text == QLatin1String("All Flash Players"))
        return 3;
    if (text.isEmpty())
        return 4;
    const int i = kKindTexts.indexOf(text);
    return i < 0 ? 4 : static_cast<qint16>(i);
}

QString SourceTypeText(qint16 kind) { return kind >= 0 && kind < kKindTexts.size() ? kKindTexts[kind] : QString(); }

qint16 InterTypeFromText(const QString& text)
{
    const int i = kInterTypes.indexOf(text);
    return i < 0 ? 0 : static_cast<qint16>(i);
}

QString InterTypeText(qint16 interType)
{
    return interType >= 0 && interType < kInterTypes.size() ? kInterTypes[interType] : QString();
}

qint16 SenseFromText(const QString& text)
{
    const int i = kSenses.indexOf(text);
    return i < 0 ? 0 : static_cast<qint16>(i);
}

QString QelCommandText(qint16 command)
{
    return command >= 0 && command < kQelCommands.size() ? kQelCommands[command] : QString();
}

qint16 QelCommandFromText(const QString& text) { return static_cast<qint16>(kQelCommands.indexOf(text)); }

int IndexOfInterType(qint16 interType, const QComboBox* combo)
{
    for (int i = 0; i < combo->count(); ++i)
        if (InterTypeFromText(combo->itemText(i)) == interType && kInterTypes.contains(combo->itemText(i)))
            return i;
    return 0;
}

int IndexOfSourceType(qint16 kind, const QComboBox* combo)
{
    const int i = indexOfText(combo, SourceTypeText(kind));
    return i < 0 || SourceTypeText(kind).isEmpty() ? 0 : i;
}

int IndexOfSense(qint16 sense, const QComboBox* combo)
{
    for (int i = 0; i < combo->count(); ++i)
        if (kSenses.contains(combo->itemText(i)) && SenseFromText(combo->itemText(i)) == sense)
            return i;
    return 0;
}

int IndexOfSource(qint16 kind, qint16 number, const QComboBox* combo)
{
    if (kind == 7) {
        int i = -1;
        Skip([&] { i = indexOfText(combo, gArduinoData(number).m_strLabel); });
        return i < 0 ? number : i;
    }
    if (kind == 9) {
        const int i = QelCommandText(number).isEmpty() ? -1 : indexOfText(combo, QelCommandText(number));
        return i < 0 ? number : i;
    }
    return number;
}

QString IndexOfArduinoItem(qint16 item, qint16 arduino, const QComboBox* combo)
{
    int i = -1;
    Skip([&] {
        const int analog = gArduinoData(arduino).m_iNumAnalogInputs;
        const QString text = item < analog ? QStringLiteral("Analog %1").arg(item)
                                           : QStringLiteral("Digital %1").arg(item - analog);
        i = indexOfText(combo, text);
    });
    return QString::number(i < 0 ? 0 : i);
}

qint16 ArduinoIndexFromLabel(const QString& label)
{
    for (int i = 0; i < gMainConfig.m_iNArduinos && i <= 15; ++i)
        if (gArduinoData(i).m_strLabel == label)
            return static_cast<qint16>(i);
    return 0;
}

qint16 TargetIndexFromText(const QString& text, int listIndex, qint16 kind)
{
    switch (kind) {
    case 3:
        if (text == QLatin1String("All Flash Players"))
            return gMainConfig.m_iNFlash;
        try {
            return static_cast<qint16>(ToInteger(text.mid(12)) - 1);
        } catch (const RuntimeError&) {
            return 0;
        }
    case 9: {
        const qint16 c = QelCommandFromText(text);
        return c < 0 ? 0 : c;
    }
    case 7:
        return ArduinoIndexFromLabel(text);
    case 6:
        for (int i = 0; i <= 7; ++i)
            if (gMainConfig.m_strInMIDIPortLabel(i) == text || gMainConfig.m_strOutMIDIPortLabel(i) == text)
                return static_cast<qint16>(i);
        return 0;
    default:
        return static_cast<qint16>(listIndex);
    }
}

qint16 GetItemKind(qint16 kind, qint16 device, const QString& itemText, int itemIndex)
{
    switch (kind) {
    case 1:
        return itemIndex >= 10 ? 1 : 0;
    case 2:
        return itemText.startsWith(QLatin1String("Eje")) ? 0 : 1;
    case 7: {
        qint16 type = -1;
        // A text whose pin cannot be read counts as a range item.
        if (Holds([&] {
                const int pin = ToInteger(itemText.right(2).trimmed());
                type = gArduinoData(device).m_iDigitalType(pin);
                return type == 0 || itemText.startsWith(QLatin1String("Ana"));
            }))
            return 0;
        return type == 2 || type == 1 ? 1 : 2;
    }
    case 8:
    case 3:
        return 0;
    case 10:
        return 1;
    case 6:
        return itemText == QLatin1String("MIDI File") ? 1 : 0;
    default:
        return 2;
    }
}

void FillSourceTypes(QComboBox* combo, const KindsWanted& wanted)
{
    QList<qint16> present;
    for (int i = 0; i < combo->count(); ++i)
        present << SourceTypeFromText(combo->itemText(i));
    const CMainConfig& c = gMainConfig;
    const struct {
        qint16 kind;
        bool want;
        bool offered;
    } places[] = {
        {0, wanted.automatic, true},
        {1, wanted.exoskeleton, c.m_iNExos > 0},
        {2, wanted.joystick, c.m_iNTotems > 0},
        {7, wanted.arduino, arduinoWith(isSourceArduino)},
        {6, wanted.midi, midiPortWith(1)},
        {8, wanted.osc, oscWith(1)},
        {3, wanted.flash, c.m_iNFlash >= 1},
        {5, wanted.digitalInput, gNDigitalIO >= 1},
    };
    for (int position = 0; position < 8; ++position) {
        const auto& p = places[position];
        if (!p.want || !p.offered || present.contains(p.kind))
            continue;
        combo->insertItem(qMin(position, combo->count()), SourceTypeText(p.kind));
        present << p.kind;
    }
}

void FillTargetTypes(QComboBox* combo, const KindsWanted& wanted)
{
    combo->clear();
    const CMainConfig& c = gMainConfig;
    if (wanted.arduino && arduinoWith(isTargetArduino))
        combo->addItem(QStringLiteral("Arduino"));
    if (wanted.midi && midiPortWith(2))
        combo->addItem(QStringLiteral("MIDI"));
    if (wanted.osc && oscWith(2))
        combo->addItem(QStringLiteral("OSC"));
    if (wanted.flash && c.m_iNFlash > 0)
        combo->addItem(QStringLiteral("Flash Player"));
    if (wanted.qel)
        combo->addItem(QStringLiteral("QEL"));
    if (wanted.videoCapture && c.m_iNVideoCaps >= 1)
        combo->addItem(QStringLiteral("Video Capture"));
}

void FillSources(QComboBox* combo, qint16 kind)
{
    combo->clear();
    const CMainConfig& c = gMainConfig;
    switch (kind) {
    case 0:
        combo->addItems({QStringLiteral("Begin"), QStringLiteral("End"), QStringLiteral("QEL Variable")});
        break;
    case 1:
        for (int i = 1; i <= c.m_iNExos; ++i)
            combo->addItem(QStringLiteral("Exoskeleton %1").arg(i));
        break;
    case 2:
        for (int i = 1; i <= c.m_iNTotems; ++i)
            combo->addItem(QStringLiteral("Joystick %1").arg(i));
        break;
    case 3:
        for (int i = 1; i <= c.m_iNFlash; ++i)
            combo->addItem(QStringLiteral("Flash Player %1").arg(i));
        break;
    case 5:
        for (int i = 1; i <= gNDigitalIO; ++i)
            combo->addItem(QStringLiteral("Digital Input Card %1").arg(i));
        break;
    case 6:
        for (int i = 0; i <= 7; ++i)
            if (c.m_iMIDIPort(i) >= 0 && c.m_iPortInOut(i) == 1)
                combo->addItem(c.m_strMIDIPortLabel(i));
        break;
    case 7:
        for (int i = 0; i < c.m_iNArduinos && i <= 15; ++i)
            if (isSourceArduino(gArduinoData(i)))
                combo->addItem(gArduinoData(i).m_strLabel);
        break;
    case 8:
        for (int i = 0; i < c.m_iNOSCs && i <= 15; ++i)
            if (c.m_iOSCPortInOut(i) == 1)
                combo->addItem(c.m_strOSCPortLabel(i));
        break;
    default:
        break;
    }
}

void FillTargets(QComboBox* combo, qint16 kind)
{
    combo->clear();
    const CMainConfig& c = gMainConfig;
    switch (kind) {
    case 3:
        if (c.m_iNFlash == 1) {
            combo->addItem(QStringLiteral("The Flash Player"));
        } else if (c.m_iNFlash > 1) {
            for (int i = 1; i <= c.m_iNFlash; ++i)
                combo->addItem(QStringLiteral("Flash Player %1").arg(i));
            combo->addItem(QStringLiteral("All Flash Players"));
        }
        break;
    case 6:
        for (int i = 0; i <= 7; ++i)
            if (c.m_iMIDIPort(i) >= 0 && c.m_iPortInOut(i) == 2)
                combo->addItem(c.m_strMIDIPortLabel(i));
        break;
    case 7:
        for (int i = 0; i < c.m_iNArduinos && i <= 15; ++i)
            if (isTargetArduino(gArduinoData(i)))
                combo->addItem(gArduinoData(i).m_strLabel);
        break;
    case 8:
        for (int i = 0; i < c.m_iNOSCs && i <= 15; ++i)
            if (c.m_iOSCPortInOut(i) == 2)
                combo->addItem(c.m_strOSCPortLabel(i));
        break;
    case 9: {
        const bool scenes = gScenes.Count() > 0;
        if (gGlobalRuleView || scenes)
            combo->addItems({QelCommandText(4), QelCommandText(5)});
        if (c.m_iNQDMs > 0)
            combo->addItem(QelCommandText(2));
        if (scenes)
            combo->addItem(QelCommandText(3));
        bool rules = false;
        Skip([&] { rules = currentRuleCount() >= 1; });
        if (rules)
            combo->addItems({QelCommandText(0), QelCommandText(1)});
        combo->addItems({QelCommandText(6), QelCommandText(7), QelCommandText(8)});
        break;
    }
    case 10:
        for (int i = 0; i < c.m_iNVideoCaps; ++i)
            combo->addItem(QString::number(i));
        break;
    default:
        break;
    }
}

int FillItems(QComboBox* combo, qint16 kind, qint16 device, qint16 interType, bool sourceSide)
{
    combo->clear();
    const bool range = interType == 2;
    switch (kind) {
    case 1:
        for (int p = 0; p < (range ? 10 : kExoItems.size()); ++p) {
            QString channel;
            Skip([&] { channel = QString::number(gExoData(device).m_iChannel(ExoItemRow(p))); });
            combo->addItem(QStringLiteral("[") + channel + QStringLiteral("] ") + kExoItems[p]);
        }
        break;
    case 2: {
        qint16 axes = 0;
        qint16 buttons = 0;
        Skip([&] { axes = gTotemAxes(device); });
        Skip([&] { buttons = gTotemButtons(device); });
        for (int i = 0; i < axes && i < kAxes.size(); ++i)
            combo->addItem(kAxes[i]);
        if (!range)
            for (int i = 1; i <= buttons; ++i)
                combo->addItem(QStringLiteral("Sensor %1").arg(i));
        break;
    }
    case 7:
        Skip([&] {
            const CArduinoData& board = gArduinoData(device);
            if (sourceSide) {
                for (int i = 0; i < board.m_iNumAnalogInputs; ++i)
                    combo->addItem(QStringLiteral("Analog %1").arg(i));
                if (!range)
                    for (int p = 0; p < board.m_iNumDigitalIOs; ++p)
                        if (board.m_iDigitalType(p) == 1)
                            combo->addItem(QStringLiteral("Digital %1").arg(p));
            } else {
                for (int p = 0; p < board.m_iNumDigitalIOs; ++p)
                    if (board.m_iDigitalType(p) == 0 || (board.m_iDigitalType(p) == 2 && !range))
                        combo->addItem(QStringLiteral("Digital %1").arg(p));
            }
        });
        break;
    case 5: {
        qint32 inputs = 0;
        Skip([&] { inputs = gDigitalIONIn(device); });
        for (int i = 0; i < inputs; ++i)
            combo->addItem(QString::number(i));
        break;
    }
    case 6:
        combo->addItems({QStringLiteral("Note On"), QStringLiteral("Control Change"), QStringLiteral("Program Change"),
                         QStringLiteral("Any")});
        break;
    default:
        break;
    }
    return 0;
}

QString ExoItemName(int position) { return position >= 0 && position < kExoItems.size() ? kExoItems[position] : QString(); }

int ExoItemRow(int position)
{
    if (position <= 24)
        return position;
    if (position <= 30)
        return 25 + (position - 25) / 2;
    return 28;
}

QList<int> CommonVideoApps()
{
    const CMainConfig& c = gMainConfig;
    QList<int> common;
    if (c.m_iNQDMs <= 0)
        return common;
    int smallest = 8;
    for (int d = 0; d < c.m_iNQDMs && d <= 7; ++d)
        smallest = qMin<int>(smallest, c.m_iNAppPerQDM(d));
    for (int a = 0; a < smallest; ++a) {
        bool same = true;
        for (int d = 1; d < c.m_iNQDMs && d <= 7; ++d)
            if (c.m_strVideoAppLabel(d, a) != c.m_strVideoAppLabel(0, a))
                same = false;
        if (same)
            common << a;
    }
    return common;
}
