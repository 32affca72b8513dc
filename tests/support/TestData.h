#pragma once
// Where the tests find their hand-written fixtures, and small file helpers.
#include <QByteArray>
#include <QFile>
#include <QString>

inline QString TestDataPath(const QString& relative)
{
    return QStringLiteral(QEL_TEST_DATA) + QStringLiteral("/") + relative;
}

inline QByteArray ReadBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline bool WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}
