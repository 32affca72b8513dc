#include "files/ModuleScenes.h"
#include <exception>
#include <memory>
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "support/Convert.h"
#include "support/TextFile.h"

namespace {

const QString kSevenBlanks = QString(7, u' ');

QString trimBlanks(const QString& text)
{
    qsizetype b = 0, e = text.size();
    while (b < e && text[b] == u' ') ++b;
    while (e > b && text[e - 1] == u' ') --e;
    return text.mid(b, e - b);
}

void skip(TextFileReader& f, int n)
{
    for (int i = 0; i < n; ++i)
        f.LineInput();
}

void writePart(TextFileWriter& f, const CPart& part, int k)
{
    f.PrintLine(QStringLiteral(";      Part ") + QString::number(k - 1) + QStringLiteral(":"));
    f.PrintLine(QStringLiteral(";      --------"));
    f.PrintLine();
    f.PrintLine(QStringLiteral(";      ID:"));
    f.PrintLine(kSevenBlanks + QString::number(part.m_iID));
    f.PrintLine();
    f.PrintLine(QStringLiteral(";      Name:"));
    f.PrintLine(kSevenBlanks + part.m_strName);
    f.PrintLine();
    f.PrintLine(QStringLiteral(";      Remarks:"));
    f.PrintLine(kSevenBlanks + part.m_strRemarks);
    f.PrintLine();
}

} // namespace

bool WriteScenesFile(const QString& path)
{
    try {
        TextFileWriter f(path);
        const QString rule = QStringLiteral(";---------------------------------------");
        f.PrintLine(rule);
        f.PrintLine(QStringLiteral("; QEL Scenes & Parts Configuration File"));
        f.PrintLine(rule);
        f.PrintLine();
        f.PrintLine();
        f.PrintLine(QStringLiteral("; Title:"));
        f.PrintLine(gMainConfig.m_strName);
        f.PrintLine();
        f.PrintLine(QStringLiteral("; Number of Scenes:"));
        f.PrintNumber(gScenes.Count());
        f.PrintLine();
        f.PrintLine();
        for (int i = 1; i <= gScenes.Count(); ++i) {
            const CScene& scene = *gScenes.Item(i);
            f.PrintLine(QStringLiteral("; Scene ") + QString::number(i - 1) + QStringLiteral(":"));
            f.PrintLine(QStringLiteral(";-------------------"));
            f.PrintLine();
            f.PrintLine(QStringLiteral("; ID:"));
            f.PrintNumber(scene.m_iID);
            f.PrintLine();
            f.PrintLine(QStringLiteral("; Name:"));
            f.PrintLine(scene.m_strName);
            f.PrintLine();
            f.PrintLine(QStringLiteral("; Color:"));
            f.PrintNumber(scene.m_iColor);
            f.PrintLine();
            f.PrintLine(QStringLiteral("; Remarks:"));
            f.PrintLine(scene.m_strRemarks);
            f.PrintLine();
            f.PrintLine(QStringLiteral("; SWF Path:"));
            for (int j = 0; j < gMainConfig.m_iNFlash; ++j)
                f.PrintLine(scene.m_strMovie(j));
            f.PrintLine();
            f.PrintLine(QStringLiteral("; Number of Parts:"));
            f.PrintNumber(scene.m_iNumParts);
            f.PrintLine();
            for (int k = 1; k <= scene.m_iNumParts; ++k)
                writePart(f, *scene.PartList.Item(k), k);
            f.PrintLine();
        }
        f.PrintLine();
        f.PrintLine();
        f.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadScenesFile(const QString& path)
{
    try {
        gLastScene = -1;
        gScenes.Clear();
        TextFileReader f(path);
        skip(f, 9);
        const qint16 count = ToInteger(f.LineInput());
        skip(f, 2);
        for (int i = 1; i <= count; ++i) {
            skip(f, 3);
            auto scene = std::make_shared<CScene>();
            skip(f, 1);
            scene->m_iID = ToInteger(f.LineInput());
            skip(f, 1);
            skip(f, 1);
            scene->m_strName = f.LineInput();
            skip(f, 1);
            if (f.LineInput() == QStringLiteral("; Color:")) {
                scene->m_iColor = ToInteger(f.LineInput());
                skip(f, 2);
            }
            scene->m_strRemarks = f.LineInput();
            skip(f, 2);
            for (int j = 0; j < gMainConfig.m_iNFlash; ++j)
                scene->m_strMovie(j) = f.LineInput();
            skip(f, 1);
            scene->m_iNumParts = 0;
            scene->PartList = Collection<CPart>();
            skip(f, 1);
            const qint16 parts = ToInteger(f.LineInput());
            skip(f, 1);
            for (int k = 1; k <= parts; ++k) {
                skip(f, 3);
                auto part = std::make_shared<CPart>();
                skip(f, 1);
                part->m_iID = ToInteger(f.LineInput());
                skip(f, 2);
                part->m_strName = trimBlanks(f.LineInput());
                skip(f, 2);
                part->m_strRemarks = trimBlanks(f.LineInput());
                skip(f, 1);
                part->m_iScene = scene->m_iID;
                part->InitEventList();
                scene->AddPart(part, k);
            }
            gScenes.Add(scene);
            ++gLastScene;
            skip(f, 1);
        }
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool WriteSceneNamesFile(const QString& path)
{
    try {
        TextFileWriter f(path);
        f.PrintNumber(gScenes.Count());
        f.PrintLine();
        for (int i = 1; i <= gScenes.Count(); ++i)
            f.PrintLine(QString::number(i - 1) + QStringLiteral(" - ") + gScenes.Item(i)->m_strName);
        f.PrintLine();
        f.PrintLine();
        f.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
