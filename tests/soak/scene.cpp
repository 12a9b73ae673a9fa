// The scenes of the soak.
#include "soak/scene.h"

namespace zq::LM::soak {

namespace {

constexpr std::uint32_t Direct2DFrame =
    500; // under Wine, which draws by software; ink is to outlive its frame

LM_Params RandomRecord(Random& random)
{
    LM_Params record{};
    // Ink of less than 100 ms may stay: no tick sees it alive.
    record.inkDecayTime = static_cast<std::uint32_t>(random.Between(100, random.OneIn(4) ? 3000 : 900));
    record.inkColor = static_cast<std::uint32_t>(random.Between(0, 0xFFFFFF));
    record.minBrushSize = static_cast<std::uint32_t>(random.Between(1, 6));
    record.brushSize = static_cast<std::uint32_t>(random.Between(6, 60));
    record.maxPressure = 32767;
    record.line = 1;
    record.outline = random.Flag();
    record.cursor = random.Flag();
    record.usePressure = random.Flag();
    record.useOffset = random.Flag();
    record.zebraMode = random.Flag();
    record.colorPicker = static_cast<std::uint8_t>(random.OneIn(8) ? 1 : 0);
    return record;
}

std::uint32_t RandomLogLevel(Random& random)
{
    constexpr std::uint32_t Levels[] = {0, 0, 0, 0, 0, 1, 2, 3, 255};
    return Levels[random.Between(0, 8)];
}

} // namespace

Scene RandomScene(Random& random, bool mayUseDirect2D)
{
    Scene scene;
    scene.milliseconds = random.Between(400, 1600);
    scene.backEnd = random.OneIn(3) && mayUseDirect2D ? BackEnd::Direct2D : BackEnd::GDI;
    scene.restarts = random.OneIn(5);
    scene.rebuilds = random.OneIn(4);
    scene.logLevel = RandomLogLevel(random);
    scene.record = RandomRecord(random);
    if (scene.backEnd == BackEnd::Direct2D) {
        scene.record.inkDecayTime += Direct2DFrame;
    }
    scene.opensSettings = random.OneIn(4);
    scene.closesSettings = !random.OneIn(3);
    scene.looksForInk = random.OneIn(3);
    return scene;
}

std::vector<Scene> Tour(Random& random)
{
    std::vector<Scene> tour;
    for (const BackEnd backEnd : {BackEnd::GDI, BackEnd::Direct2D, BackEnd::GDI, BackEnd::Direct2D}) {
        for (const std::uint32_t level : {0U, 255U}) {
            Scene scene = RandomScene(random, false);
            scene.milliseconds = backEnd == BackEnd::GDI ? 400 : 1500;
            scene.backEnd = backEnd;
            scene.restarts = level != 0; // which brings the tray icon
            scene.logLevel = level;
            scene.record.inkDecayTime = 1000; // long enough to be seen on a busy machine
            scene.record.colorPicker = 0;     // nor is the ground's colour picked
            scene.opensSettings = true;
            scene.closesSettings = true;
            scene.looksForInk = true;
            tour.push_back(scene);
        }
    }
    return tour;
}

} // namespace zq::LM::soak
