#include "drawing_thumbnail.h"

#include <memory>

#include "scene_painter.h"
#include "screen_scene.h"

namespace {

constexpr int kSteps = 6;  // of red, green and blue in the colour table
constexpr int kColors = 256;
// Of a larger drawing the picture shows the beginning, so that saving doesn't wait for it.
constexpr std::size_t kMostWork = 10'000'000;

struct Image {
    BITMAPINFOHEADER header;
    RGBQUAD colors[kColors];
};

/// A colour table of six steps of each colour, and greys.
Image emptyImage() {
    Image image = {};
    image.header.biSize = sizeof image.header;
    image.header.biWidth = kThumbnailWidth;
    image.header.biHeight = kThumbnailHeight;
    image.header.biPlanes = 1;
    image.header.biBitCount = 8;
    image.header.biSizeImage = kThumbnailWidth * kThumbnailHeight;
    int at = 0;
    const auto step = [](int i) { return static_cast<BYTE>(i * 255 / (kSteps - 1)); };
    for (int red = 0; red < kSteps; ++red)
        for (int green = 0; green < kSteps; ++green)
            for (int blue = 0; blue < kSteps; ++blue)
                image.colors[at++] = {step(blue), step(green), step(red), 0};
    image.colors[at++] = {GetBValue(kDrawingPaper), GetGValue(kDrawingPaper), GetRValue(kDrawingPaper), 0};
    for (int i = 0; at < kColors; ++i) {
        const auto grey = static_cast<BYTE>(5 + i * 6);
        image.colors[at++] = {grey, grey, grey, 0};
    }
    return image;
}

struct DeleteBitmap {
    using pointer = HBITMAP;
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};

}  // namespace

static_assert(kThumbnailWidth % 4 == 0, "the rows have no bytes to fill them up");

std::string DrawingThumbnail(OdDbDatabase& drawing, bool asksHost) {
    SceneOptions options = asksHost ? ScreenSceneOptions(drawing) : UnaskedSceneOptions(drawing);
    options.workLimit = kMostWork;
    Scene scene = BuildScene(drawing, drawing.modelSpaceId(), options);
    if (!asksHost) NameFamilies(scene);
    if (scene.extents().isEmpty()) return {};
    const Image image = emptyImage();
    void* bits = nullptr;
    const std::unique_ptr<HBITMAP, DeleteBitmap> bitmap(::CreateDIBSection(
        nullptr, reinterpret_cast<const BITMAPINFO*>(&image), DIB_RGB_COLORS, &bits, nullptr, 0));
    CDC memory;
    if (!bitmap || !memory.CreateCompatibleDC(nullptr)) return {};
    const HGDIOBJ former = ::SelectObject(memory.GetSafeHdc(), bitmap.get());
    memory.FillSolidRect(CRect(0, 0, kThumbnailWidth, kThumbnailHeight), kDrawingPaper);
    ScenePlace place;
    place.size = CSize(kThumbnailWidth, kThumbnailHeight);
    place.Fit(scene.extents());
    PaintScene(memory, scene, place);
    ::GdiFlush();
    std::string bytes(reinterpret_cast<const char*>(&image), sizeof image);
    bytes.append(static_cast<const char*>(bits), image.header.biSizeImage);
    ::SelectObject(memory.GetSafeHdc(), former);
    return bytes;
}
