// libFuzzer target: the video capture file reader on arbitrary bytes, over two
// scenes of one and two subscenes with two capture devices.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include "files/ModuleVideoCapture.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"

namespace {
void addScene(int parts)
{
    auto scene = std::make_shared<CScene>();
    scene->m_iID = static_cast<qint16>(gScenes.Count());
    scene->InitPartList();
    for (int k = 1; k < parts; ++k) {
        auto part = std::make_shared<CPart>();
        part->m_iID = static_cast<qint16>(k);
        part->InitEventList();
        scene->AddPart(part, k + 1);
    }
    gScenes.Add(scene);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QString path = QDir::temp().filePath(
        QStringLiteral("fuzz_videocapture_%1.cfg").arg(QCoreApplication::applicationPid()));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    gMainConfig.m_iNVideoCaps = 2;
    if (gScenes.Count() != 2) {
        gScenes.Clear();
        addScene(1);
        addScene(2);
    }
    ReadVideoCaptureFile(path);
    return 0;
}
