// libFuzzer target: any bytes as Events.cfg. The reader must answer true or
// false; a failure shows its message box, which is closed at once here.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"

namespace {

// Closes every message box as soon as it is shown.
class BoxCloser : public QObject {
protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            if (auto* box = qobject_cast<QMessageBox*>(watched))
                QTimer::singleShot(0, box, [box] { box->done(QMessageBox::Ok); });
        return false;
    }
};

struct Harness {
    int argc = 3;
    char arg0[8] = "fuzz";
    char arg1[16] = "-platform";
    char arg2[16] = "offscreen";
    char* argv[4] = {arg0, arg1, arg2, nullptr};
    QApplication app{argc, argv};
    BoxCloser closer;
    QTemporaryDir dir;
    Harness() { app.installEventFilter(&closer); }
};

Harness& harness()
{
    static Harness h;
    return h;
}

// Three scenes of 2, 1 and 3 subscenes, no rules.
void resetScenes()
{
    gScenes = Collection<CScene>();
    for (int s = 0; s < 3; ++s) {
        auto scene = std::make_shared<CScene>();
        scene->m_iID = qint16(s);
        scene->InitPartList();
        const int parts = s == 0 ? 2 : s == 1 ? 1 : 3;
        for (int p = 1; p < parts; ++p) {
            auto part = std::make_shared<CPart>();
            part->m_iID = qint16(p);
            part->InitEventList();
            scene->AddPart(part, scene->PartList.Count() + 1);
        }
        gScenes.Add(scene);
    }
    gTotemAxes.Fill(4);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Harness& h = harness();
    const QString path = h.dir.filePath(QStringLiteral("Events.cfg"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    resetScenes();
    ReadEventsFile(path);
    return 0;
}
