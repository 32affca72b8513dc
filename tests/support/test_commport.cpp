// The serial port of the calibration: which device stands for COM port n, and
// what a port that cannot be opened does.
#include <QtTest>
#include "support/CommPort.h"
#include "support/RuntimeError.h"

class TestCommPort : public QObject {
    Q_OBJECT
private slots:
    void cleanup()
    {
        qunsetenv("QEL_COM1");
        qunsetenv("QEL_COM4");
    }

    void aPortNamesItsDevice()
    {
#ifdef Q_OS_WIN
        QCOMPARE(CommPort::deviceName(1), QStringLiteral("COM1"));
        QCOMPARE(CommPort::deviceName(12), QStringLiteral("COM12"));
#else
        qunsetenv("QEL_COM1");
        qunsetenv("QEL_COM4");
        QCOMPARE(CommPort::deviceName(1), QStringLiteral("/dev/ttyS0"));
        QCOMPARE(CommPort::deviceName(4), QStringLiteral("/dev/ttyS3"));
        // A USB adapter, or a pseudo-terminal, is named in the environment.
        qputenv("QEL_COM4", "/dev/ttyUSB0");
        QCOMPARE(CommPort::deviceName(4), QStringLiteral("/dev/ttyUSB0"));
        QCOMPARE(CommPort::deviceName(1), QStringLiteral("/dev/ttyS0"));
#endif
    }

    void anAbsentPortFailsToOpenAndStaysClosed()
    {
#ifndef Q_OS_WIN
        qputenv("QEL_COM1", "/nonexistent/qel-no-such-port");
#endif
        CommPort port;
        port.setCommPort(1);
        port.setInputLen(32);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, port.setPortOpen(true));
        QVERIFY(!port.portOpen());
        QCOMPARE(port.inBufferCount(), qint64(0));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, port.output(QByteArray(4, '\0')));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, port.input());
        // Closing a closed port does nothing.
        port.setPortOpen(false);
        QVERIFY(!port.portOpen());
    }
};

QTEST_MAIN(TestCommPort)
#include "test_commport.moc"
