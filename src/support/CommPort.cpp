#include "support/CommPort.h"
#include <QSerialPort>
#include <QThread>
#include "support/RuntimeError.h"

namespace {
constexpr qint32 kBaudRate = 56000;
constexpr qint64 kReceiveBuffer = 8192;
}

CommPort::CommPort() : m_serial(std::make_unique<QSerialPort>()) {}

CommPort::~CommPort() = default;

QString CommPort::deviceName(int port)
{
#ifdef Q_OS_WIN
    return QStringLiteral("COM%1").arg(port);
#else
    const QByteArray variable = "QEL_COM" + QByteArray::number(port);
    if (qEnvironmentVariableIsSet(variable.constData()))
        return qEnvironmentVariable(variable.constData());
    return QStringLiteral("/dev/ttyS%1").arg(port - 1);
#endif
}

void CommPort::setPortOpen(bool open)
{
    if (!open) {
        if (m_serial->isOpen())
            m_serial->close();
        return;
    }
    if (m_serial->isOpen())
        throw RuntimeError(QStringLiteral("Port already open"));
    m_serial->setPortName(deviceName(m_port));
    m_serial->setReadBufferSize(kReceiveBuffer);
    if (!m_serial->open(QIODevice::ReadWrite))
        throw RuntimeError(QStringLiteral("Port not available: ") + m_serial->errorString());
    if (!m_serial->setBaudRate(kBaudRate) || !m_serial->setDataBits(QSerialPort::Data8)
        || !m_serial->setParity(QSerialPort::NoParity) || !m_serial->setStopBits(QSerialPort::OneStop)
        || !m_serial->setFlowControl(QSerialPort::NoFlowControl)) {
        m_serial->close();
        throw RuntimeError(QStringLiteral("Port settings refused"));
    }
}

bool CommPort::portOpen() const { return m_serial->isOpen(); }

void CommPort::output(const QByteArray& bytes)
{
    if (!m_serial->isOpen())
        throw RuntimeError(QStringLiteral("Port not open"));
    m_serial->write(bytes);
    m_serial->flush();   // out now, not at the next turn of the event queue
}

qint64 CommPort::inBufferCount() const { return m_serial->isOpen() ? m_serial->bytesAvailable() : 0; }

QByteArray CommPort::input()
{
    if (!m_serial->isOpen())
        throw RuntimeError(QStringLiteral("Port not open"));
    return m_inputLen > 0 ? m_serial->read(m_inputLen) : m_serial->readAll();
}

void CommPort::waitForInput(int ms)
{
    if (m_serial->isOpen())
        m_serial->waitForReadyRead(ms);
    else
        QThread::msleep(static_cast<unsigned long>(ms));
}
