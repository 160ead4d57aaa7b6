// CKbUiBitmapButton: a button with a picture in the place of a caption, and its kin.
//
// The picture's colour at the left top is left out when it paints, and a disabled button shows it in grey.
// Its name is given by LoadBitmapW, or in a dialog template as the button's caption, "NAME|Caption", of which
// only the caption stays once AutoLoad is called:
//
//     BOOL CMyDialog::OnInitDialog() {
//         CKtUiDialog::OnInitDialog();
//         m_button.SubclassDlgItem(IDC_BUTTON, this);
//         m_button.AutoLoad();
//         return TRUE;
//     }
//
// For a host that follows the system's appearance a picture NAME may have larger ones beside it, NAME_125,
// NAME_150 and NAME_200, which are taken at resolutions above 100, 125 and 150 %.
#pragma once

#include <ktui/controls/kbui_owner_draw_button.h>

class KTUI_API CKbUiBitmapButton : public CKbUiOwnerDrawButton {
    DECLARE_DYNAMIC(CKbUiBitmapButton)

public:
    CKbUiBitmapButton() = default;

    /// Loads the picture `name` from the chain of resource modules in the place of the one held; 0 if there
    /// is none of that name, in which case the one held may be gone.
    virtual int OnLoadBitmap(const wchar_t* name);

    /// Not 0 if the control takes the size of its picture and the margins around it; 1 at first.
    int GetAutoSizeToBitmap() const { return m_autoSizeToBitmap; }
    void SetAutoSizeToBitmap(int autoSize) { m_autoSizeToBitmap = autoSize; }
    // Kept: `margin` is for both axes, and `extra` is only stored.
    /// Sets the margin in pixels around the picture.
    void SetBitmapOffsets(int margin, int extra);

    /// Loads the picture `name` and remembers its name and size; 0 and nothing else if that fails.
    int LoadBitmapW(const wchar_t* name);
    // Kept: 16 by 16 without a picture.
    /// Remembers the size of the picture.
    void CalcBitmapSize();
    /// Puts the bitmap `name` of `module`, or of the chain of resource modules for null, into `target`, which
    /// owns it then. FALSE, and `target` is as before, if there is none.
    BOOL LoadBitmapResource(const wchar_t* name, CBitmap& target, HINSTANCE module);
    /// Makes the control as large as the picture with its margins. It isn't painted anew.
    void SizeToBitmap();

    /// Draws `bitmap` at `x`, `y`, `width` by `height` pixels large, without the colour of its left top
    /// pixel; in grey if `isDisabled`. Nothing without a device context, a bitmap or a size.
    void DrawTransparentBitmap(CDC& dc, CBitmap& bitmap, int x, int y, int width, int height, int isDisabled);

    void DrawButton(CDC& dc, int width, int height, int isDefault, int isDisabled, int isPressed,
                    int hasFocus) override;
    /// Loads the picture that the name set before, or else the caption, tells. 0 without a name, 1 whether it
    /// was found or not.
    int OnAutoLoad() override;
    /// Loads the picture `name`; 0 if there is none.
    int OnReload(const wchar_t* name) override;

protected:
    int m_autoSizeToBitmap = 1;
    CBitmap m_bitmap;
    CString m_bitmapName;
    int m_bitmapHeight = 0;  ///< pixels
    int m_bitmapWidth = 0;
    int m_offsetX = 5;  ///< pixels around the picture
    int m_offsetY = 5;
    // Kept: only stored.
    int m_offsetExtra = 3;

private:
    int pixels(int agreed) const;
};

/// A bitmap button that wishes for feedback to the mouse.
class KTUI_API CKbUiToolButton : public CKbUiBitmapButton {
    DECLARE_DYNAMIC(CKbUiToolButton)

public:
    CKbUiToolButton();
};

/// A picture that ignores the mouse.
class KTUI_API CKbUiBitmapStatic : public CKbUiBitmapButton {
    DECLARE_DYNAMIC(CKbUiBitmapStatic)

public:
    CKbUiBitmapStatic();
};

/// A picture that files are dropped on. Its owner calls DragAcceptFiles for it and overrides OnDragDrop.
class KTUI_API CKbUiDropSite : public CKbUiBitmapStatic {
    DECLARE_DYNAMIC(CKbUiDropSite)

public:
    CKbUiDropSite();
};
