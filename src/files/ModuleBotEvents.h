#pragma once
// The robot rules of the performance, written for the run-time engine on every
// save and never read back: BotsEvents.cfg (index of the rules), Talpor.cfg and
// Vilna.cfg (the subscenes where those two robots act).
#include <QString>
#include <QtGlobal>

class CBotEvent;

// Assigns every field of `source` to `target`.
void CopyBotEvent(CBotEvent& target, const CBotEvent& source);

// The row text of a robot rule from 1-based positions: event - 1, scene - 1 and
// part - 1, each right-aligned in two columns and followed by a comma; empty
// when `enabled` is false.
QString BuildBotEventID(int scene, int part, int event, bool enabled);

// Creates the three files, then fills them in one walk over scenes, subscenes
// and robot rules. False after any failure; what was written stays.
bool WriteBotEventsFile(const QString& indexPath, const QString& talporPath, const QString& vilnaPath);
