#include "support/TextFile.h"
#include "support/NumberFormat.h"
#include "support/RuntimeError.h"
#include "support/Windows1252.h"

namespace {
constexpr qsizetype kFlushSize = 1 << 16;
}

TextFileWriter::TextFileWriter(const QString& path) : m_file(path)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw FileError(QStringLiteral("Cannot create %1: %2").arg(path, m_file.errorString()));
    m_buffer.reserve(kFlushSize + 4096);
}

TextFileWriter::~TextFileWriter()
{
    // A writer left by an error still puts on disk what was written so far.
    if (m_file.isOpen()) {
        m_file.write(m_buffer);
        m_file.close();
    }
}

void TextFileWriter::Print(const QString& text)
{
    if (!m_file.isOpen())
        throw FileError(QStringLiteral("File not open"));
    AppendWindows1252(m_buffer, text);
    if (m_buffer.size() >= kFlushSize)
        flush();
}

void TextFileWriter::PrintLine(const QString& text)
{
    Print(text);
    m_buffer += "\r\n";
}

void TextFileWriter::PrintNumber(qint64 n) { PrintLine(NumberLine(n)); }

void TextFileWriter::flush()
{
    if (m_file.write(m_buffer) != m_buffer.size())
        throw FileError(QStringLiteral("Cannot write %1: %2").arg(m_file.fileName(), m_file.errorString()));
    m_buffer.resize(0);   // keeps the allocation for the next lines
}

void TextFileWriter::Close()
{
    if (!m_file.isOpen())
        return;
    flush();
    if (!m_file.flush())
        throw FileError(QStringLiteral("Cannot write %1").arg(m_file.fileName()));
    m_file.close();
}

TextFileReader::TextFileReader(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw FileError(QStringLiteral("Cannot open %1: %2").arg(path, file.errorString()));
    m_data = file.readAll();
}

TextFileReader TextFileReader::FromBytes(const QByteArray& data)
{
    TextFileReader reader;
    reader.m_data = data;
    return reader;
}

QString TextFileReader::LineInput()
{
    if (AtEnd())
        throw FileError(QStringLiteral("Input past end of file"));
    const char* p = m_data.constData();
    qsizetype end = m_pos;
    while (end < m_data.size() && p[end] != '\r' && p[end] != '\n')
        ++end;
    QString line = FromWindows1252(p + m_pos, end - m_pos);
    m_pos = end;
    if (m_pos < m_data.size()) {
        if (p[m_pos] == '\r' && m_pos + 1 < m_data.size() && p[m_pos + 1] == '\n')
            m_pos += 2;
        else
            ++m_pos;
    }
    return line;
}
