#include "caption_buttons.h"

#include <kmfc/global_data.h>

#include "core/caption_layout.h"

namespace kmfc::docking {

namespace {

CMFCCaptionButton& at(const CObArray& buttons, INT_PTR i) {
    return *static_cast<CMFCCaptionButton*>(buttons[i]);
}

}  // namespace

CMFCCaptionButton* button_at(const CObArray& buttons, CPoint point) {
    for (INT_PTR i = 0; i < buttons.GetSize(); ++i)
        if (at(buttons, i).GetRect().PtInRect(point)) return &at(buttons, i);
    return nullptr;
}

CMFCCaptionButton* button_with(const CObArray& buttons, LRESULT hit) {
    for (INT_PTR i = 0; i < buttons.GetSize(); ++i)
        if (at(buttons, i).GetHit() == static_cast<UINT>(hit)) return &at(buttons, i);
    return nullptr;
}

void add_button(CObArray& buttons, LRESULT hit) {
    buttons.Add(new CMFCCaptionButton(static_cast<UINT>(hit)));
}

void delete_buttons(CObArray& buttons) {
    for (INT_PTR i = 0; i < buttons.GetSize(); ++i) delete buttons[i];
    buttons.RemoveAll();
}

void place_buttons_in(const CObArray& buttons, const CRect& caption,
                      const std::function<bool(const CMFCCaptionButton&)>& shown) {
    std::vector<bool> show;
    for (INT_PTR i = 0; i < buttons.GetSize(); ++i) show.push_back(shown(at(buttons, i)));
    const std::vector<CRect> places = place_buttons(caption, CMFCCaptionButton::GetSize(), show);
    for (INT_PTR i = 0; i < buttons.GetSize(); ++i) {
        const CRect& place = places[static_cast<size_t>(i)];
        at(buttons, i).Move(place.TopLeft(), place.IsRectEmpty());
    }
}

CRect text_beside(const CObArray& buttons, const CRect& caption) {
    std::vector<CRect> places;
    for (INT_PTR i = 0; i < buttons.GetSize(); ++i) places.push_back(at(buttons, i).GetRect());
    return caption_text(caption, places);
}

bool mark_buttons(const CObArray& buttons, UINT hot, UINT pressed) {
    bool changed = false;
    for (INT_PTR i = 0; i < buttons.GetSize(); ++i) {
        CMFCCaptionButton& button = at(buttons, i);
        const BOOL isHot = hot != HTNOWHERE && button.GetHit() == hot;
        const BOOL isPressed = isHot && button.GetHit() == pressed;
        changed |= button.m_bFocused != isHot || button.m_bPushed != isPressed;
        button.m_bFocused = isHot;
        button.m_bPushed = isPressed;
    }
    return changed;
}

void draw_caption_text(CDC& dc, const CString& text, CRect place, COLORREF color) {
    CFont* const former = dc.SelectObject(&afxGlobalData.fontRegular);
    const COLORREF formerColor = dc.SetTextColor(color);
    const int formerMode = dc.SetBkMode(TRANSPARENT);
    dc.DrawText(text, place, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.SetBkMode(formerMode);
    dc.SetTextColor(formerColor);
    dc.SelectObject(former);
}

CPoint to_corner(HWND window, CPoint screen) {
    CRect rect;
    ::GetWindowRect(window, &rect);
    return screen - rect.TopLeft();
}

}  // namespace kmfc::docking
