#pragma once
// The global rules, which hold for the whole performance, and their file
// GlobalEvents.cfg: a four-line header, then one rule block per rule.
#include <memory>
#include <QString>
#include <QtGlobal>
#include "rules/CEvent.h"
#include "support/Collection.h"

class TextFileReader;

// The global rules in rule order, 1-based.
extern Collection<CEvent> gGlobalEvents;
// Additions minus removals made through the functions below; nothing reads it.
extern qint16 gGlobalEventCount;

// A new empty collection, and the counter at 0.
void ClearGlobalEvents();
// Inserts before `position`; below 1 or above the count, appends.
void AddGlobalEvent(std::shared_ptr<CEvent> event, qint16 position);
// Removes at `position`; does nothing outside 1 to the count.
void RemoveGlobalEvent(qint16 position);
// The deep copy of a rule, as CopyEvent.
void CopyGlobalEvent(CEvent& target, const CEvent& source);

// The block of global rule `rule` (1-based), each line ended by CR LF. Empty
// text fields are written as " " and that " " is stored back into the record.
QString BuildGlobalEventText(int rule);

// Writes GlobalEvents.cfg; false on any failure, with no message.
bool WriteGlobalEventsFile(const QString& path);
// Replaces the global rules by those of the file; on failure shows the error box and returns false.
bool ReadGlobalEventsFile(const QString& path);
// Fills `event` from its record line and the lines that follow in `file`. A line
// shorter than four characters gives true and leaves the record as it is.
bool ParseGlobalEvent(TextFileReader& file, const QString& line, CEvent& event);
