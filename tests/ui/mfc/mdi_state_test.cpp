// Which documents are open and in which groups, kept for the next time.
#include <afxcontrolbars.h>

#include "documents_fixture.h"

namespace documents_test {

/// Tells which documents it was asked to open.
class KeepingFrame : public CMDIFrameWndEx {
    DECLARE_DYNCREATE(KeepingFrame)
public:
    std::vector<CString> opened;
    CMDIChildWndEx* CreateDocumentWindow(LPCTSTR name, CObject* object) override {
        EXPECT_EQ(object, nullptr);
        opened.emplace_back(name);
        return CMDIFrameWndEx::CreateDocumentWindow(name, object);
    }
};
IMPLEMENT_DYNCREATE(KeepingFrame, CMDIFrameWndEx)

class KeptChild : public CMDIChildWndEx {
    DECLARE_DYNCREATE(KeptChild)
};
IMPLEMENT_DYNCREATE(KeptChild, CMDIChildWndEx)

const wchar_t* const kProfile = L"Software\\ktui mdi state test\\";

struct MdiStateTest : DocumentsTest {
    MdiStateTest() {
        kind = new CMultiDocTemplate(IDR_PLAN, RUNTIME_CLASS(Plan), RUNTIME_CLASS(KeptChild),
                                     RUNTIME_CLASS(PlanView));
        app.AddDocTemplate(kind);
        frame = new KeepingFrame;
        EXPECT_TRUE(frame->LoadFrame(IDR_MAIN));
        app.m_pMainWnd = AfxGetThread()->m_pMainWnd = frame;
        frame->SetWindowPos(nullptr, 20, 20, 900, 600, SWP_NOZORDER);
        frame->ShowWindow(SW_SHOW);
    }
    ~MdiStateTest() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui mdi state test"); }

    CMDIChildWndEx* open(const std::wstring& path) {
        CDocument* const document = app.OpenDocumentFile(path.c_str());
        POSITION place = document->GetFirstViewPosition();
        auto* const child = static_cast<CMDIChildWndEx*>(document->GetNextView(place)->GetParentFrame());
        ui_test::pump();
        return child;
    }
    void close_all() {
        app.CloseAllDocuments(FALSE);
        ui_test::pump();
        frame->opened.clear();
    }
    static std::wstring name_of(CWnd* child) {
        const CString path = static_cast<CMDIChildWndEx*>(child)->GetDocumentName(nullptr);
        return std::filesystem::path(path.GetString()).stem().wstring();
    }
    /// The names of each group's documents by their tabs, the one that shows in brackets.
    std::wstring groups() const {
        std::wstring all;
        const CObList& list = frame->GetMDITabGroups();
        for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
            auto* const strip = static_cast<CMFCTabCtrl*>(list.GetNext(at));
            all += all.empty() ? L"" : L"|";
            for (int i = 0; i < strip->GetTabsNum(); ++i) {
                const std::wstring name = name_of(strip->GetTabWnd(i));
                all += i == strip->GetActiveTab() ? L"[" + name + L"]" : name;
            }
        }
        return all;
    }
    std::wstring active() const {
        CMDIChildWnd* const child = frame->MDIGetActive();
        return child != nullptr ? name_of(child) : L"";
    }
    /// The strips' places, one below the other or side by side.
    bool stand() const {
        CRect first, second;
        static_cast<CWnd*>(frame->GetMDITabGroups().GetHead())->GetWindowRect(&first);
        static_cast<CWnd*>(frame->GetMDITabGroups().GetTail())->GetWindowRect(&second);
        return first.top == second.top && first.left < second.left;
    }
    std::wstring plan(const wchar_t* name) {
        const std::wstring path = (folder / (std::wstring(name) + L".plan")).wstring();
        Plan made;
        made.text = name;
        EXPECT_TRUE(made.OnSaveDocument(path.c_str()));
        take();
        return path;
    }
    CMultiDocTemplate* kind;
    KeepingFrame* frame;
};

TEST_F(MdiStateTest, GroupsComeBackWithTheirDocumentsAndTheActiveOne) {
    const std::wstring a = plan(L"a"), b = plan(L"b"), c = plan(L"c"), d = plan(L"d");
    frame->EnableMDITabbedGroups(TRUE, CMDITabInfo());
    open(a);
    open(b);
    open(c);
    frame->MDITabNewGroup(FALSE);
    open(d);
    CMDIChildWnd* const first = static_cast<CMDIChildWnd*>(
        static_cast<CMFCTabCtrl*>(frame->GetMDITabGroups().GetHead())->GetTabWnd(0));
    first->MDIActivate();
    ui_test::pump();
    ASSERT_EQ(groups(), L"[a]b|c[d]");
    EXPECT_TRUE(frame->SaveMDIState(kProfile));
    close_all();
    ASSERT_EQ(groups(), L"");
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    ui_test::pump();
    EXPECT_EQ(groups(), L"[a]b|c[d]");
    EXPECT_EQ(active(), L"a");
    EXPECT_FALSE(stand());
    ASSERT_EQ(frame->opened.size(), 4u);
    EXPECT_STREQ(frame->opened[0], a.c_str());
    EXPECT_STREQ(frame->opened[3], d.c_str());
}

TEST_F(MdiStateTest, GroupsThatStandSideBySideDoSoAgain) {
    const std::wstring a = plan(L"a"), b = plan(L"b"), c = plan(L"c");
    frame->EnableMDITabbedGroups(TRUE, CMDITabInfo());
    for (const std::wstring& each : {a, b, c}) {
        open(each);
        frame->MDITabNewGroup(TRUE);
    }
    ASSERT_EQ(groups(), L"[a]|[b]|[c]");
    EXPECT_TRUE(frame->SaveMDIState(kProfile));
    close_all();
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    ui_test::pump();
    EXPECT_EQ(groups(), L"[a]|[b]|[c]");
    EXPECT_EQ(active(), L"c");
    EXPECT_TRUE(stand());
}

TEST_F(MdiStateTest, WhatIsGoneIsLeftOutAndNothingElse) {
    const std::wstring a = plan(L"a"), b = plan(L"b"), c = plan(L"c"), d = plan(L"d");
    frame->EnableMDITabbedGroups(TRUE, CMDITabInfo());
    open(a);
    open(b);
    frame->MDITabNewGroup(TRUE);
    open(c);
    frame->MDITabNewGroup(TRUE);
    open(d);
    ASSERT_EQ(groups(), L"[a]|[b]|c[d]");
    EXPECT_TRUE(frame->SaveMDIState(kProfile));
    close_all();
    ASSERT_TRUE(::DeleteFileW(d.c_str()));
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    ui_test::pump();
    EXPECT_EQ(groups(), L"[a]|[b]|[c]");
    EXPECT_EQ(active(), L"c") << "in the place of the one that was active";
    EXPECT_EQ(frame->opened.size(), 4u);
    close_all();
    plan(L"d");
    ASSERT_TRUE(::DeleteFileW(b.c_str()));
    ASSERT_TRUE(::DeleteFileW(c.c_str()));
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    ui_test::pump();
    EXPECT_EQ(groups(), L"[a]|[d]");
    EXPECT_EQ(active(), L"d");
    EXPECT_TRUE(app.told.empty()) << "without a question";
}

TEST_F(MdiStateTest, DocumentsThatAreOpenStayInTheFirstGroup) {
    const std::wstring a = plan(L"a"), b = plan(L"b"), x = plan(L"x");
    frame->EnableMDITabbedGroups(TRUE, CMDITabInfo());
    open(a);
    open(b);
    frame->MDITabNewGroup(TRUE);
    EXPECT_TRUE(frame->SaveMDIState(kProfile));
    close_all();
    open(x);
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    ui_test::pump();
    EXPECT_EQ(groups(), L"x[a]|[b]");
}

TEST_F(MdiStateTest, TabsAndDocumentsWithoutTabsComeBackInTheirOrder) {
    const std::wstring a = plan(L"a"), b = plan(L"b"), c = plan(L"c");
    for (const bool hasTabs : {true, false}) {
        frame->EnableMDITabs(hasTabs);
        open(a);
        CMDIChildWndEx* const second = open(b);
        open(c);
        second->MDIActivate();
        ui_test::pump();
        EXPECT_TRUE(frame->SaveMDIState(kProfile));
        close_all();
        EXPECT_TRUE(frame->LoadMDIState(kProfile));
        ui_test::pump();
        EXPECT_EQ(active(), L"b");
        ASSERT_EQ(frame->opened.size(), 3u);
        EXPECT_STREQ(frame->opened[0], a.c_str());
        EXPECT_STREQ(frame->opened[hasTabs ? 1 : 2], b.c_str()) << "without tabs the one in front is last";
        close_all();
    }
}

TEST_F(MdiStateTest, DocumentsWithoutANameAreNotKept) {
    const std::wstring a = plan(L"a");
    frame->EnableMDITabbedGroups(TRUE, CMDITabInfo());
    open(a);
    ASSERT_NE(kind->OpenDocumentFile(nullptr), nullptr);
    EXPECT_TRUE(frame->SaveMDIState(kProfile));
    close_all();
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    EXPECT_EQ(groups(), L"[a]");
    EXPECT_EQ(frame->opened.size(), 1u);
    close_all();
    EXPECT_TRUE(frame->SaveMDIState(kProfile)) << "none at all is a state as well";
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    EXPECT_TRUE(frame->opened.empty());
}

TEST_F(MdiStateTest, WhatIsNotWholeOpensNothing) {
    EXPECT_FALSE(frame->LoadMDIState(kProfile)) << "nothing was kept";
    const std::wstring a = plan(L"a"), b = plan(L"b");
    frame->EnableMDITabbedGroups(TRUE, CMDITabInfo());
    open(a);
    open(b);
    EXPECT_TRUE(frame->SaveMDIState(kProfile));
    // Counts of documents, which of them shows, and the group of the active one.
    const struct {
        std::vector<DWORD> counts, shown;
        int version, active;
    } kBroken[] = {{{3}, {0}, 1, 0},    {{1}, {0}, 1, 0},       {{2}, {2}, 1, 0},      {{2}, {0, 0}, 1, 0},
                   {{1, 1}, {0}, 1, 0}, {{0, 2}, {0, 0}, 1, 0}, {{2}, {0}, 2, 0},      {{2}, {0}, 1, 1},
                   {{2}, {0}, 1, -1},   {{}, {}, 1, 0},         {{2, 1}, {0, 0}, 1, 0}};
    CSettingsStore store(FALSE, FALSE);
    ASSERT_TRUE(store.Open((std::wstring(kProfile) + L"MDI").c_str()));
    for (const auto& each : kBroken) {
        CDWordArray counts, shown;
        for (const DWORD count : each.counts) counts.Add(count);
        for (const DWORD index : each.shown) shown.Add(index);
        ASSERT_TRUE(store.Write(L"Groups", counts) && store.Write(L"Shown", shown) &&
                    store.Write(L"Version", each.version) && store.Write(L"Active", each.active));
        EXPECT_FALSE(frame->LoadMDIState(kProfile)) << &each - kBroken;
        EXPECT_TRUE(frame->opened.empty());
    }
    EXPECT_TRUE(frame->SaveMDIState(kProfile));
    EXPECT_TRUE(frame->LoadMDIState(kProfile));
    frame->opened.clear();
    for (const wchar_t* value : {L"Version", L"Documents", L"Groups", L"Shown", L"Active", L"Beside"}) {
        EXPECT_TRUE(frame->SaveMDIState(kProfile));
        ASSERT_EQ(::RegDeleteKeyValueW(HKEY_CURRENT_USER, (std::wstring(kProfile) + L"MDI").c_str(), value),
                  ERROR_SUCCESS);
        EXPECT_FALSE(frame->LoadMDIState(kProfile)) << CStringA(value).GetString();
    }
    EXPECT_TRUE(frame->opened.empty());
    EXPECT_EQ(groups(), L"a[b]") << "what is open stays";
}

TEST_F(MdiStateTest, ADocumentsNameIsItsPath) {
    const std::wstring a = plan(L"a");
    CMDIChildWndEx* const child = open(a);
    CObject* object = child;
    EXPECT_STREQ(child->GetDocumentName(&object), a.c_str());
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(frame->CMDIFrameWndEx::CreateDocumentWindow(nullptr, nullptr), nullptr);
    EXPECT_EQ(frame->CMDIFrameWndEx::CreateDocumentWindow(L"", nullptr), nullptr);
    EXPECT_EQ(frame->CMDIFrameWndEx::CreateDocumentWindow(L"Z:\\nowhere.plan", nullptr), nullptr);
    EXPECT_EQ(frame->CMDIFrameWndEx::CreateDocumentWindow(a.c_str(), nullptr), child) << "it is open";
}

}  // namespace documents_test
