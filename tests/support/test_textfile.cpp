// Text files with CR LF line ends in the machines' code page.
#include <QtTest>
#include <QTemporaryDir>
#include "support/RuntimeError.h"
#include "support/TextFile.h"
#include "support/TestData.h"

class TestTextFile : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }

    QStringList readAll(const QByteArray& bytes)
    {
        const QString file = path(QStringLiteral("in.txt"));
        if (!WriteBytes(file, bytes))
            return {QStringLiteral("<cannot write fixture>")};
        TextFileReader reader(file);
        QStringList lines;
        while (!reader.AtEnd())
            lines << reader.LineInput();
        reader.Close();
        return lines;
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void everyLineEndsInCrLf()
    {
        const QString file = path(QStringLiteral("lines.txt"));
        TextFileWriter w(file);
        w.PrintLine(QStringLiteral("; Exoskeleton ID."));
        w.PrintLine();
        w.PrintLine(QStringLiteral("last"));
        w.Close();
        QCOMPARE(ReadBytes(file), QByteArray("; Exoskeleton ID.\r\n\r\nlast\r\n"));
    }

    void printNumberWritesTheNumberLine()
    {
        const QString file = path(QStringLiteral("numbers.txt"));
        TextFileWriter w(file);
        w.PrintNumber(16);
        w.PrintNumber(-1);
        w.PrintNumber(0);
        w.Close();
        QCOMPARE(ReadBytes(file), QByteArray(" 16 \r\n-1 \r\n 0 \r\n"));
    }

    void printWritesNoLineEnd()
    {
        const QString file = path(QStringLiteral("print.txt"));
        TextFileWriter w(file);
        w.Print(QStringLiteral("a"));
        w.Print(QStringLiteral("b"));
        w.PrintLine(QStringLiteral("c"));
        w.Print(QStringLiteral("tail"));
        w.Close();
        QCOMPARE(ReadBytes(file), QByteArray("abc\r\ntail"));
    }

    void textIsWrittenInWindows1252()
    {
        const QString file = path(QStringLiteral("cp.txt"));
        TextFileWriter w(file);
        w.PrintLine(QStringLiteral("\u00E9\u20AC\u03A9"));
        w.Close();
        QCOMPARE(ReadBytes(file), QByteArray("\xE9\x80?\r\n"));
    }

    void emptyFileWhenNothingIsWritten()
    {
        const QString file = path(QStringLiteral("empty.txt"));
        TextFileWriter w(file);
        w.Close();
        QVERIFY(QFile::exists(file));
        QCOMPARE(ReadBytes(file), QByteArray());
    }

    void creatingReplacesAnExistingFile()
    {
        const QString file = path(QStringLiteral("replace.txt"));
        QVERIFY(WriteBytes(file, QByteArray("a much longer old content\r\nsecond line\r\n")));
        TextFileWriter w(file);
        w.PrintLine(QStringLiteral("new"));
        w.Close();
        QCOMPARE(ReadBytes(file), QByteArray("new\r\n"));
    }

    void destructorKeepsWhatWasWritten()
    {
        const QString file = path(QStringLiteral("unclosed.txt"));
        {
            TextFileWriter w(file);
            w.PrintLine(QStringLiteral("half"));
            w.PrintNumber(3);
        }
        QCOMPARE(ReadBytes(file), QByteArray("half\r\n 3 \r\n"));
    }

    void writerLeftByAnErrorKeepsWhatWasWritten()
    {
        const QString file = path(QStringLiteral("trapped.txt"));
        bool result = true;
        try {
            TextFileWriter w(file);
            w.PrintLine(QStringLiteral("one"));
            throw RangeError();
        } catch (const std::exception&) {
            result = false;
        }
        QVERIFY(!result);
        QCOMPARE(ReadBytes(file), QByteArray("one\r\n"));
    }

    void largeFileIsWrittenWhole()
    {
        const QString file = path(QStringLiteral("large.txt"));
        QByteArray expected;
        TextFileWriter w(file);
        for (int i = 0; i < 20000; ++i) {
            w.PrintLine(QStringLiteral("line %1").arg(i));
            expected += "line " + QByteArray::number(i) + "\r\n";
        }
        w.Close();
        QCOMPARE(ReadBytes(file), expected);
    }

    void writeAfterCloseRaises()
    {
        TextFileWriter w(path(QStringLiteral("closed.txt")));
        w.Close();
        QVERIFY_THROWS_EXCEPTION(FileError, w.PrintLine(QStringLiteral("x")));
        w.Close();   // a second Close does nothing
    }

    void creatingInAMissingFolderRaises()
    {
        const QString file = path(QStringLiteral("no such folder/file.txt"));
        QVERIFY_THROWS_EXCEPTION(FileError, TextFileWriter{file});
        QVERIFY(!QFile::exists(file));
    }

    void openingAMissingFileRaises()
    {
        QVERIFY_THROWS_EXCEPTION(FileError, TextFileReader{path(QStringLiteral("missing.txt"))});
    }

    void openingAFolderRaises()
    {
        QVERIFY_THROWS_EXCEPTION(FileError, TextFileReader{m_dir.path()});
    }

    void creatingOverAFolderRaises()
    {
        const QString folder = path(QStringLiteral("a folder"));
        QVERIFY(QDir().mkdir(folder));
        QVERIFY_THROWS_EXCEPTION(FileError, TextFileWriter{folder});
        QVERIFY(QFileInfo(folder).isDir());
    }

    void fileErrorIsARuntimeError()
    {
        bool caught = false;
        try {
            TextFileReader r(path(QStringLiteral("missing.txt")));
        } catch (const RuntimeError&) {
            caught = true;
        }
        QVERIFY(caught);
    }

    void readsCrLfLines()
    {
        QCOMPARE(readAll("a\r\nb\r\n"), (QStringList{"a", "b"}));
    }

    void readsLoneCrLines()
    {
        QCOMPARE(readAll("a\rb\r"), (QStringList{"a", "b"}));
    }

    void readsLoneLfLines()
    {
        QCOMPARE(readAll("a\nb\n"), (QStringList{"a", "b"}));
    }

    void readsMixedLineEnds()
    {
        QCOMPARE(readAll("one\r\ntwo\nthree\rfour\r\n"), (QStringList{"one", "two", "three", "four"}));
    }

    void readsALastLineWithoutEnd()
    {
        QCOMPARE(readAll("a\r\nlast"), (QStringList{"a", "last"}));
        QCOMPARE(readAll("only"), (QStringList{"only"}));
    }

    void readsEmptyLines()
    {
        QCOMPARE(readAll("a\r\n\r\nb\r\n\r\n"), (QStringList{"a", "", "b", ""}));
        QCOMPARE(readAll("\r\n"), (QStringList{""}));
        QCOMPARE(readAll("\n\n"), (QStringList{"", ""}));
        QCOMPARE(readAll("a\r\r\nb"), (QStringList{"a", "", "b"}));
    }

    void lineKeepsItsBlanks()
    {
        QCOMPARE(readAll(" 16 \r\n-1 \r\n"), (QStringList{" 16 ", "-1 "}));
    }

    void readsWindows1252()
    {
        QCOMPARE(readAll("\xE9\x80\r\n"), (QStringList{QStringLiteral("\u00E9\u20AC")}));
    }

    void atEndAfterTheLastLine()
    {
        const QString file = path(QStringLiteral("atend.txt"));
        QVERIFY(WriteBytes(file, "a\r\nb\r\n"));
        TextFileReader r(file);
        QVERIFY(!r.AtEnd());
        QCOMPARE(r.LineInput(), QStringLiteral("a"));
        QVERIFY(!r.AtEnd());
        QCOMPARE(r.LineInput(), QStringLiteral("b"));
        QVERIFY(r.AtEnd());
    }

    void emptyFileIsAtEndAtOnce()
    {
        const QString file = path(QStringLiteral("empty-in.txt"));
        QVERIFY(WriteBytes(file, QByteArray()));
        TextFileReader r(file);
        QVERIFY(r.AtEnd());
        QVERIFY_THROWS_EXCEPTION(FileError, r.LineInput());
    }

    void readingPastTheEndRaises()
    {
        const QString file = path(QStringLiteral("past.txt"));
        QVERIFY(WriteBytes(file, "a\r\nb"));
        TextFileReader r(file);
        QCOMPARE(r.LineInput(), QStringLiteral("a"));
        QCOMPARE(r.LineInput(), QStringLiteral("b"));
        QVERIFY_THROWS_EXCEPTION(FileError, r.LineInput());
        QVERIFY_THROWS_EXCEPTION(FileError, r.LineInput());
    }

    void writtenFileReadsBack()
    {
        const QString file = path(QStringLiteral("roundtrip.txt"));
        TextFileWriter w(file);
        w.PrintLine(QStringLiteral("Sensor,Canal,Tipo,Item,Min,Max"));
        w.PrintNumber(2);
        w.PrintLine();
        w.PrintLine(QStringLiteral("Coraz\u00F3n"));
        w.Close();
        TextFileReader r(file);
        QCOMPARE(r.LineInput(), QStringLiteral("Sensor,Canal,Tipo,Item,Min,Max"));
        QCOMPARE(r.LineInput(), QStringLiteral(" 2 "));
        QCOMPARE(r.LineInput(), QString());
        QCOMPARE(r.LineInput(), QStringLiteral("Coraz\u00F3n"));
        QVERIFY(r.AtEnd());
    }

    void closedReaderIsAtEnd()
    {
        const QString file = path(QStringLiteral("close-reader.txt"));
        QVERIFY(WriteBytes(file, "a\r\nb\r\n"));
        TextFileReader r(file);
        r.Close();
        QVERIFY(r.AtEnd());
        QVERIFY_THROWS_EXCEPTION(FileError, r.LineInput());
    }
};

QTEST_MAIN(TestTextFile)
#include "test_textfile.moc"
