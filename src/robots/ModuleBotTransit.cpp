#include "robots/ModuleBotTransit.h"
#include "files/CBotEvent.h"

qint16 gBotType = 0;
qint16 gBotSource = 0;
qint16 gBotRukaBot = 0;
qint16 gBotSelectItem = 0;
qint16 gBotEmbragueItem = 0;
qint16 gBotItem1 = 0;
qint16 gBotItem2 = 0;
qint16 gBotItem3 = 0;
qint16 gBotItem4 = 0;
qint16 gBotItem5 = 0;
qint16 gBotItem6 = 0;
QString gBotMIDIFile1;
QString gBotMIDIFile2;
QString gBotMIDIFile3;
QString gBotMIDIFile4;
QString gBotMIDIFile5;
QString gBotMIDIFile6;
QString gBotRemarks;
bool gBotLoop = false;

void StoreBotRule(CBotEvent& target)
{
    target.m_iType = gBotType;
    target.m_iSource = gBotSource;
    target.m_iRukaBot = gBotRukaBot;
    target.m_iSelectItem = gBotSelectItem;
    target.m_iEmbragueItem = gBotEmbragueItem;
    target.m_iItem1 = gBotItem1;
    target.m_iItem2 = gBotItem2;
    target.m_iItem3 = gBotItem3;
    target.m_iItem4 = gBotItem4;
    target.m_iItem5 = gBotItem5;
    target.m_iItem6 = gBotItem6;
    target.m_strMIDIFile1 = gBotMIDIFile1;
    target.m_strMIDIFile2 = gBotMIDIFile2;
    target.m_strMIDIFile3 = gBotMIDIFile3;
    target.m_strMIDIFile4 = gBotMIDIFile4;
    target.m_strMIDIFile5 = gBotMIDIFile5;
    target.m_strMIDIFile6 = gBotMIDIFile6;
    target.m_strRemarks = gBotRemarks;
    target.m_bLoop = gBotLoop;
}
