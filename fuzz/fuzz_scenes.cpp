// libFuzzer target: the scenes file reader on arbitrary bytes, with two Flash players.
#include <cstddef>
#include <cstdint>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include "files/ModuleScenes.h"
#include "model/CMainConfig.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QString path = QDir::temp().filePath(
        QStringLiteral("fuzz_scenes_%1.cfg").arg(QCoreApplication::applicationPid()));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    gMainConfig.m_iNFlash = 2;
    ReadScenesFile(path);
    return 0;
}
