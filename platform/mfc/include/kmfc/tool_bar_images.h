// CMFCToolBarImages: the pictures of toolbar buttons, side by side in one bitmap.
#pragma once

#include <memory>

#include <kmfc/gdi.h>

namespace kmfc {
struct PicturePixels;
}

/// What PrepareDrawImage hands to EndDrawImage.
class KMFC_API CAfxDrawState {
    friend class CMFCToolBarImages;
    CSize m_size{0, 0};  ///< of each picture as it is drawn; nothing is drawn at 0
};

/// Holds pixels, no GDI objects. Pictures count from 0.
class KMFC_API CMFCToolBarImages : public CObject {
public:
    CMFCToolBarImages();
    ~CMFCToolBarImages() override;
    CMFCToolBarImages(const CMFCToolBarImages&) = delete;
    CMFCToolBarImages& operator=(const CMFCToolBarImages&) = delete;

    /// The size of one picture in the bitmap, in pixels; 16 by 15 at first. With `bUpdateCount` the pictures
    /// that are loaded are counted anew by it.
    void SetImageSize(SIZE sizeImage, BOOL bUpdateCount = FALSE);
    CSize GetImageSize() const { return m_sizeImage; }
    /// Takes the pictures of a bitmap resource, in place of those there are or with `bAdd` behind them. A
    /// bitmap with an alpha channel is drawn by it; in others the transparent colour isn't drawn. FALSE, and
    /// nothing changed, without the resource, or when the bitmap is lower than a picture, or with `bAdd` of
    /// another height.
    BOOL Load(UINT uiResID, HINSTANCE hinstRes = nullptr, BOOL bAdd = FALSE);
    int GetCount() const { return m_iCount; }
    BOOL IsValid() const { return m_iCount > 0; }
    void Clear();
    /// RGB(192, 192, 192) at first; counts for what is loaded later. The result is the former one.
    COLORREF SetTransparentColor(COLORREF clrTransparent);
    COLORREF GetTransparentColor() const { return m_clrTransparent; }
    /// Whether greys are turned round where the bar is dark, so that dark lines show; TRUE at first.
    void SetMapToDark(BOOL bMap) { m_bMapToDark = bMap; }

    /// Begins to draw at another size, in pixels; at that of the bitmap for none. FALSE without pictures.
    BOOL PrepareDrawImage(CAfxDrawState& ds, CSize sizeImageDest = CSize(0, 0));
    void EndDrawImage(CAfxDrawState& ds);
    /// Between these two: draws a picture with its upper left corner at a point, or grey and weaker. FALSE
    /// when there is no such picture.
    BOOL Draw(CDC* pDC, int x, int y, int iImageIndex, BOOL bDisabled = FALSE);

private:
    std::unique_ptr<kmfc::PicturePixels> m_all;
    CSize m_sizeImage{16, 15};
    CSize m_sizeDest{0, 0};
    int m_iCount = 0;
    COLORREF m_clrTransparent = RGB(192, 192, 192);
    BOOL m_bMapToDark = TRUE;
};
