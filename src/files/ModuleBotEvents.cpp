#include "files/ModuleBotEvents.h"
#include <exception>
#include "files/CBotEvent.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "support/NumberFormat.h"
#include "support/TextFile.h"

void CopyBotEvent(CBotEvent& target, const CBotEvent& source)
{
    target.m_iType = source.m_iType;
    target.m_iSource = source.m_iSource;
    target.m_iRukaBot = source.m_iRukaBot;
    target.m_iSelectItem = source.m_iSelectItem;
    target.m_iEmbragueItem = source.m_iEmbragueItem;
    target.m_iItem1 = source.m_iItem1;
    target.m_iItem2 = source.m_iItem2;
    target.m_iItem3 = source.m_iItem3;
    target.m_iItem4 = source.m_iItem4;
    target.m_iItem5 = source.m_iItem5;
    target.m_iItem6 = source.m_iItem6;
    target.m_strMIDIFile1 = source.m_strMIDIFile1;
    target.m_strMIDIFile2 = source.m_strMIDIFile2;
    target.m_strMIDIFile3 = source.m_strMIDIFile3;
    target.m_strMIDIFile4 = source.m_strMIDIFile4;
    target.m_strMIDIFile5 = source.m_strMIDIFile5;
    target.m_strMIDIFile6 = source.m_strMIDIFile6;
    target.m_strRemarks = source.m_strRemarks;
    target.m_bLoop = source.m_bLoop;
}

QString BuildBotEventID(int scene, int part, int event, bool enabled)
{
    if (!enabled)
        return QString();
    const QString pattern = QStringLiteral("@@");
    return Format(event - 1, pattern) + u',' + Format(scene - 1, pattern) + u',' + Format(part - 1, pattern) + u',';
}

bool WriteBotEventsFile(const QString& indexPath, const QString& talporPath, const QString& vilnaPath)
{
    try {
        TextFileWriter index(indexPath);
        TextFileWriter talpor(talporPath);
        TextFileWriter vilna(vilnaPath);

        const QString rule = QStringLiteral(";-----------------------------------------------------");
        index.PrintLine(rule);
        index.PrintLine(QStringLiteral("; QEL RukaBot Events Configuration File"));
        index.PrintLine(rule);
        index.PrintLine();
        index.PrintLine();
        index.PrintLine();
        talpor.PrintNumber(gMainConfig.m_iTalporPort);
        talpor.PrintLine();

        for (int si = 1; si <= gScenes.Count(); ++si) {
            const CScene& scene = *gScenes.Item(si);
            const QString s = QString::number(si - 1);
            index.PrintLine(QStringLiteral("; Scene ") + s + QStringLiteral(" - ") + scene.m_strName + QStringLiteral("."));
            index.PrintLine(rule);
            index.PrintLine();
            index.PrintLine();
            for (int pi = 1; pi <= scene.m_iNumParts; ++pi) {
                const CPart& part = *scene.PartList.Item(pi);
                const QString p = QString::number(pi - 1);
                index.PrintLine(QStringLiteral("; Scene ") + s + QStringLiteral(" - Part ") + p + QStringLiteral(". "));
                index.PrintLine();
                for (int ei = 1; ei <= part.BotEvents.Count(); ++ei) {
                    const CBotEvent& bot = *part.BotEvents.Item(ei);
                    if (bot.m_iRukaBot == 5) {
                        talpor.PrintLine(s + u',' + p);
                        continue;
                    }
                    index.PrintLine(BuildBotEventID(si, pi, ei, true) + u',' + bot.m_strRemarks);
                    if (bot.m_iRukaBot == 3)
                        vilna.PrintLine(s + u',' + p);
                }
                index.PrintLine();
            }
            index.PrintLine();
            index.PrintLine();
            index.PrintLine();
        }
        index.PrintLine();
        index.PrintLine(QStringLiteral("."));
        index.PrintLine();
        index.PrintLine();
        talpor.PrintLine();
        talpor.PrintLine(QStringLiteral("."));
        talpor.PrintLine();
        talpor.PrintLine();
        vilna.PrintLine();
        index.Close();
        talpor.Close();
        vilna.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
