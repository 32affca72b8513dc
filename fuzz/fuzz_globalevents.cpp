// libFuzzer target: any bytes as GlobalEvents.cfg. The reader must answer true or
// false; a failure shows its message box, which is closed at once here.
#include <cstddef>
#include <cstdint>
#include "FuzzHarness.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleGlobalEvents.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzHarness& h = FuzzHarness::instance();
    const QString path = h.write(QStringLiteral("GlobalEvents.cfg"), data, size);
    if (path.isEmpty())
        return 0;
    gTotemAxes.Fill(4);
    ReadGlobalEventsFile(path);
    WriteGlobalEventsFile(h.path(QStringLiteral("again.cfg")));
    return 0;
}
