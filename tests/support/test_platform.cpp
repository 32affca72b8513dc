// What the program asks of the machine.
#include <QtTest>
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QHostAddress>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include "support/Platform.h"

class TestPlatform : public QObject {
    Q_OBJECT

    QLocale m_savedDefault;

private slots:
    void initTestCase() { m_savedDefault = QLocale(); }
    void cleanup() { QLocale::setDefault(m_savedDefault); }

    void localIPAddressIsDottedIPv4()
    {
        const QString ip = LocalIPAddress();
        static const QRegularExpression dotted(QStringLiteral("^\\d{1,3}\\.\\d{1,3}\\.\\d{1,3}\\.\\d{1,3}$"));
        QVERIFY2(dotted.match(ip).hasMatch(), qPrintable(ip));
        for (const QString& part : ip.split(u'.'))
            QVERIFY(part.toInt() <= 255);
        QHostAddress address;
        QVERIFY(address.setAddress(ip));
        QCOMPARE(address.protocol(), QAbstractSocket::IPv4Protocol);
    }

    void appPathIsTheProgramsFolder()
    {
        const QString app = AppPath();
        QVERIFY(!app.isEmpty());
        QCOMPARE(app, QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
        QVERIFY(QDir(app).exists());
        QVERIFY(!app.endsWith(PathSeparator()) || app.size() == 1);
    }

    void pathSeparatorIsNative()
    {
        QCOMPARE(PathSeparator(), QString(QDir::separator()));
    }

    void shortDateFollowsTheDefaultLocale()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const QString german = ShortDateText();
        QCOMPARE(german, QLocale(QLocale::German, QLocale::Germany).toString(QDate::currentDate(), QLocale::ShortFormat));
        QVERIFY2(german.contains(u'.'), qPrintable(german));
        QVERIFY(!german.contains(u'/'));

        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const QString us = ShortDateText();
        QVERIFY2(us.contains(u'/'), qPrintable(us));
        QCOMPARE(us, QLocale(QLocale::English, QLocale::UnitedStates).toString(QDate::currentDate(), QLocale::ShortFormat));
    }

    void shortDateHasNoTime()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QVERIFY(!ShortDateText().contains(u':'));
    }

    void makeDirectoryCreatesAFolder()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString folder = dir.filePath(QStringLiteral("AutoSave"));
        QVERIFY(MakeDirectory(folder));
        QVERIFY(QDir(folder).exists());
    }

    void makeDirectoryIsFalseWhenTheFolderExists()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString folder = dir.filePath(QStringLiteral("AutoSave"));
        QVERIFY(MakeDirectory(folder));
        QVERIFY(!MakeDirectory(folder));
        QVERIFY(QDir(folder).exists());
    }

    void makeDirectoryIsFalseUnderAMissingFolder()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        QVERIFY(!MakeDirectory(dir.filePath(QStringLiteral("missing/AutoSave"))));
    }
};

QTEST_MAIN(TestPlatform)
#include "test_platform.moc"
