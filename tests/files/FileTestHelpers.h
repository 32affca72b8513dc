#pragma once
// Small helpers shared by the configuration file tests.
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include "files/CBotEvent.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "support/TestData.h"
#include "support/Windows1252.h"

// An empty text when the two byte strings are equal; otherwise where and how
// they first differ, line by line.
inline QString DescribeByteDifference(const QByteArray& actual, const QByteArray& expected)
{
    if (actual == expected)
        return QString();
    const QList<QByteArray> a = actual.split('\n');
    const QList<QByteArray> e = expected.split('\n');
    for (qsizetype i = 0; i < qMax(a.size(), e.size()); ++i) {
        const QByteArray la = i < a.size() ? a[i] : QByteArray("<missing>");
        const QByteArray le = i < e.size() ? e[i] : QByteArray("<missing>");
        if (la != le)
            return QStringLiteral("line %1 differs:\n  actual:   [%2]\n  expected: [%3]")
                .arg(i + 1)
                .arg(QString::fromLatin1(la.toPercentEncoding(" ;,.-:\\/")))
                .arg(QString::fromLatin1(le.toPercentEncoding(" ;,.-:\\/")));
    }
    return QStringLiteral("sizes differ: %1 against %2").arg(actual.size()).arg(expected.size());
}

// Compares a written file with a fixture of tests/data/files byte for byte.
#define QCOMPARE_FILE_WITH_FIXTURE(path, fixture)                                                         \
    do {                                                                                                  \
        const QByteArray expectedBytes_ = ReadBytes(TestDataPath(QStringLiteral("files/") + (fixture)));  \
        QVERIFY2(!expectedBytes_.isEmpty(), qPrintable(QStringLiteral("missing fixture ") + (fixture)));  \
        const QString diff_ = DescribeByteDifference(ReadBytes(path), expectedBytes_);                    \
        QVERIFY2(diff_.isEmpty(), qPrintable(diff_));                                                     \
    } while (false)

// Text lines, each followed by CR LF, as Windows-1252 bytes.
inline QByteArray Lines1252(const QStringList& lines)
{
    QByteArray out;
    for (const QString& line : lines)
        out += ToWindows1252(line) + QByteArray("\r\n");
    return out;
}

// Appends a scene with `parts` subscenes to gScenes, numbered by position.
inline std::shared_ptr<CScene> AddTestScene(const QString& name, int parts)
{
    auto scene = std::make_shared<CScene>();
    scene->m_iID = static_cast<qint16>(gScenes.Count());
    scene->m_strName = name;
    scene->InitPartList();
    for (int k = 1; k < parts; ++k) {
        auto part = std::make_shared<CPart>();
        part->m_iID = static_cast<qint16>(k);
        part->m_iScene = scene->m_iID;
        part->InitEventList();
        scene->AddPart(part, k + 1);
    }
    gScenes.Add(scene);
    gLastScene = static_cast<qint16>(gScenes.Count() - 1);
    return scene;
}
