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
    /// Expects `text`, which control `id` of a dialog shows at times, to fit into it.
    void expectFits(int dialog, int id, const CString& text) {
        const std::vector<BYTE> bytes = scaledTemplate(::GetModuleHandleW(nullptr), dialog, GetParam());
        ASSERT_FALSE(bytes.empty()) << dialog;
        const HWND window = ::CreateDialogIndirectParamW(::GetModuleHandleW(nullptr),
                                                         reinterpret_cast<const DLGTEMPLATE*>(bytes.data()),
                                                         parent.m_hWnd, plainDialog, 0);
        ASSERT_NE(window, nullptr) << dialog;
        ASSERT_FALSE(text.IsEmpty()) << dialog;
        ::SetDlgItemTextW(window, id, text);
        expectWhole(::GetDlgItem(window, id), dialog);
        ::DestroyWindow(window);
    }
    static CString textOf(UINT id) {
        CString text;
        text.LoadString(::GetModuleHandleW(nullptr), id, GetParam().language);
        return text;
    }
    static void expectWhole(HWND control, int dialog) {
        wchar_t name[32] = {};
        ::GetClassNameW(control, name, 32);
        const std::wstring kind = name;
        const CString text = text_of(control);
        if (text.IsEmpty() || (kind != L"Static" && kind != L"Button")) return;
        // A picture, whose caption is not drawn.
        if (text.Find(L'|') >= 0) return;
        RECT client;
        ::GetClientRect(control, &client);
        const HDC dc = ::GetDC(control);
        const HGDIOBJ former =
            ::SelectObject(dc, reinterpret_cast<HGDIOBJ>(::SendMessageW(control, WM_GETFONT, 0, 0)));
        RECT needed = {0, 0, client.right, 0};
        // A line of text that is too wide goes on below, where it must have room.
        ::DrawTextW(dc, text, -1, &needed, DT_CALCRECT | (kind == L"Static" ? DT_WORDBREAK : DT_SINGLELINE));
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
         {IDD_PROPERTIES, IDD_DIMENSION_STYLE, IDD_TEXT_STYLE, IDD_STYLE_NAME, IDD_BLOCK_CHOICE,
          IDD_LAYERS_PANEL, IDD_PROPERTIES_PANEL, IDD_BLOCKS_PANEL, IDD_MEASURE})
        expectWhole(::GetModuleHandleW(nullptr), id);
}

TEST_P(Resolutions, WhyALayerIsKeptIsReadToItsEnd) {
    const wchar_t* const name = L"ARCH-WALLS-EXTERIOR-INSULATION";
    CString text;
    for (const UINT id :
         {IDS_TAKEN_LAYER, IDS_FIXED_LAYER, IDS_KEEP_STANDARD, IDS_KEEP_DEPENDENT, IDS_KEEP_CURRENT,
          IDS_KEEP_OBJECT, IDS_KEEP_OBJECTS, IDS_KEEP_BLOCK, IDS_KEEP_NAMED}) {
        text.Format(textOf(id), name, 1234, L"WINDOW-DOUBLE");
        expectFits(IDD_LAYERS_PANEL, IDC_MESSAGE, text);
    }
    expectFits(IDD_LAYERS_PANEL, IDC_MESSAGE, textOf(IDS_BAD_LAYER));
}

TEST_P(Resolutions, WhatThePalettesSayIsReadToItsEnd) {
    CString text;
    for (const UINT id : {IDS_BAD_LINETYPE_SCALE, IDS_BAD_HYPERLINK, IDS_BAD_ELEVATION, IDS_BAD_THICKNESS,
                          IDS_BAD_ROTATION}) {
        text.Format(textOf(id), L"10000'-0 15/16\"");
        expectFits(IDD_PROPERTIES_PANEL, IDC_MESSAGE, text);
    }
    for (const UINT id : {IDS_BLOCKS_HINT, IDS_BLOCKS_NONE})
        expectFits(IDD_BLOCKS_PANEL, IDC_MESSAGE, textOf(id));
}

TEST_P(Resolutions, TextsOfTheOptionsAreWhole) {
    for (const int id : {IDD_OPTIONS, IDD_OPTIONS_FILES, IDD_OPTIONS_DISPLAY, IDD_OPTIONS_UNITS})
        expectWhole(::GetModuleHandleW(nullptr), id);
    for (const UINT state : {IDS_MESSAGES_ALL, IDS_MESSAGES_ANSWERED})
        expectFits(IDD_OPTIONS_DISPLAY, IDC_MESSAGES_STATE, textOf(state));
    expectFits(IDD_OPTIONS_DISPLAY, IDC_MESSAGE, textOf(IDS_BAD_CROSSHAIR));
}

TEST_P(Resolutions, WhatIsWrongWithAnExtensionIsReadToItsEnd) {
    const wchar_t* const path =
        L"C:\\Program Files\\Velmora Drafting\\Drafter 1.0\\extensions\\title_block.dll";
    CString text;
    for (const UINT id : {IDS_EXTENSION_MISSING, IDS_EXTENSION_DAMAGED}) {
        text.Format(textOf(id), path);
        expectFits(IDD_OPTIONS, IDC_MESSAGE, text);
    }
    text.Format(textOf(IDS_EXTENSION_VERSION), path, 12, 11);
    expectFits(IDD_OPTIONS, IDC_MESSAGE, text);
}

TEST_P(Resolutions, TextsOfTheExtensionsPageAreWhole) {
    const CString program = program_path();
    const HMODULE module =
        ::LoadLibraryW(program.Left(program.ReverseFind(L'\\') + 1) + L"extensions\\title_block.dll");
    ASSERT_NE(module, nullptr);
    expectWhole(module, 200);
    ::FreeLibrary(module);
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
