#pragma once
// What the rule editor knows of sources and targets: the kinds a performance
// offers with the devices configured, the devices and items of each kind, and
// the mapping between the texts of the editor's combos and the numbers stored
// in rules. Free functions over gMainConfig and the device tables.
#include <QString>
#include <QStringList>
#include <QtGlobal>
class QComboBox;

// Which kinds a fill of the source or target kinds may add.
struct KindsWanted {
    bool automatic = true;
    bool exoskeleton = true;
    bool joystick = true;
    bool flash = true;
    bool arduino = true;
    bool osc = true;
    bool digitalInput = true;
    bool midi = true;
    bool qel = true;
    bool videoCapture = true;
};

// Kind number of a combo text: "Automatic" 0 ... "Video Capture" 10; the three
// Flash texts give 3; any other text 4.
qint16 SourceTypeFromText(const QString& text);
// The plain combo text of a kind number; empty for 4 and unknown numbers.
QString SourceTypeText(qint16 kind);
// "Trigger" 0, "Gate" 1, "Range" 2, "Copy" 3; any other text 0.
qint16 InterTypeFromText(const QString& text);
QString InterTypeText(qint16 interType);
// "Up" 0, "Down" 1, "Any" 2; any other text 0.
qint16 SenseFromText(const QString& text);
// The commands of the QEL target: "Enable Event" 0 ... "Assign Value To Variable" 8.
QString QelCommandText(qint16 command);
qint16 QelCommandFromText(const QString& text);   // -1 for an unknown name

// Combo indices of a stored number; 0 when the text is absent.
int IndexOfInterType(qint16 interType, const QComboBox* combo);
int IndexOfSourceType(qint16 kind, const QComboBox* combo);
int IndexOfSense(qint16 sense, const QComboBox* combo);
// Arduinos by label, QEL commands by name (falling back to the number); every
// other kind: the number itself.
int IndexOfSource(qint16 kind, qint16 number, const QComboBox* combo);
// The index, as text, of "Analog n" or "Digital n" for the item; "0" if absent.
QString IndexOfArduinoItem(qint16 item, qint16 arduino, const QComboBox* combo);
// The number stored for the device or command chosen in a combo.
qint16 TargetIndexFromText(const QString& text, int listIndex, qint16 kind);
// 0: the item has a range of values; 1: it is on or off; 2: neither.
qint16 GetItemKind(qint16 kind, qint16 device, const QString& itemText, int itemIndex);
// The number of the Arduino (among the configured boards) with this label; 0 if none.
qint16 ArduinoIndexFromLabel(const QString& label);

// Adds the wanted, missing kinds that the devices offer, each at its fixed place.
void FillSourceTypes(QComboBox* combo, const KindsWanted& wanted = {});
// Clears the combo and lists the target kinds the devices offer.
void FillTargetTypes(QComboBox* combo, const KindsWanted& wanted = {});
// Clears the combo and lists the devices (or moments, or commands) of a kind.
void FillSources(QComboBox* combo, qint16 kind);
void FillTargets(QComboBox* combo, qint16 kind);
// Clears the combo and lists the items of a device; returns 0, the index to select.
int FillItems(QComboBox* combo, qint16 kind, qint16 device, qint16 interType, bool sourceSide);

// The 36 exoskeleton sensors in item order, and the data row whose channel each shows.
QString ExoItemName(int position);
int ExoItemRow(int position);
// Video application positions whose label is the same on every display manager,
// up to the smallest number of applications.
QList<int> CommonVideoApps();
