// MenuBarButton: an item of a menu bar.
#pragma once

#include <kmfc/tool_bar_button.h>

namespace kmfc::docking {

/// Shows its text with the letter underlined. It opens a menu, or is a command itself.
class MenuBarButton : public CMFCToolBarButton {
public:
    /// `position` in the menu that is shown, `command` 0 for an item that opens one.
    MenuBarButton(UINT position, UINT command, const CString& text);

    UINT position() const { return m_position; }
    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;

private:
    UINT m_position;
};

}  // namespace kmfc::docking
