// A navigation dialog run a thousand times over a stand-in for the platform's dialog, and boxes of file
// navigation made and destroyed as often.
#include <ktui/nav/drag_list_box2.h>
#include <ktui/nav/history_combo.h>
#include <ktui/nav/ktui_nav_dialog.h>

#include <ktdb.h>
#include <ktut.h>

#include <filesystem>
#include <fstream>

#include "leak_growth.h"
#include "preview_bytes.h"
#include "replaced_import.h"
#include "test_host.h"

namespace {

CNavDataArray* results = nullptr;

/// Accepts, with two results.
BOOL WINAPI accepts(OPENFILENAMEW* ofn) {
    ofn->lpstrFile[ofn->nMaxFile - 1] = L'\0';
    results->AddData()->SetText(L"C:\\drawings\\one.dwg");
    results->AddData()->SetText(L"C:\\drawings\\two.dwg");
    return TRUE;
}

class NavLeaks : public ::testing::Test {
protected:
    NavLeaks() { ktutSetProfileFileName(leaks::kDialogsKey); }
    ~NavLeaks() override {
        ktutSetProfileFileName(nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, leaks::kDialogsKey);
    }
    /// Runs a dialog that takes several files; without a pattern it throws on the way.
    void run(const wchar_t* pattern) {
        CNavDataArray data;
        CNavFilterArray filters;
        CNavFilter* const filter = filters.AddData();
        filter->SetDescription(L"Drawing");
        if (pattern != nullptr) filter->Add(pattern);
        results = &data;
        CKtUiNavDialog dialog(data, filters);
        dialog.SetMultiSelectAllowed(1);
        dialog.SetInitialFileName(L"C:\\a\\plan.dwg");
        try {
            EXPECT_EQ(dialog.DoModal(), IDOK);
            EXPECT_NE(pattern, nullptr);
        } catch (CInvalidArgException* exception) {
            EXPECT_EQ(pattern, nullptr);
            exception->Delete();
        }
    }
    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    ui_test::ReplacedImport platform{::GetModuleHandleW(L"kmfc.dll"), "GetOpenFileNameW", &accepts};
};

TEST_F(NavLeaks, AThousandDialogsLeaveNothing) {
    ASSERT_TRUE(platform.isThere());
    leaks::expect_no_growth([&] { run(L"*.dwg"); });
    EXPECT_EQ(host.pushes, host.pops);
}

TEST_F(NavLeaks, AThousandFailuresLeaveNothing) {
    leaks::expect_no_growth([&] { run(nullptr); });
    EXPECT_EQ(host.pushes, host.pops);
}

/// Has the preview of a file with this image read a thousand times.
void expect_no_growth_of_previews(char kind, const std::string& image, bool shows) {
    const auto path = std::filesystem::temp_directory_path() / "ktui_preview_leak_test.dwg";
    const std::string file = preview_bytes::dwgWithImages({{kind, image}});
    std::ofstream(path, std::ios::binary).write(file.data(), static_cast<std::streamsize>(file.size()));
    const std::wstring name = path.wstring();
    leaks::expect_no_growth([&] {
        HBITMAP bitmap = nullptr;
        HPALETTE palette = nullptr;
        ASSERT_EQ(ktdbGetPreviewBitmapFromDwg(name.c_str(), &bitmap, &palette), shows);
        ::DeleteObject(bitmap);
        ::DeleteObject(palette);
    });
    std::filesystem::remove(path);
}

TEST_F(NavLeaks, AThousandPreviewsLeaveNothing) {
    const std::string png = preview_bytes::pngOf(std::string(400, '\x7F'));
    expect_no_growth_of_previews('\x02', preview_bytes::greyDib(20, 20), true);
    expect_no_growth_of_previews('\x03', preview_bytes::wmfOf(40, 20, false), true);
    expect_no_growth_of_previews('\x06', png, true);
    expect_no_growth_of_previews('\x06', png.substr(0, 40), false);
}

/// A window of a system class, as a dialog template makes it.
HWND made(const wchar_t* kind, DWORD style, CWnd& parent) {
    return ::CreateWindowW(kind, L"", WS_CHILD | style, 0, 0, 100, 100, parent.m_hWnd, nullptr, nullptr,
                           nullptr);
}

TEST_F(NavLeaks, AThousandBoxesLeaveNothing) {
    const size_t systemGrowth = leaks::heap_growth([&] {
        const HWND list = made(L"LISTBOX", 0, parent);
        ::MakeDragList(list);
        ::DestroyWindow(list);
        ::DestroyWindow(made(L"COMBOBOX", CBS_DROPDOWN, parent));
    });
    leaks::expect_no_growth(
        [&] {
            CDragListBox2 list;
            list.SubclassWindow(made(L"LISTBOX", 0, parent));
            for (const wchar_t* text : {L"a", L"b", L"c"}) list.AddString(text);
            list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
            list.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 5));
            list.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 80));
            list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 80));
            CHistoryCombo box(L"-Test", L"NameMRU%d");
            box.SubclassWindow(made(L"COMBOBOX", CBS_DROPDOWN, parent));
            box.AddText(L"text");
        },
        systemGrowth);
}

}  // namespace
