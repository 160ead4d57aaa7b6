// Every page of the gallery opens in both languages, with its texts in sight, and tells what its controls
// tell.
#include <set>

#include "../../../samples/gallery/gallery_dialog.h"
#include "../../../samples/gallery/gallery_drawing.h"
#include "../../../samples/gallery/resource.h"
#include "ui_test.h"

#include <standin_host.h>

namespace {

constexpr const wchar_t* kSettings = L"Software\\ktui gallery test";

class Gallery : public CGalleryDialog {
public:
    Gallery() { SetAppRootKey((CString(kSettings) + L"\\").GetString()); }
};

class Pages : public ::testing::TestWithParam<LANGID> {
protected:
    Pages() : formerLocale(::GetThreadLocale()), host(*AfxGetApp()) {
        ::SetThreadLocale(MAKELCID(GetParam(), SORT_DEFAULT));
        host.SetCurrentDocument(&document);
        gallery = std::make_unique<Gallery>();
        // What the host's messages belong to.
        AfxGetApp()->m_pMainWnd = gallery.get();
        gallery->Create(IDD_GALLERY, nullptr);
        gallery->ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    ~Pages() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        gallery->DestroyWindow();
        gallery.reset();
        host.SetCurrentDocument(nullptr);
        ::SetThreadLocale(formerLocale);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kSettings);
    }
    std::vector<CWnd*> controls() {
        std::vector<CWnd*> all;
        for (CWnd* child = gallery->Page()->GetWindow(GW_CHILD); child != nullptr;
             child = child->GetWindow(GW_HWNDNEXT))
            all.push_back(child);
        return all;
    }
    static CString classOf(CWnd& window) {
        wchar_t name[32] = {};
        ::GetClassNameW(window, name, 32);
        return name;
    }
    /// Lets the page pose for its picture, and ends that; false if it stays in a modal dialog.
    bool poses() {
        bool isOver = false;
        std::function<void()> look = [&] {
            gallery->Page()->EndPose();
            isOver = gallery->IsWindowEnabled();
            if (!isOver) ui_test::later(look, 30);
        };
        gallery->Page()->Pose();
        ui_test::later(look, 30);
        return ui_test::pump_until([&] { return isOver; }, 10000);
    }
    std::string where(int index) { return CStringA(gallery->Entry(index).name).GetString(); }
    int logged() { return static_cast<int>(gallery->SendDlgItemMessage(IDC_LOG, LB_GETCOUNT)); }
    CWnd& button(const wchar_t* english, const wchar_t* chinese) {
        for (CWnd* each : controls())
            if (ui_test::text_of(*each) == Both(english, chinese)) return *each;
        ADD_FAILURE() << "no button " << CStringA(english);
        return *gallery;
    }
    int indexOf(const wchar_t* name) {
        for (int i = 0; i < gallery->PageCount(); ++i)
            if (wcscmp(gallery->Entry(i).name, name) == 0) return i;
        return -1;
    }

    LCID formerLocale;
    CStandinHost host;
    CGalleryDocument document;
    std::unique_ptr<Gallery> gallery;
};

bool isChineseText(const CString& text) {
    for (int i = 0; i < text.GetLength(); ++i)
        if (text[i] >= 0x4E00) return true;
    return false;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Languages, Pages,
                         ::testing::Values(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US),
                                           MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED)));

TEST_P(Pages, EachOpensWithControlsAndCode) {
    EXPECT_GE(gallery->PageCount(), 30);
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        ui_test::pump();
        ASSERT_NE(gallery->Page(), nullptr) << where(i);
        EXPECT_TRUE(gallery->Page()->IsWindowVisible()) << where(i);
        EXPECT_GE(controls().size(), 2u) << where(i);
        EXPECT_GT(ui_test::text_of(*gallery->GetDlgItem(IDC_CODE)).GetLength(), 60) << where(i);
        EXPECT_TRUE(poses()) << where(i);
    }
}

TEST_P(Pages, EachControlIsInsideItsPageAndNoneCoversAnother) {
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        CRect page;
        gallery->Page()->GetWindowRect(&page);
        std::vector<CRect> places;
        for (CWnd* each : controls()) {
            if (!each->IsWindowVisible()) continue;
            CRect place;
            each->GetWindowRect(&place);
            CRect common;
            EXPECT_EQ(page | place, page) << where(i) << ": " << CStringA(ui_test::text_of(*each));
            for (const CRect& other : places)
                EXPECT_FALSE(common.IntersectRect(place, other))
                    << where(i) << ": " << CStringA(ui_test::text_of(*each));
            places.push_back(place);
        }
    }
}

TEST_P(Pages, NoLabelSwitchOrCommandIsCutOff) {
    constexpr int kMark = 20;  // pixels of a check box before its text
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        for (CWnd* each : controls()) {
            const CString name = classOf(*each), text = ui_test::text_of(*each);
            const bool isLabel = name.CompareNoCase(L"Static") == 0,
                       isButton = name.CompareNoCase(L"Button") == 0;
            if ((!isLabel && !isButton) || (each->GetStyle() & BS_TYPEMASK) == BS_OWNERDRAW) continue;
            CRect place;
            each->GetClientRect(&place);
            CClientDC dc(each);
            CFont* former = dc.SelectObject(each->GetFont());
            CRect needed(0, 0, place.Width() - (isButton ? kMark : 0), 0);
            dc.DrawText(text, &needed, DT_CALCRECT | (isLabel ? DT_WORDBREAK | DT_NOPREFIX : 0));
            dc.SelectObject(former);
            EXPECT_LE(needed.Width(), place.Width() - (isButton ? kMark : 0))
                << where(i) << ": " << CStringA(text);
            EXPECT_LE(needed.Height(), place.Height()) << where(i) << ": " << CStringA(text);
        }
    }
}

TEST_P(Pages, TheTreeSpeaksTheLanguageOfTheUser) {
    auto& tree = static_cast<CTreeCtrl&>(*gallery->GetDlgItem(IDC_PAGES));
    const bool isChinese = PRIMARYLANGID(GetParam()) == LANG_CHINESE;
    int families = 0;
    for (HTREEITEM each = tree.GetRootItem(); each != nullptr;
         each = tree.GetNextSiblingItem(each), ++families)
        EXPECT_EQ(isChineseText(tree.GetItemText(each)), isChinese);
    EXPECT_EQ(families, 7);
}

TEST_P(Pages, TheNamesOfPagesDiffer) {
    std::set<std::wstring> english, chinese;
    for (int i = 0; i < gallery->PageCount(); ++i) {
        EXPECT_TRUE(english.insert(gallery->Entry(i).name).second) << where(i);
        EXPECT_TRUE(
            chinese.insert(std::wstring(gallery->Entry(i).familyChinese) + gallery->Entry(i).nameChinese)
                .second)
            << where(i);
    }
}

TEST_P(Pages, SwitchesActAndAreTold) {
    gallery->OpenPage(indexOf(L"True color"));
    CWnd* picker = nullptr;
    for (CWnd* each : controls())
        if (classOf(*each).CompareNoCase(L"ComboBox") == 0)
            picker = each;  // the last one, which isn't disabled
    ASSERT_NE(picker, nullptr);
    EXPECT_EQ(logged(), 0);
    button(L"Enabled", L"启用").SendMessage(BM_CLICK);
    EXPECT_FALSE(picker->IsWindowEnabled());
    EXPECT_EQ(logged(), 1);
    button(L"Enabled", L"启用").SendMessage(BM_CLICK);
    EXPECT_TRUE(picker->IsWindowEnabled());
    const LRESULT before = picker->SendMessage(CB_GETCOUNT);
    button(L"ByLayer", L"ByLayer").SendMessage(BM_CLICK);
    EXPECT_NE(picker->SendMessage(CB_GETCOUNT), before);
}

TEST_P(Pages, WhatAControlTellsIsLogged) {
    gallery->OpenPage(indexOf(L"Typed edits"));
    CWnd* field = nullptr;
    for (CWnd* each : controls())
        if (field == nullptr && classOf(*each).CompareNoCase(L"Edit") == 0) field = each;
    ASSERT_NE(field, nullptr);
    field->SetFocus();
    field->SetWindowText(L"none");
    field->SetWindowText(L"5");
    std::set<std::wstring> lines;
    for (int i = 0; i < logged(); ++i) {
        wchar_t line[200] = {};
        gallery->SendDlgItemMessage(IDC_LOG, LB_GETTEXT, static_cast<WPARAM>(i),
                                    reinterpret_cast<LPARAM>(line));
        lines.insert(line);
    }
    const CString label = Both(L"Distance, 0 to 1000", L"距离，0 到 1000");
    for (const wchar_t* word : {L": ControlInvalid", L": ControlValid", L": EN_CHANGE"})
        EXPECT_EQ(lines.count((label + word).GetString()), 1u) << CStringA(word);
}

TEST_P(Pages, TheWindowGrowsWithThePageAndTheCode) {
    gallery->OpenPage(0);
    CRect before, after, window;
    gallery->Page()->GetWindowRect(&before);
    gallery->GetWindowRect(&window);
    gallery->SetWindowPos(nullptr, 0, 0, window.Width() + 80, window.Height() + 60,
                          SWP_NOMOVE | SWP_NOZORDER);
    gallery->Page()->GetWindowRect(&after);
    EXPECT_EQ(after.Width(), before.Width() + 80);
    EXPECT_EQ(after.Height(), before.Height());
}

TEST_P(Pages, TheTabKeyGoesFromTheTreeThroughThePageToTheCode) {
    gallery->OpenPage(0);
    std::vector<HWND> order;
    HWND at = ::GetDlgItem(*gallery, IDC_PAGES);
    const HWND first = at;
    do {
        order.push_back(at);
        at = ::GetNextDlgTabItem(*gallery, at, FALSE);
    } while (at != first && order.size() < 100);
    ASSERT_LT(order.size(), 100u);
    ASSERT_GE(order.size(), 8u);
    EXPECT_EQ(::GetParent(order[1]), gallery->Page()->m_hWnd);
    EXPECT_EQ(::GetDlgCtrlID(order.back()), IDC_CODE);
}

TEST_P(Pages, AFamilyLeavesThePageOpen) {
    gallery->OpenPage(2);
    CGalleryPage* page = gallery->Page();
    auto& tree = static_cast<CTreeCtrl&>(*gallery->GetDlgItem(IDC_PAGES));
    tree.SelectItem(tree.GetRootItem());
    EXPECT_EQ(gallery->Page(), page);
}
