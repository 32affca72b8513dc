#pragma once
// A serial port as the calibration dialog drives it: a port number, an open
// state, bytes out, a count of bytes waiting, and reads of a fixed length.
// The line is fixed at 56000 baud, 8 data bits, no parity, 1 stop bit.
//
// Which device is COM port n: on Windows "COMn". Elsewhere the device named by
// the environment variable QEL_COM<n> when it is set (QEL_COM1=/dev/ttyUSB0),
// otherwise /dev/ttyS<n-1>.
#include <QByteArray>
#include <QString>
#include <memory>

class QSerialPort;

class CommPort {
public:
    CommPort();
    ~CommPort();
    CommPort(const CommPort&) = delete;
    CommPort& operator=(const CommPort&) = delete;

    static QString deviceName(int port);

    void setCommPort(int port) { m_port = port; }
    int commPort() const { return m_port; }
    // Bytes taken by one read of input().
    void setInputLen(int length) { m_inputLen = length; }

    // Opening a port that is absent or busy raises a RuntimeError; closing a
    // closed port does nothing.
    void setPortOpen(bool open);
    bool portOpen() const;

    // Sends the bytes at once; a closed port raises a RuntimeError.
    void output(const QByteArray& bytes);
    // Bytes waiting in the receive buffer; 0 when the port is closed.
    qint64 inBufferCount() const;
    // Takes up to the input length from the receive buffer; a closed port raises a RuntimeError.
    QByteArray input();
    // Waits at most ms for more bytes to arrive; on a closed port the time just passes.
    void waitForInput(int ms);

private:
    std::unique_ptr<QSerialPort> m_serial;
    int m_port = 1;
    int m_inputLen = 0;
};
