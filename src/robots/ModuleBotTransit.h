#pragma once
// A robot rule in transit between FormBotsInteraction and FormAddEditBotInter:
// one module-level field per field of CBotEvent. The mode, the index of the rule
// worked on and the accepted flag are those of the rule editor (gRuleEditMode,
// gRuleIndex, gRuleAccepted).
#include <QString>
#include <QtGlobal>

class CBotEvent;

extern qint16 gBotType;
extern qint16 gBotSource;
extern qint16 gBotRukaBot;
extern qint16 gBotSelectItem;
extern qint16 gBotEmbragueItem;
extern qint16 gBotItem1;
extern qint16 gBotItem2;
extern qint16 gBotItem3;
extern qint16 gBotItem4;
extern qint16 gBotItem5;
extern qint16 gBotItem6;
extern QString gBotMIDIFile1;
extern QString gBotMIDIFile2;
extern QString gBotMIDIFile3;
extern QString gBotMIDIFile4;
extern QString gBotMIDIFile5;
extern QString gBotMIDIFile6;
extern QString gBotRemarks;
extern bool gBotLoop;

// Every transit field into `target`.
void StoreBotRule(CBotEvent& target);
