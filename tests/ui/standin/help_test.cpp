// The stand-in host's help: which page opens, in which language, and what is said when there is none.
#include "../../../platform/standin/resource.h"
#include "host_fixture.h"
#include "in_language.h"

namespace {

using ui_test::InLanguage, ui_test::kChinese, ui_test::kEnglish;

class Help : public ui_test::HostTest {
protected:
    Help() {
        for (const wchar_t* language : {L"\\en", L"\\zh"})
            ::CreateDirectoryW((folder.path() + language).c_str(), nullptr);
        host.SetHelpFolder(folder.path().c_str());
        host.SetHelpOpener([this](const CString& page) {
            opened.emplace_back(page.GetString());
            return opens;
        });
    }
    ~Help() override {
        for (const std::wstring& page : m_pages) ::DeleteFileW(page.c_str());
        for (const wchar_t* language : {L"\\en", L"\\zh"})
            ::RemoveDirectoryW((folder.path() + language).c_str());
    }
    std::wstring page(const wchar_t* name) {
        m_pages.push_back(folder.write(name, "<p>page</p>"));
        return m_pages.back();
    }
    /// A window with the help id, made by hand; focused.
    void focusOn(CWnd& window, CWnd& owner, DWORD helpId) {
        window.Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &owner, 9);
        ::SetWindowContextHelpId(window, helpId);
        window.SetFocus();
    }
    using Pages = std::vector<std::wstring>;
    Pages opened;
    bool opens = true;

private:
    Pages m_pages;
};

}  // namespace

TEST_F(Help, ATopicOpensItsPageInTheLanguageOfTheUser) {
    const std::wstring english = page(L"en\\Measure.html"), chinese = page(L"zh\\Measure.html");
    {
        const InLanguage user(kEnglish);
        host.uiHost()->showHelp(L"Measure");
    }
    {
        const InLanguage user(kChinese);
        host.uiHost()->showHelp(L"Measure");
    }
    EXPECT_EQ(opened, (Pages{english, chinese}));
}

TEST_F(Help, WithoutATopicAndADialogTheStartPageOpens) {
    const std::wstring start = page(L"en\\index.html");
    parent.SetFocus();
    host.uiHost()->showHelp(nullptr);
    host.uiHost()->showHelp(L"");
    EXPECT_EQ(opened, (Pages{start, start}));
}

TEST_F(Help, AMissingTranslationGivesTheEnglishPage) {
    const std::wstring english = page(L"en\\Measure.html");
    const InLanguage user(kChinese);
    host.uiHost()->showHelp(L"Measure");
    EXPECT_EQ(opened, Pages{english});
}

TEST_F(Help, AMissingPageIsSaidByTopicAndFolder) {
    const CString text = messageOf([&] { host.uiHost()->showHelp(L"Nowhere"); });
    EXPECT_NE(text.Find(L"no help page \"Nowhere\""), -1) << CStringA(text);
    EXPECT_NE(text.Find(folder.path().c_str()), -1) << CStringA(text);
    parent.SetFocus();
    EXPECT_NE(messageOf([&] { host.uiHost()->showHelp(nullptr); }).Find(L"\"index\""), -1);
    EXPECT_TRUE(opened.empty());
}

TEST_F(Help, ATopicThatLeadsElsewhereHasNoPage) {
    page(L"en\\index.html");
    const CString text = messageOf([&] { host.uiHost()->showHelp(L"..\\en\\index"); });
    EXPECT_NE(text.Find(L"no help page"), -1) << CStringA(text);
    EXPECT_TRUE(opened.empty());
}

TEST_F(Help, APageThatDoesNotOpenIsSaid) {
    const std::wstring english = page(L"en\\Measure.html");
    opens = false;
    const CString text = messageOf([&] { host.uiHost()->showHelp(L"Measure"); });
    EXPECT_NE(text.Find(L"can't be opened"), -1) << CStringA(text);
    EXPECT_NE(text.Find(english.c_str()), -1) << CStringA(text);
}

TEST_F(Help, TheHelpIdOfTheNearestWindowChoosesTheTopic) {
    const std::wstring inner = page(L"en\\Inner.html"), outer = page(L"en\\Outer.html");
    host.SetHelpTopic(31, L"Outer");
    host.SetHelpTopic(32, L"Inner");
    CWnd group, field;
    focusOn(group, parent, 31);
    focusOn(field, group, 32);
    host.uiHost()->showHelp(nullptr);
    ::SetWindowContextHelpId(field, 0);
    host.uiHost()->showHelp(nullptr);
    ::SetWindowContextHelpId(field, 77);
    host.uiHost()->showHelp(nullptr);
    EXPECT_EQ(opened, (Pages{inner, outer, outer}));
}

TEST_F(Help, ADialogThatHoldsAnotherHasTheTopicOfThatAndAFrameHasNot) {
    const std::wstring held = page(L"en\\Held.html"), start = page(L"en\\index.html");
    host.SetHelpTopic(31, L"Held");
    const auto hold = [](HWND holder, DWORD helpId, DWORD shown) {
        HWND const inner = ::CreateWindowExW(0, L"#32770", nullptr, WS_CHILD | shown, 0, 0, 30, 30, holder,
                                             nullptr, nullptr, nullptr);
        ::SetWindowContextHelpId(inner, helpId);
    };
    HWND const outer = ::CreateWindowExW(0, L"#32770", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, parent,
                                         nullptr, nullptr, nullptr);
    HWND const field = ::CreateWindowExW(0, L"EDIT", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, outer,
                                         nullptr, nullptr, nullptr);
    ::SetFocus(field);
    hold(outer, 31, 0);
    host.uiHost()->showHelp(nullptr);  // one that is hidden has none
    hold(outer, 31, WS_VISIBLE);
    host.uiHost()->showHelp(nullptr);
    ::DestroyWindow(outer);
    // A bar of a frame is such a window too, and the drawing beside it has a page of its own.
    hold(parent, 31, WS_VISIBLE);
    CWnd view;
    focusOn(view, parent, 0);
    host.uiHost()->showHelp(nullptr);
    EXPECT_EQ(opened, (Pages{start, held, start}));
}

TEST_F(Help, ADialogOfTheHostHasItsOwnTopicEvenWhereAToolkitDialogOwnsIt) {
    const std::wstring manager = page(L"en\\LinetypeManager.html");
    OdDbObjectId current, chosen;
    ui_test::when_dialog(L"Linetype Manager", [&](HWND dialog) {
        ::SetFocus(::GetDlgItem(dialog, IDC_LINETYPE_LIST));
        host.uiHost()->showHelp(nullptr);
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    host.uiHost()->showLinetypeDialog(current, chosen, 1);
    EXPECT_EQ(opened, Pages{manager});
}

TEST_F(Help, EachDialogOfTheHostHasATopic) {
    const std::pair<UINT, const wchar_t*> topics[] = {{IDD_COLOR, L"SelectColor"},
                                                      {IDD_LINETYPES, L"LinetypeManager"},
                                                      {IDD_LOAD_LINETYPES, L"LoadLinetypes"},
                                                      {IDD_PLOT_STYLES, L"SelectPlotStyle"},
                                                      {IDD_SECURITY, L"SecurityOptions"},
                                                      {IDD_EXPORT_OPTIONS, L"ExportOptions"},
                                                      {IDD_PLOT_STAMP, L"PlotStamp"},
                                                      {IDD_PAGE_SETUP, L"PageSetup"}};
    for (const auto& [id, topic] : topics) {
        for (const LANGID language : {kEnglish, kChinese}) {
            const InLanguage user(language);
            const std::wstring expected = page((std::wstring(L"en\\") + topic + L".html").c_str());
            const HWND dialog = ::CreateDialogParamW(
                ::GetModuleHandleW(L"ktstandin.dll"), MAKEINTRESOURCEW(id), parent,
                [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
            ::ShowWindow(dialog, SW_SHOW);
            ::SetFocus(dialog);
            opened.clear();
            host.uiHost()->showHelp(nullptr);
            EXPECT_EQ(opened, Pages{expected}) << id;
            ::DestroyWindow(dialog);
        }
    }
}

TEST_F(Help, WithoutAFolderOfItsOwnItLiesBesideTheProgram) {
    host.SetHelpFolder(nullptr);
    const CString text = messageOf([&] { host.uiHost()->showHelp(L"Nowhere"); });
    CString beside = ktutProgramFolder().c_str();
    beside += L"help";
    EXPECT_NE(text.Find(beside), -1) << CStringA(text);
}

TEST_F(Help, TheTextsAreChineseForAChineseUser) {
    const InLanguage user(kChinese);
    const CString text = messageOf([&] { host.uiHost()->showHelp(L"Nowhere"); });
    EXPECT_NE(text.Find(L"没有帮助页“Nowhere”"), -1);
}
