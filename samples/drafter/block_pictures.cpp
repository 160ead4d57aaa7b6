#include "block_pictures.h"

#include <algorithm>

#include "scene_painter.h"
#include "screen_scene.h"

namespace {

// What goes into all pictures together, and into each at least: of a block that holds more its beginning is
// shown.
constexpr std::size_t kMostWork = 10'000'000, kLeastWork = 20'000;

}  // namespace

void DrawBlockPictures(CImageList& pictures, OdDbDatabase& drawing, const std::vector<BlockRow>& blocks,
                       int size) {
    pictures.DeleteImageList();
    pictures.Create(size, size, ILC_COLOR24, static_cast<int>(blocks.size()), 1);
    CWindowDC screen(nullptr);
    SceneOptions options = ScreenSceneOptions(drawing);
    options.workLimit = std::max(kMostWork / std::max(blocks.size(), std::size_t{1}), kLeastWork);
    for (const BlockRow& block : blocks) {
        CDC memory;
        CBitmap bitmap;
        memory.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, size, size);
        CBitmap* const former = memory.SelectObject(&bitmap);
        memory.FillSolidRect(CRect(0, 0, size, size), kDrawingPaper);
        const Scene scene = BuildScene(drawing, block.id, options);
        ScenePlace place;
        place.size = CSize(size, size);
        place.Fit(scene.extents());
        PaintScene(memory, scene, place);
        memory.SelectObject(former);
        pictures.Add(&bitmap, RGB(0, 0, 0));
    }
}
