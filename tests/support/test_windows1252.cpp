// The code page of the performance machines.
#include <QtTest>
#include "support/Windows1252.h"

class TestWindows1252 : public QObject {
    Q_OBJECT
private slots:
    void everyByteSurvivesARoundTrip()
    {
        for (int b = 0; b <= 0xFF; ++b) {
            const QByteArray in(1, static_cast<char>(b));
            const QString text = FromWindows1252(in);
            QCOMPARE(text.size(), 1);
            QCOMPARE(ToWindows1252(text), in);
        }
    }

    void allBytesAtOnceSurviveARoundTrip()
    {
        QByteArray all;
        for (int b = 0; b <= 0xFF; ++b)
            all += static_cast<char>(b);
        const QString text = FromWindows1252(all);
        QCOMPARE(text.size(), 256);
        QCOMPARE(ToWindows1252(text), all);
        QCOMPARE(FromWindows1252(all.constData(), all.size()), text);
    }

    void asciiAndLatin1MapToThemselves()
    {
        for (int b = 0; b <= 0xFF; ++b) {
            if (b >= 0x80 && b <= 0x9F)
                continue;
            QCOMPARE(FromWindows1252(QByteArray(1, static_cast<char>(b))).at(0).unicode(), char16_t(b));
        }
    }

    void highBlockMapsToItsCharacters()
    {
        const QByteArray bytes("\x80\x82\x85\x8A\x8C\x91\x92\x93\x94\x96\x97\x99\x9F", 13);
        QCOMPARE(FromWindows1252(bytes),
                 QStringLiteral("\u20AC\u201A\u2026\u0160\u0152\u2018\u2019\u201C\u201D\u2013\u2014\u2122\u0178"));
    }

    void unassignedBytesBecomeTheirControlCharacters()
    {
        for (int b : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
            const QString text = FromWindows1252(QByteArray(1, static_cast<char>(b)));
            QCOMPARE(int(text.at(0).unicode()), b);
        }
    }

    void accentedLetterIsOneByte()
    {
        QCOMPARE(ToWindows1252(QStringLiteral("\u00E9")), QByteArray("\xE9"));
        QCOMPARE(ToWindows1252(QStringLiteral("Pulsador Dedo \u00CDndice Izquierdo")),
                 QByteArray("Pulsador Dedo \xCDndice Izquierdo"));
        QCOMPARE(ToWindows1252(QStringLiteral("Coraz\u00F3n")), QByteArray("Coraz\xF3n"));
    }

    void euroSignIs0x80()
    {
        QCOMPARE(ToWindows1252(QStringLiteral("\u20AC")), QByteArray("\x80"));
        QCOMPARE(FromWindows1252(QByteArray("\x80")), QStringLiteral("\u20AC"));
    }

    void characterWithoutCodeBecomesQuestionMark()
    {
        QCOMPARE(ToWindows1252(QStringLiteral("\u03A9")), QByteArray("?"));
        QCOMPARE(ToWindows1252(QStringLiteral("a\u03A9b")), QByteArray("a?b"));
        QCOMPARE(ToWindows1252(QStringLiteral("\u4E2D")), QByteArray("?"));
    }

    void emojiBecomesOneQuestionMark()
    {
        const QString emoji = QString::fromUtf8("x\xF0\x9F\x98\x80y");   // U+1F600 between x and y
        QCOMPARE(emoji.size(), 4);
        QCOMPARE(ToWindows1252(emoji), QByteArray("x?y"));
    }

    void loneSurrogateBecomesQuestionMark()
    {
        QString lone;
        lone += QChar(u'a');
        lone += QChar(char16_t(0xD83D));
        lone += QChar(u'b');
        QCOMPARE(ToWindows1252(lone), QByteArray("a?b"));
    }

    void emptyTextIsNoBytes()
    {
        QCOMPARE(ToWindows1252(QString()), QByteArray());
        QCOMPARE(FromWindows1252(QByteArray()), QString());
    }
};

QTEST_MAIN(TestWindows1252)
#include "test_windows1252.moc"
