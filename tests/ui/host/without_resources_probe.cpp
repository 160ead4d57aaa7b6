// Uses the toolkit where its resource library is missing. The exit code tells what went wrong, 0 for nothing.
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

}  // namespace

int main() {
    if (::GetModuleHandleW(L"ktdsres.dll")) return 1;
    if (!::GetModuleHandleW(L"ktui.dll")) return 2;
    if (KtUiAppResourceInstance() != nullptr) return 3;
    if (AfxFindResourceHandle(MAKEINTRESOURCEW(108), RT_BITMAP) != ::GetModuleHandleW(L"ktui.dll")) return 4;
    return DefaultsServe() ? 0 : 5;
}
