#include <ktui/pickers/strip_painter.h>

#include <ktui/host/loaded_module.h>

void DrawStripPicture(CDC& dc, const RECT& image, CBitmap& strip, int top, int width, int height) {
    if (!strip.GetSafeHandle()) return;
    CDC memory;
    if (!memory.CreateCompatibleDC(&dc)) return;
    CBitmap* former = memory.SelectObject(&strip);
    dc.BitBlt(static_cast<int>(image.left), static_cast<int>(image.top), width, height, &memory, 0, top,
              SRCCOPY);
    memory.SelectObject(former);
}

void LoadStrip(CBitmap& strip, UINT id) {
    if (const HBITMAP bitmap = ::LoadBitmapW(KtUiOwnModule(), MAKEINTRESOURCEW(id))) strip.Attach(bitmap);
}
