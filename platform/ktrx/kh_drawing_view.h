// What the view of a drawing paints on behalf of the pickers.
#pragma once

#include <windows.h>

class OdDbObjectId;

/// Paints a sample of a linetype.
class CKhLinetypePreview {
public:
    /// Paints the dashes of linetype `id` into `rect` (logical units of `dc`) of the device context `dc`, the
    /// pattern in `foreground` on `background`. `dc` may be null, and then nothing is painted.
    virtual void drawLinetype(HDC dc, const RECT& rect, const OdDbObjectId& id, COLORREF foreground,
                              COLORREF background) = 0;

protected:
    ~CKhLinetypePreview() = default;
};

/// The view service of a document.
class CKhDrawingView {
public:
    /// The preview, or null if this view paints none.
    virtual CKhLinetypePreview* linetypePreview() = 0;

protected:
    ~CKhDrawingView() = default;
};
