#include "block_pictures.h"

#include "scene_painter.h"
#include "screen_scene.h"

void DrawBlockPictures(CImageList& pictures, OdDbDatabase& drawing, const std::vector<BlockRow>& blocks,
                       int size) {
    pictures.DeleteImageList();
    pictures.Create(size, size, ILC_COLOR24, static_cast<int>(blocks.size()), 1);
    CWindowDC screen(nullptr);
    const SceneOptions options = ScreenSceneOptions();
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
