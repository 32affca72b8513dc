#pragma once
// Text files in the conventions of the performance machines: Windows-1252,
// CR LF after every line written; on reading, CR LF, a lone CR or a lone LF
// ends a line. Every failure raises FileError, which the readers' and writers'
// single error trap turns into their False result.
#include <QByteArray>
#include <QFile>
#include <QString>

class TextFileWriter {
public:
    // Creates the file, replacing any file of that name.
    explicit TextFileWriter(const QString& path);
    ~TextFileWriter();
    TextFileWriter(const TextFileWriter&) = delete;
    TextFileWriter& operator=(const TextFileWriter&) = delete;

    // Writes the text and a line end.
    void PrintLine(const QString& text = QString());
    // Writes a number on its own line: " 16 ", "-1 ".
    void PrintNumber(qint64 n);
    // Writes the text with no line end.
    void Print(const QString& text);
    // Writes what is buffered and closes the file. Raises FileError if the write fails.
    void Close();

private:
    void flush();
    QFile m_file;
    QByteArray m_buffer;
};

class TextFileReader {
public:
    // Opens an existing file for reading; raises FileError if it cannot.
    explicit TextFileReader(const QString& path);
    // Reads lines from bytes already in memory, as they would be on disk.
    static TextFileReader FromBytes(const QByteArray& data);
    // Reads the next line without its line end; raises FileError at the end of the file.
    QString LineInput();
    // True when nothing is left to read.
    bool AtEnd() const { return m_pos >= m_data.size(); }
    void Close() { m_data.clear(); m_pos = 0; }

private:
    TextFileReader() = default;
    QByteArray m_data;
    qsizetype m_pos = 0;
};
