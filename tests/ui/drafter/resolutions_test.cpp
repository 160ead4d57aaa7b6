// Nothing is cut off at 125, 150 and 200 % in either language: the templates are laid out anew with a font
// that is larger by as much, as the system does at a higher resolution.
#include "../../../platform/standin/resource.h"
#include "../../../samples/drafter/resource.h"
#include "drafter_fixture.h"

using namespace ui_test;

namespace {

constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr LANGID kChinese = MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED);

struct Resolution {
    int percent;
    LANGID language;
};

/// A dialog template as it lies in the resources, with another size of its font.
std::vector<BYTE> scaledTemplate(HMODULE module, int id, const Resolution& resolution) {
    const HRSRC found = ::FindResourceExW(module, RT_DIALOG, MAKEINTRESOURCEW(id), resolution.language);
    if (!found) return {};
    const auto* bytes = static_cast<const BYTE*>(::LockResource(::LoadResource(module, found)));
    std::vector<BYTE> copy(bytes, bytes + ::SizeofResource(module, found));
    // DLGTEMPLATEEX: 26 bytes, then menu, class and title, of which the first two are empty here, then the
    // size in points.
    constexpr std::size_t kTitle = 26 + 2 + 2;
    auto* title = reinterpret_cast<wchar_t*>(copy.data() + kTitle);
    auto* points = reinterpret_cast<WORD*>(title + wcslen(title) + 1);
    EXPECT_EQ(*points, 8);
    *points = static_cast<WORD>(8 * resolution.percent / 100);
    return copy;
}

INT_PTR CALLBACK plainDialog(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_MEASUREITEM || message == WM_INITDIALOG;
}

class Resolutions : public DrafterTest, public ::testing::WithParamInterface<Resolution> {
protected:
    /// Expects every text of a dialog to fit into its control.
    void expectWhole(HMODULE module, int id) {
        const std::vector<BYTE> bytes = scaledTemplate(module, id, GetParam());
        ASSERT_FALSE(bytes.empty()) << id;
        const HWND dialog = ::CreateDialogIndirectParamW(
            module, reinterpret_cast<const DLGTEMPLATE*>(bytes.data()), parent.m_hWnd, plainDialog, 0);
        ASSERT_NE(dialog, nullptr) << id;
        for (HWND control = ::GetWindow(dialog, GW_CHILD); control;
             control = ::GetWindow(control, GW_HWNDNEXT))
            expectWhole(control, id);
        ::DestroyWindow(dialog);
    }
    static void expectWhole(HWND control, int dialog) {
        wchar_t name[32] = {};
        ::GetClassNameW(control, name, 32);
        const std::wstring kind = name;
        const CString text = text_of(control);
        if (text.IsEmpty() || (kind != L"Static" && kind != L"Button")) return;
        RECT client;
        ::GetClientRect(control, &client);
        const HDC dc = ::GetDC(control);
        const HGDIOBJ former =
            ::SelectObject(dc, reinterpret_cast<HGDIOBJ>(::SendMessageW(control, WM_GETFONT, 0, 0)));
        RECT needed = {0, 0, client.right, 0};
        ::DrawTextW(dc, text, -1, &needed, DT_CALCRECT | DT_SINGLELINE);
        ::SelectObject(dc, former);
        ::ReleaseDC(control, dc);
        EXPECT_LE(needed.right, client.right)
            << "width of \"" << odUtf8(text.GetString()) << "\" in dialog " << dialog;
        EXPECT_LE(needed.bottom, client.bottom + 2)
            << "height of \"" << odUtf8(text.GetString()) << "\" in dialog " << dialog;
    }
};

TEST_P(Resolutions, TextsOfTheDrafterAreWhole) {
    for (const int id :
         {IDD_PROPERTIES, IDD_DIMENSION_STYLE, IDD_TEXT_STYLE, IDD_STYLE_NAME, IDD_BLOCK_CHOICE})
        expectWhole(::GetModuleHandleW(nullptr), id);
}

TEST_P(Resolutions, TextsOfTheStandinHostAreWhole) {
    for (const int id : {IDD_COLOR, IDD_LINETYPES, IDD_LOAD_LINETYPES, IDD_PLOT_STYLES})
        expectWhole(::GetModuleHandleW(L"ktstandin.dll"), id);
}

INSTANTIATE_TEST_SUITE_P(, Resolutions,
                         ::testing::Values(Resolution{100, kEnglish}, Resolution{125, kEnglish},
                                           Resolution{150, kEnglish}, Resolution{200, kEnglish},
                                           Resolution{100, kChinese}, Resolution{125, kChinese},
                                           Resolution{150, kChinese}, Resolution{200, kChinese}),
                         [](const auto& each) {
                             return (each.param.language == kEnglish ? "English" : "Chinese") +
                                    std::to_string(each.param.percent);
                         });

}  // namespace
