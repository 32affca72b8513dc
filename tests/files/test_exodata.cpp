// Exo1.cfg and Exo2.cfg: the golden file of a new suit and the reader's
// tolerance of separators, short lines and bad fields.
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>
#include "files/FileTestHelpers.h"
#include "files/ModuleConfig.h"
#include "files/ModuleExoData.h"
#include "files/ModuleSaveOpen.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"
#include "support/Windows1252.h"

namespace {

QStringList FixtureLines()
{
    QStringList lines;
    for (const QByteArray& l : ReadBytes(TestDataPath("files/exo_new_suit.cfg")).split('\n'))
        lines << FromWindows1252(l).remove(u'\r');
    lines.removeLast(); // after the last line end
    return lines;
}

// Fills record `index` with values that differ from the defaults in every row.
void FillMarked(int index, qint16 mark)
{
    CExoData& d = gExoData(index);
    d.m_iID = mark;
    for (int row = 0; row < kExoRows; ++row) {
        d.m_iChannel(row) = mark;
        d.m_iType(row) = 3;
        d.m_strItem(row) = QStringLiteral("mark");
        d.m_iMin(row) = mark;
        d.m_iMax(row) = mark;
    }
}

void VerifyNewSuit(int index)
{
    const CExoData& d = gExoData(index);
    QCOMPARE(d.m_iID, qint16(1));
    for (int row = 0; row < kExoRows; ++row) {
        QCOMPARE(d.m_iChannel(row), qint16(row + 1));
        QCOMPARE(d.m_iMin(row), qint16(0));
        QCOMPARE(d.m_iMax(row), qint16(255));
    }
    QCOMPARE(d.m_iType(0), qint16(0));
    QCOMPARE(d.m_iType(8), qint16(1));
    QCOMPARE(d.m_iType(26), qint16(2));
    QCOMPARE(d.m_iType(28), qint16(3));
    QCOMPARE(d.m_strItem(25), QStringLiteral("25y26"));
    QCOMPARE(d.m_strItem(28), QStringLiteral("31"));
}

} // namespace

class TestExoData : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }

    bool readLines(const QStringList& lines, int index = 0)
    {
        WriteBytes(path("in.cfg"), Lines1252(lines));
        return ReadExoDataFile(static_cast<qint16>(index), path("in.cfg"));
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        InitExoSensorLabels();
        InitExoTypeNames();
    }

    void init() { InitExoData(); }

    void writesNewSuitByteForByte()
    {
        gExoData(0).m_iID = 1; // the identity the dialog offers first
        QVERIFY(WriteExoDataFile(0, path("Exo1.cfg")));
        QCOMPARE_FILE_WITH_FIXTURE(path("Exo1.cfg"), QStringLiteral("exo_new_suit.cfg"));
        const QStringList lines = FixtureLines();
        QCOMPARE(lines[5], QStringLiteral("CI,1,RANGO,0,0,255"));
        QCOMPARE(lines[36], QStringLiteral("SEL,29,SELEC,31,0,255"));
        QCOMPARE(lines.size(), 39);
    }

    void readsNewSuit()
    {
        FillMarked(0, 9);
        QVERIFY(ReadExoDataFile(0, TestDataPath("files/exo_new_suit.cfg")));
        VerifyNewSuit(0);
    }

    void entriesAboveRow28AreNeitherWrittenNorRead()
    {
        gExoData(0).m_iID = 1;
        gExoData(0).m_iChannel(29) = 99;
        gExoData(0).m_strItem(31) = QStringLiteral("unused");
        QVERIFY(WriteExoDataFile(0, path("above.cfg")));
        QCOMPARE(ReadBytes(path("above.cfg")), ReadBytes(TestDataPath("files/exo_new_suit.cfg")));
        QVERIFY(ReadExoDataFile(0, path("above.cfg")));
        QCOMPARE(gExoData(0).m_iChannel(29), qint16(99));
    }

    void separatorLinesRemovedOrAddedReadTheSame()
    {
        QStringList lines = FixtureLines();
        QStringList without = lines.mid(0, 5);
        for (qsizetype i = 5; i < lines.size(); ++i)
            if (!lines[i].isEmpty())
                without << lines[i];
        FillMarked(0, 9);
        QVERIFY(readLines(without));
        VerifyNewSuit(0);

        QStringList extra = lines.mid(0, 5);
        for (qsizetype i = 5; i < lines.size(); ++i)
            extra << QString() << QString() << lines[i];
        FillMarked(0, 9);
        QVERIFY(readLines(extra));
        VerifyNewSuit(0);
    }

    void lineOfOneToThreeCharactersIsSkipped()
    {
        QStringList lines = FixtureLines();
        lines.insert(6, QStringLiteral("x"));
        lines.insert(8, QStringLiteral("a,b"));
        lines.insert(20, QStringLiteral("  "));
        FillMarked(0, 9);
        QVERIFY(readLines(lines));
        VerifyNewSuit(0);
    }

    void lowerCaseTypeKeepsTheRecordsType()
    {
        QStringList lines = FixtureLines();
        lines[5] = QStringLiteral("CI,1,onoff,0,0,255");
        lines[6] = QStringLiteral("CD,2,Doble,1,0,255");
        gExoData(0).m_iType(0) = 3;
        gExoData(0).m_iType(1) = 1;
        QVERIFY(readLines(lines));
        QCOMPARE(gExoData(0).m_iType(0), qint16(3));
        QCOMPARE(gExoData(0).m_iType(1), qint16(1));
        QCOMPARE(gExoData(0).m_iType(2), qint16(0));
    }

    void emptyLettersOrOversizedNumbersReadAsZero()
    {
        QStringList lines = FixtureLines();
        lines[5] = QStringLiteral("CI,,RANGO,0,,");
        lines[6] = QStringLiteral("CD,abc,RANGO,1,x1,12z");
        lines[7] = QStringLiteral("HI,40000,RANGO,2,32768,99999");
        lines[8] = QStringLiteral("HD, 7 ,RANGO,3, -5 ,32767");
        QVERIFY(readLines(lines));
        const CExoData& d = gExoData(0);
        for (int row = 0; row <= 2; ++row) {
            QCOMPARE(d.m_iChannel(row), qint16(0));
            QCOMPARE(d.m_iMin(row), qint16(0));
            QCOMPARE(d.m_iMax(row), qint16(0));
        }
        QCOMPARE(d.m_iChannel(3), qint16(7));
        QCOMPARE(d.m_iMin(3), qint16(-5));
        QCOMPARE(d.m_iMax(3), qint16(32767));
    }

    void rowWithFewerFieldsReadsMissingOnesAsEmpty()
    {
        QStringList lines = FixtureLines();
        lines[5] = QStringLiteral("CI,4,ONOFF");
        lines[6] = QStringLiteral("CD,5,DOBLE,7y8,12");
        QVERIFY(readLines(lines));
        const CExoData& d = gExoData(0);
        QCOMPARE(d.m_iChannel(0), qint16(4));
        QCOMPARE(d.m_iType(0), qint16(1));
        QCOMPARE(d.m_strItem(0), QString());
        QCOMPARE(d.m_iMin(0), qint16(0));
        QCOMPARE(d.m_iMax(0), qint16(0));
        QCOMPARE(d.m_strItem(1), QStringLiteral("7y8"));
        QCOMPARE(d.m_iMin(1), qint16(12));
        QCOMPARE(d.m_iMax(1), qint16(0));
    }

    void changedLabelHasNoEffect()
    {
        QStringList lines = FixtureLines();
        lines[5] = QStringLiteral("SEL,3,SELEC,99,1,2");   // row 0 with the label of row 28
        lines[36] = QStringLiteral("CI,30,RANGO,5,6,7");   // row 28 with the label of row 0
        QVERIFY(readLines(lines));
        const CExoData& d = gExoData(0);
        QCOMPARE(d.m_iChannel(0), qint16(3));
        QCOMPARE(d.m_iType(0), qint16(3));
        QCOMPARE(d.m_strItem(0), QStringLiteral("99"));
        QCOMPARE(d.m_iChannel(28), qint16(30));
        QCOMPARE(d.m_iType(28), qint16(0));
        QCOMPARE(d.m_iMax(28), qint16(7));
    }

    void fileEndingAfterRow27FailsKeepingRowsRead()
    {
        QStringList lines = FixtureLines().mid(0, 35); // head, rows 0 to 27 with their separators
        QCOMPARE(lines.last(), QStringLiteral("C5yC6,28,DOBLE,29y30,0,255"));
        lines[5] = QStringLiteral("CI,1,RANGO,0,10,20");
        lines[34] = QStringLiteral("C5yC6,28,DOBLE,29y30,30,40");
        gExoData(0).m_iMin(28) = 123;
        QVERIFY(!readLines(lines));
        QCOMPARE(gExoData(0).m_iMin(0), qint16(10));
        QCOMPARE(gExoData(0).m_iMax(27), qint16(40));
        QCOMPARE(gExoData(0).m_iMin(28), qint16(123));
    }

    void identityReadsTheSameWithOrWithoutBlanks()
    {
        QStringList lines = FixtureLines();
        lines[1] = QStringLiteral(" 2 ");
        QVERIFY(readLines(lines));
        QCOMPARE(gExoData(0).m_iID, qint16(2));
        lines[1] = QStringLiteral("2");
        gExoData(0).m_iID = 0;
        QVERIFY(readLines(lines));
        QCOMPARE(gExoData(0).m_iID, qint16(2));
        lines[1] = QStringLiteral("two");
        QVERIFY(readLines(lines));
        QCOMPARE(gExoData(0).m_iID, qint16(0));
    }

    void eachSuitHasItsOwnFileByRecord()
    {
        CMainConfig& c = gMainConfig;
        c.m_iNExos = 2;
        c.m_iNArduinos = 0;
        c.m_iNTotems = c.m_iNOSCs = c.m_iNQDMs = c.m_iNMIDIs = c.m_iNFlash = c.m_iNVideoCaps = 0;
        gNDigitalIO = 0;
        QVERIFY(WriteMainConfigFile(path("two.qel")));
        QCOMPARE(c.m_strExoDataFile(0), QStringLiteral("Exo1.cfg"));
        QCOMPARE(c.m_strExoDataFile(1), QStringLiteral("Exo2.cfg"));
        FillMarked(0, 1);
        FillMarked(1, 2);
        for (int i = 1; i <= c.m_iNExos; ++i)
            QVERIFY(WriteExoDataFile(static_cast<qint16>(i - 1), path(c.m_strExoDataFile(i - 1))));
        QVERIFY(ReadBytes(path("Exo1.cfg")).startsWith("; Exoskeleton ID.\r\n 1 \r\n"));
        QVERIFY(ReadBytes(path("Exo2.cfg")).startsWith("; Exoskeleton ID.\r\n 2 \r\n"));
        FillMarked(0, 7);
        FillMarked(1, 7);
        for (int i = 1; i <= c.m_iNExos; ++i)
            QVERIFY(ReadExoDataFile(static_cast<qint16>(i - 1), path(c.m_strExoDataFile(i - 1))));
        QCOMPARE(gExoData(0).m_iChannel(5), qint16(1));
        QCOMPARE(gExoData(1).m_iChannel(5), qint16(2));

        // One suit: the main file names only Exo1.cfg and record 1 is not touched.
        c.m_iNExos = 1;
        c.m_strExoDataFile(1) = QStringLiteral("kept");
        QVERIFY(WriteMainConfigFile(path("one.qel")));
        QVERIFY(ReadBytes(path("one.qel")).contains("; Exoskeletons Calibration Files:\r\nExo1.cfg\r\n\r\n"));
        QCOMPARE(c.m_strExoDataFile(1), QStringLiteral("kept"));
        FillMarked(1, 5);
        QVERIFY(ReadExoDataFile(0, path("Exo1.cfg")));
        QCOMPARE(gExoData(1).m_iChannel(5), qint16(5));
    }

    void oneSuitSavesNoSecondFileAndKeepsTheSecondRecord()
    {
        CMainConfig& c = gMainConfig;
        c.m_iNExos = 1;
        c.m_iNArduinos = 0;
        c.m_iNTotems = c.m_iNOSCs = c.m_iNQDMs = c.m_iNMIDIs = c.m_iNFlash = c.m_iNVideoCaps = 0;
        gNDigitalIO = 0;
        gScenes.Clear();
        gLastScene = -1;
        FillMarked(0, 3);
        FillMarked(1, 4);
        QTemporaryDir dir;
        DialogDriver noMessages(3000);   // any message box fails the test
        DeriveConfigPaths(QDir::toNativeSeparators(dir.filePath(QStringLiteral("OneSuit.qel"))));
        SaveConfiguration(gConfigFilePath);
        QVERIFY2(noMessages.finished(), qPrintable(noMessages.error()));
        const QString folder = dir.filePath(QStringLiteral("OneSuit"));
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/Exo1.cfg")));
        QVERIFY(!QFileInfo::exists(folder + QStringLiteral("/Exo2.cfg")));
        QVERIFY(ReadBytes(folder + QStringLiteral("/Exo1.cfg")).startsWith("; Exoskeleton ID.\r\n 3 \r\n"));
        FillMarked(0, 9);
        QVERIFY(ReadExoDataFile(0, folder + QStringLiteral("/Exo1.cfg")));
        QCOMPARE(gExoData(0).m_iChannel(5), qint16(3));
        QCOMPARE(gExoData(1).m_iChannel(5), qint16(4));   // record 1 keeps its values in memory
        QCOMPARE(gExoData(1).m_iID, qint16(4));
    }

    void typeOutsideTheTableFailsTheWriteKeepingWhatWasWritten()
    {
        gExoData(0).m_iType(10) = 4;
        QVERIFY(!WriteExoDataFile(0, path("badtype.cfg")));
        const QByteArray bytes = ReadBytes(path("badtype.cfg"));
        QVERIFY(bytes.contains("FCD,10,ONOFF,9,0,255\r\n"));
        QVERIFY(!bytes.contains("P1,"));
    }

    void badIndexOrPathFails()
    {
        QVERIFY(!WriteExoDataFile(2, path("idx.cfg")));
        QVERIFY(!ReadExoDataFile(-1, TestDataPath("files/exo_new_suit.cfg")));
        QVERIFY(!WriteExoDataFile(0, path("no-folder/Exo1.cfg")));
        QVERIFY(!ReadExoDataFile(0, path("missing.cfg")));
    }
};

QTEST_MAIN(TestExoData)
#include "test_exodata.moc"
