#pragma once
// The rule vocabulary (numbers and the tokens that stand for them in the rule
// text) and the rules file Events.cfg, which holds the rules of every subscene.
#include <QString>
#include <QStringView>
#include <QtGlobal>
#include "rules/CAction.h"
#include "rules/CEvent.h"

class TextFileReader;

// Highest number of rules of one subscene that Events.cfg carries. New sets it
// to 0; adding and pasting rules raise it; reading takes it from line 2.
extern qint16 gMaxEventsPerPart;

// --- vocabulary ---------------------------------------------------------------

// Source/target type number to its token in the rule files; empty for 4 and any unknown number.
QString TypeToFileToken(qint16 type);
// Rule file token to type number, compared exactly: "SYNC" reads as 3, anything unknown (also "") as 4.
qint16 FileTokenToType(const QString& text);
// Type number to its word in the rule list; "UND" for 4 and any unknown number.
QString TypeToListToken(qint16 type);
// Interaction type to its word in the rule list: "TRIG", "GATE", "RANG", "COPY", otherwise "ERR".
QString InterTypeToListToken(qint16 interType);

// Device of a rule or action as text: for type 0 "BEGIN", "END", "QEL_VAR" (empty
// for any other device), for every other type the 1-based number.
QString DeviceToToken(qint16 device, qint16 type);
// "BEGIN" 0, "END" 1, "QEL_VAR" 2, digits only n gives n - 1, any other text 0.
qint16 TokenToDevice(const QString& text);

// Exoskeleton item number to its code ("CI" ... "S5"); "-" outside 0 to 36.
QString ExoItemToCode(qint16 item);
// Joystick item to its code: axes "AX" ... "ARZ" below the joystick's axis count,
// buttons "S1", "S2", ... from there on.
QString TotemItemToCode(qint16 item, qint16 source);
// Item or command text to its number for the given type and device.
qint16 TextToItem(const QString& text, qint16 type, qint16 source);

// The text from `position` (1-based) to the next ";" or the end, without the ";".
// `position` is moved one past the ";". Past the end it gives the empty text.
QString GetNextField(const QString& text, int& position);

// --- Events.cfg ---------------------------------------------------------------

// The block of lines of rule `rule` of subscene `part` of scene `scene` (all 1-based),
// each line ended by CR LF; `withPlace` false leaves the first four fields out.
// Empty text fields are written as " " and that " " is stored back into the record.
QString BuildEventText(int scene, int part, int rule, bool withPlace);
// The action line without its line end. Stores " " back into the empty fields it writes so.
QString BuildActionText(CAction& action);

// Fills `event` from its record line `line` and the lines that follow it in `file`.
// `scene` and `part` get the 0-based indices of the line, both -1 for a line shorter
// than four characters (nothing else is read then). False on any failure.
bool ParseEvent(qint16& scene, qint16& part, TextFileReader& file, const QString& line, CEvent& event);
// Fills `action` from an action line; an empty line leaves it as it is. False on any failure.
bool ParseAction(CAction& action, const QString& line);

// Writes Events.cfg; false on any failure, with no message.
bool WriteEventsFile(const QString& path);
// Reads Events.cfg into the existing scenes and subscenes; on failure shows the
// error box with the scene and part of the last rule line and returns false.
bool ReadEventsFile(const QString& path);

// --- shared with GlobalEvents.cfg ---------------------------------------------

// Appends to `text` the record line from its field 5 (remarks, source type,
// source, item, then the keyword fields) and the event, count, action and
// message lines, each ended by CR LF. With `automaticVariable` false the item
// of an Automatic rule is always " ". Stores " " back into the empty fields it
// writes so.
void AppendRuleBlock(QString& text, CEvent& rule, bool automaticVariable);
// Reads the fields of the record line `line` from its field 5 on, which starts
// at the 0-based offset `offset`, then the event, count, action and message
// lines from `file`. With `automaticVariable` false an Automatic rule takes no
// variable from its item field. Throws on a failure; a count of 0 gives false.
bool ParseRuleBlock(TextFileReader& file, QStringView line, qsizetype offset, CEvent& event,
                    bool automaticVariable);
