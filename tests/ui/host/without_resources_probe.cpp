// Uses the toolkit where its resource library is missing. The exit code tells what went wrong, 0 for nothing.
#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/xt_tool_tab_ctrl.h>
#include <ktui/host/module.h>
#include <ktui/pickers/color_combo_box.h>

namespace {

CWinApp application;

bool DefaultsServe() {
    CKtUiMRUComboBox picker;
    CKtUiColorComboBox colors;
    CString other;
    CString manager;
    CString choose;
    picker.GetOtherName(0, other);
    picker.GetOtherName(1, manager);
    colors.GetOtherName(0, choose);
    return other == L"其他..." && manager == L"线型资源管理器..." && choose == L"选择颜色...";
}

/// Notes the first item of a tab's menu.
class Set : public CKbUiPaletteSet {
public:
    CString item;

    int AddContextMenuItems(CMenu* menu, int, int) override {
        menu->GetMenuString(0, item, MF_BYPOSITION);
        // Nothing is left to show, so tracking ends at once.
        menu->DeleteMenu(0, MF_BYPOSITION);
        return 1;
    }
    CPoint middleOfStrip() {
        CRect area;
        GetStrip().GetWindowRect(&area);
        return CPoint(area.left + 5, area.top + 20);
    }
};

/// The menu of a palette's tab, in a set that isn't shown.
bool TheMenuServes() {
    CFrameWnd* frame = new CFrameWnd;
    if (!frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 500))) return false;
    CString item;
    {
        Set set;
        if (!set.Create(L"Set", WS_CHILD | CBRS_LEFT, CRect(0, 0, 200, 400), frame, kKbUiSinglePaletteTab))
            return false;
        auto* palette = new CKbUiPalette;
        palette->SetName(L"Layers");
        set.AddPalette(palette);
        set.SetWindowPos(nullptr, 0, 0, 210, 410, SWP_NOZORDER | SWP_NOACTIVATE);
        set.OnContextMenu(&set, set.middleOfStrip());
        item = set.item;
        set.DestroyWindow();
    }
    frame->DestroyWindow();
    return item == L"重命名选项板(&R)";
}

}  // namespace

int main() {
    if (::GetModuleHandleW(L"ktdsres.dll")) return 1;
    if (!::GetModuleHandleW(L"ktui.dll")) return 2;
    if (KtUiAppResourceInstance() != nullptr) return 3;
    if (AfxFindResourceHandle(MAKEINTRESOURCEW(108), RT_BITMAP) != ::GetModuleHandleW(L"ktui.dll")) return 4;
    if (!DefaultsServe()) return 5;
    return TheMenuServes() ? 0 : 6;
}
