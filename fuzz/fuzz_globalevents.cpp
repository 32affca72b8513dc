// libFuzzer target: any bytes as GlobalEvents.cfg. The reader must answer true or
// false; a failure shows its message box, which is closed at once here.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include "model/ModuleGlobals.h"
#include "rules/ModuleGlobalEvents.h"

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Harness& h = harness();
    const QString path = h.dir.filePath(QStringLiteral("GlobalEvents.cfg"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    gTotemAxes.Fill(4);
    ReadGlobalEventsFile(path);
    WriteGlobalEventsFile(h.dir.filePath(QStringLiteral("again.cfg")));
    return 0;
}
