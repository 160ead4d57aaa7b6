// DocumentButton: the icon of a maximised document in a menu bar, and its buttons.
#pragma once

#include "menu_bar_button.h"

namespace kmfc::docking {

/// It isn't an item of the menu that is shown. The icon opens the document's system menu; the others are
/// commands of it.
class DocumentButton : public MenuBarButton {
public:
    static constexpr UINT kNoPosition = static_cast<UINT>(-1);

    /// `command` SC_MINIMIZE, SC_RESTORE or SC_CLOSE, or 0 for the icon; `text` names it for those who don't
    /// see it.
    DocumentButton(HWND document, UINT command, const CString& text);

    HWND document() const { return m_document; }
    UINT command() const { return m_command; }
    bool is_icon() const { return m_command == 0; }
    /// A copy of the document's system menu; without items until read_system_menu was called. The system
    /// itself decides what can be chosen in its own by the window that asks for it.
    HMENU system_menu() const { return m_menu.m_hMenu; }
    /// Copies the system menu anew, with what a maximised document can do; no items once it is gone.
    void read_system_menu() const;

    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;
    void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE,
                BOOL bHighlight = FALSE, const CSize& sizeImage = CSize(0, 0)) override;

private:
    HWND m_document;
    UINT m_command;
    CMenu m_menu;
};

/// The same button as one of those; null for an item of a menu.
inline const DocumentButton* as_document_button(const CMFCToolBarButton* button) {
    return dynamic_cast<const DocumentButton*>(button);
}

}  // namespace kmfc::docking
