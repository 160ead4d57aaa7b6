// CLayoutsMenu: View > Layouts, by which the user keeps arrangements of the palettes under names.
#pragma once

#include <vector>

#include <ktui/ktui.h>

class CLayoutsMenu {
public:
    /// Notes how the palettes stand now as the built-in layout. The window outlives this.
    void Attach(CMDIFrameWndEx& frame);
    /// Lists the names in place of the entry ID_VIEW_LAYOUT_FIRST, and enables what can be done.
    void Update(CCmdUI* item);
    void Do(UINT command);

private:
    std::vector<OdString> names() const;
    void save();
    void remove();
    /// Says why the last call failed.
    void tell() const;

    CMDIFrameWndEx* m_frame = nullptr;
    CKtUiPaletteLayouts m_layouts;
};
