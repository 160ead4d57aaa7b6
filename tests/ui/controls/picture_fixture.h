// Buttons with the test's own picture: a red square with a margin of two pixels of the key colour.
#pragma once

#include <ktui/controls/ktui_buttons.h>

#include "button_fixture.h"
#include "resource.h"

namespace controls {

constexpr COLORREF kSquare = RGB(200, 30, 40);
const CSize kSquareSize(10, 8);  // with its margin

template <class Button>
class OpenPicture : public Opened<Button> {
public:
    std::vector<CString> asked;  ///< names that OnLoadBitmap got

    int OnLoadBitmap(const wchar_t* name) override {
        asked.push_back(name);
        return Button::OnLoadBitmap(name);
    }

    using Button::m_autoSizeToBitmap;
    using Button::m_bitmap;
    using Button::m_bitmapHeight;
    using Button::m_bitmapName;
    using Button::m_bitmapWidth;
    using Button::m_offsetExtra;
    using Button::m_offsetX;
    using Button::m_offsetY;
};

/// Makes `button` in `holder` with a caption.
inline void make(CButton& button, CWnd& holder, const wchar_t* caption) {
    ASSERT_TRUE(button.Create(caption, WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON,
                              CRect(10, 10, 10 + kWidth, 10 + kHeight), &holder, kId));
}

inline CSize sizeOf(const CWnd& window) {
    CRect rect;
    window.GetWindowRect(&rect);
    return rect.Size();
}

}  // namespace controls
