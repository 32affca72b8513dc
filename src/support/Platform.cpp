#include "support/Platform.h"
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QLocale>
#include <QNetworkInterface>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

QString LocalIPAddress()
{
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& iface : interfaces) {
        const auto flags = iface.flags();
        if (!(flags & QNetworkInterface::IsUp) || (flags & QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry& entry : iface.addressEntries()) {
            const QHostAddress ip = entry.ip();
            if (ip.protocol() == QAbstractSocket::IPv4Protocol && !ip.isLoopback())
                return ip.toString();
        }
    }
    return QStringLiteral("127.0.0.1");
}

QString AppPath() { return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()); }

QString ShortDateText() { return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat); }

bool MakeDirectory(const QString& path) { return QDir().mkdir(path); }

QString PathSeparator() { return QString(QDir::separator()); }

void ConfigureMemoryAllocator()
{
#if defined(__GLIBC__)
    mallopt(M_MXFAST, 0);
#endif
}
