#include "files/ModuleVideoCapture.h"
#include <exception>
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "rules/CAction.h"
#include "rules/CEvent.h"
#include "support/Convert.h"
#include "support/TextFile.h"

namespace {

const QString kRule = QStringLiteral(";-----------------------------------------------------");

// Blanks off both ends; other white space stays.
QString trimBlanks(const QString& text)
{
    qsizetype b = 0, e = text.size();
    while (b < e && text[b] == u' ') ++b;
    while (e > b && text[e - 1] == u' ') --e;
    return text.mid(b, e - b);
}

// True when any action of any rule of the subscene targets video capture (type 10).
bool usesCapture(const CPart& part)
{
    for (const auto& rule : part.AudioEvents) {
        if (!rule || !rule->m_MsgOut)
            continue;
        for (const auto& action : *rule->m_MsgOut)
            if (action && action->m_iTargetType == 10)
                return true;
    }
    return false;
}

} // namespace

QString GetNextCommaField(const QString& line, int& position)
{
    if (position < 1)
        position = 1;
    QString field;
    while (position <= line.size()) {
        const QChar c = line[position - 1];
        ++position;
        if (c == u',')
            return field;
        field += c;
    }
    return field;
}

bool WriteVideoCaptureFile(const QString& path)
{
    try {
        TextFileWriter f(path);
        f.PrintLine(kRule);
        f.PrintLine(QStringLiteral("; QEL Video Capture Configuration File"));
        f.PrintLine(kRule);
        f.PrintLine();
        f.PrintLine();
        f.PrintLine();
        for (int pos = 1; pos <= gScenes.Count(); ++pos) {
            const CScene& scene = *gScenes.Item(pos);
            const QString s = QString::number(pos - 1);
            f.PrintLine(QStringLiteral("; Scene ") + s + QStringLiteral(" - ") + scene.m_strName + QStringLiteral("."));
            f.PrintLine(kRule);
            f.PrintLine();
            f.PrintLine();
            for (int k = 1; k <= scene.m_iNumParts; ++k) {
                const CPart& part = *scene.PartList.Item(k);
                const QString p = QString::number(k - 1);
                f.PrintLine(QStringLiteral("; Scene ") + s + QStringLiteral(" - Part ") + p + QStringLiteral(". "));
                f.PrintLine();
                const QString used = usesCapture(part) ? QStringLiteral("1") : QStringLiteral("0");
                for (int d = 0; d < gMainConfig.m_iNVideoCaps; ++d) {
                    const CVideoCapture& cap = *part.m_VideoCapture(d);
                    f.PrintLine(s + u',' + p + u',' + used + u',' + QString::number(cap.m_iFPS) + u','
                                + QString::number(cap.m_iQuality) + u',' + trimBlanks(cap.m_strRootFolder) + u','
                                + QString::number(cap.m_iNumFolders) + u',' + QString::number(cap.m_iMaxTime));
                }
                f.PrintLine();
            }
            f.PrintLine();
            f.PrintLine();
            f.PrintLine();
        }
        f.PrintLine();
        f.PrintLine(QStringLiteral("."));
        f.PrintLine();
        f.PrintLine();
        f.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadVideoCaptureFile(const QString& path)
{
    try {
        TextFileReader f(path);
        QString line = trimBlanks(f.LineInput());
        for (;;) {
            if (line.isEmpty() || line.startsWith(u';')) {
                line = trimBlanks(f.LineInput());
                continue;
            }
            if (line.startsWith(u'.'))
                break;
            if (gMainConfig.m_iNVideoCaps <= 0) {
                // No capture device is counted, so no line belongs to a block: pass it over.
                line = trimBlanks(f.LineInput());
                continue;
            }
            for (int d = 0; d < gMainConfig.m_iNVideoCaps; ++d) {
                int position = 1;
                const qint16 scene = ToInteger(GetNextCommaField(line, position));
                const qint16 sub = ToInteger(GetNextCommaField(line, position));
                if (scene >= gScenes.Count())
                    return false;
                const CScene& sc = *gScenes.Item(scene + 1);
                if (sub >= sc.PartList.Count())
                    return false;
                CVideoCapture& cap = *sc.PartList.Item(sub + 1)->m_VideoCapture(d);
                GetNextCommaField(line, position);
                cap.m_iFPS = ToInteger(GetNextCommaField(line, position));
                cap.m_iQuality = ToInteger(GetNextCommaField(line, position));
                cap.m_strRootFolder = GetNextCommaField(line, position);
                cap.m_iNumFolders = ToInteger(GetNextCommaField(line, position));
                cap.m_iMaxTime = ToInteger(GetNextCommaField(line, position));
                line = trimBlanks(f.LineInput());
            }
        }
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool WriteVideoEventsFile(const QString& path)
{
    try {
        TextFileWriter f(path);
        const QString rule = QStringLiteral(";-------------------------------------");
        f.PrintLine(rule);
        f.PrintLine(QStringLiteral("; QEL Video Events Configuration File."));
        f.PrintLine(rule);
        f.PrintLine();
        f.PrintLine();
        f.PrintLine();
        f.PrintLine(QStringLiteral("."));
        f.PrintLine();
        f.PrintLine();
        f.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
