// Every page of the gallery opens in both languages and tells what its controls tell.
#include "gallery_fixture.h"

#include <set>

using namespace gallery_test;

INSTANTIATE_TEST_SUITE_P(Languages, Pages,
                         ::testing::Values(Shown{kEnglish, kStandard}, Shown{kChinese, kStandard}));

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

TEST_P(Pages, TheTreeSpeaksTheLanguageOfTheUser) {
    auto& tree = static_cast<CTreeCtrl&>(*gallery->GetDlgItem(IDC_PAGES));
    const bool isChinese = PRIMARYLANGID(GetParam().language) == LANG_CHINESE;
    int families = 0;
    for (HTREEITEM each = tree.GetRootItem(); each != nullptr;
         each = tree.GetNextSiblingItem(each), ++families)
        EXPECT_EQ(isChineseText(tree.GetItemText(each)), isChinese);
    EXPECT_EQ(families, 9);
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
