// The templates and the texts of the navigation file dialog in both languages of the resource library.
#include <windows.h>

#include <gtest/gtest.h>

#include <ktui/host/module.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ui_test.h"

namespace {

constexpr WORD kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr WORD kChinese = MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED);
using Ids = std::vector<int>;

HMODULE library() {
    InitKtUiDLL();
    return ::GetModuleHandleW(L"ktdsres.dll");
}

const void* resource(LPCWSTR kind, unsigned id, WORD language) {
    const HRSRC found = ::FindResourceExW(library(), kind, MAKEINTRESOURCEW(id), language);
    return found != nullptr ? ::LockResource(::LoadResource(library(), found)) : nullptr;
}

/// Strings stand in blocks of sixteen, each with its length before it.
std::wstring stringOf(unsigned id, WORD language) {
    const auto* at = static_cast<const WORD*>(resource(RT_STRING, id / 16 + 1, language));
    if (at == nullptr) return L"no block";
    for (unsigned i = 0; i < id % 16; ++i) at += 1 + *at;
    return {reinterpret_cast<const wchar_t*>(at + 1), *at};
}

class Templates : public ::testing::TestWithParam<WORD> {
protected:
    ~Templates() override {
        if (m_dialog != nullptr) ::DestroyWindow(m_dialog);
    }
    /// Makes a dialog of the template, which is a child.
    HWND make(unsigned id) {
        const auto* const source = static_cast<const DLGTEMPLATE*>(resource(RT_DIALOG, id, GetParam()));
        EXPECT_NE(source, nullptr) << id;
        if (source == nullptr) return nullptr;
        if (m_dialog != nullptr) ::DestroyWindow(m_dialog);
        m_dialog = ::CreateDialogIndirectParamW(
            library(), source, parent, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
        EXPECT_NE(m_dialog, nullptr);
        return m_dialog;
    }
    Ids idsOf(unsigned id) {
        Ids ids;
        for (HWND each = ::GetWindow(make(id), GW_CHILD); each; each = ::GetWindow(each, GW_HWNDNEXT))
            ids.push_back(::GetDlgCtrlID(each));
        std::sort(ids.begin(), ids.end());
        return ids;
    }
    ui_test::ParentWindow parent;

private:
    HWND m_dialog = nullptr;
};

INSTANTIATE_TEST_SUITE_P(InBothLanguages, Templates, ::testing::Values(kEnglish, kChinese));

TEST_P(Templates, HoldTheControlsOfTheDialog) {
    EXPECT_EQ(idsOf(57010), (Ids{57011, 57012, 57013, 57014, 57015}));
    EXPECT_EQ(idsOf(57020), (Ids{1119, 57011, 57012, 57013, 57014, 57015, 57022}));
    EXPECT_EQ(idsOf(57026), (Ids{57015}));
}

TEST_P(Templates, AreChildrenOfThePlatformsDialog) {
    for (const unsigned id : {57010u, 57020u, 57026u}) {
        const LONG_PTR style = ::GetWindowLongPtrW(make(id), GWL_STYLE);
        EXPECT_TRUE(style & WS_CHILD) << id;
        EXPECT_TRUE(style & WS_CLIPSIBLINGS) << id;
        EXPECT_TRUE(style & DS_CONTROL) << id;
    }
}

TEST_P(Templates, TheirTextsFitTheirButtons) {
    for (const unsigned id : {57010u, 57020u}) {
        const HWND dialog = make(id);
        for (int button = 57011; button <= 57014; ++button) {
            const HWND control = ::GetDlgItem(dialog, button);
            const CString text = ui_test::text_of(control);
            EXPECT_FALSE(text.IsEmpty());
            RECT area = {}, needed = {};
            ::GetClientRect(control, &area);
            const HDC dc = ::GetDC(control);
            const HGDIOBJ former =
                ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0)));
            ::DrawTextW(dc, text, -1, &needed, DT_CALCRECT | DT_SINGLELINE);
            ::SelectObject(dc, former);
            ::ReleaseDC(control, dc);
            EXPECT_LE(needed.right + 8, area.right) << button;
            EXPECT_LE(needed.bottom + 4, area.bottom) << button;
        }
    }
}

TEST_P(Templates, TheirControlsDoNotOverlap) {
    for (const unsigned id : {57010u, 57020u}) {
        const HWND dialog = make(id);
        for (int left = 57011; left < 57014; ++left) {
            RECT one = {}, other = {};
            ::GetWindowRect(::GetDlgItem(dialog, left), &one);
            ::GetWindowRect(::GetDlgItem(dialog, left + 1), &other);
            EXPECT_LT(one.right, other.left) << id << ' ' << left;
            EXPECT_EQ(one.top, other.top);
        }
    }
}

TEST(NavTexts, AreThereInBothLanguages) {
    struct Text {
        unsigned id;
        const wchar_t *english, *chinese;
    };
    const Text texts[] = {
        {54051, L"Folder", L"文件夹"},
        {54052, L"&Open", L"打开(&O)"},
        {54053, L"Open &Read-Only", L"以只读方式打开(&R)"},
        {54054, L"&Partial Open", L"局部打开(&P)"},
        {54055, L"Par&tial Open Read-Only", L"以只读方式局部打开(&T)"},
        {54056, L"Open with No Template - &Imperial", L"无样板打开 - 英制(&I)"},
        {54057, L"Open with No Template - &Metric", L"无样板打开 - 公制(&I)"},
        {54058, L"The file name is not valid: \"%s\"", L"文件名无效：\"%s\""},
        {54059, L"Cannot use the location specified.", L"无法使用指定的位置。"},
    };
    for (const Text& text : texts) {
        EXPECT_EQ(stringOf(text.id, kEnglish), text.english);
        EXPECT_EQ(stringOf(text.id, kChinese), text.chinese);
    }
}

}  // namespace
