// libFuzzer target: the exoskeleton data file reader on arbitrary bytes.
#include <cstddef>
#include <cstdint>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include "files/ModuleExoData.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QString path = QDir::temp().filePath(
        QStringLiteral("fuzz_exodata_%1.cfg").arg(QCoreApplication::applicationPid()));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    ReadExoDataFile(0, path);
    return 0;
}
