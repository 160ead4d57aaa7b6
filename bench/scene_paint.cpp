// A frame of a drawing of a hundred thousand entities: all of it, and a hundredth of it. The peer is a
// frame's time at 30 a second.
#include "../samples/drafter/scene_painter.h"

#include <kmfc/mem_dc.h>
#include <scene_options.h>
#include "many_entities.h"
#include "window_bench.h"

namespace {

constexpr int kRounds = 15;
constexpr int kWidth = 1200, kHeight = 900;
constexpr double kFrame = 1.0 / 30;  // seconds

double frameSeconds(const Scene& scene, const SceneBounds& bounds, const ScenePlace& place) {
    CClientDC screen(nullptr);
    return bench::seconds_of([&] {
        CMemDC memory(screen, CRect(0, 0, kWidth, kHeight));
        memory.GetDC().FillSolidRect(0, 0, kWidth, kHeight, kDrawingPaper);
        PaintScene(memory.GetDC(), scene, bounds, place);
        memory.GetDC().GetPixel(0, 0);  // waits until all is drawn
    });
}

}  // namespace

void bench::measure_scene_painting() {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    if (drawing->readDxfBytes(drawingFile()) != kOdOk) return;
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId());
    const SceneBounds bounds(scene);
    ScenePlace place;
    place.size = CSize(kWidth, kHeight);
    place.Fit(scene.extents());
    const auto frame = [] { return kFrame; };
    const auto report_at = [&](const char* what, double factor) {
        ScenePlace at = place;
        at.scale *= factor;
        report(what,
               compare(
                   kRounds, 1, [&] { return frameSeconds(scene, bounds, at); }, frame),
               1);
    };
    report_at("a frame of 100,000 entities, all", 1);
    report_at("a frame of 100,000 entities, a hundredth", 10);
    report_at("a frame of 100,000 entities, a millionth", 1000);
}
