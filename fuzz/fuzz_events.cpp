// libFuzzer target: any bytes as Events.cfg. The reader must answer true or
// false; a failure shows its message box, which is closed at once here.
#include <cstddef>
#include <cstdint>
#include <memory>
#include "FuzzHarness.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"

namespace {

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
    FuzzHarness& h = FuzzHarness::instance();
    const QString path = h.write(QStringLiteral("Events.cfg"), data, size);
    if (path.isEmpty())
        return 0;
    resetScenes();
    ReadEventsFile(path);
    return 0;
}
