// Calls and commands of views, forms, splitters and the manager of documents that nobody else makes here.
#include <afxole.h>
#include <afxdlgs.h>

#include "splitter_fixture.h"
#include "view_frame.h"

namespace documents_test {

namespace {

class PlainView : public CView {
    DECLARE_DYNCREATE(PlainView)
public:
    std::vector<std::pair<UINT, WPARAM>> wheels;
    BOOL answer = TRUE;

protected:
    void OnDraw(CDC*) override {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_MOUSEWHEEL) return CView::WindowProc(message, wParam, lParam);
        wheels.emplace_back(message, wParam);
        return answer;
    }
};
IMPLEMENT_DYNCREATE(PlainView, CView)

void command(CWnd& window, UINT id) { window.SendMessage(WM_COMMAND, id); }

std::wstring content(CWnd& window) { return std::wstring(ui_test::text_of(window.m_hWnd)); }

/// A dialog of the system by its first visible window.
void answer_file_dialog(std::function<void(HWND)> look) {
    ui_test::when_window(
        [](HWND window) { return ::GetDlgItem(window, 1148) != nullptr || ::GetDlgItem(window, 1152); },
        [look = std::move(look)](HWND window) {
            look(window);
            ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
}

}  // namespace

TEST_F(DocumentsTest, APlainViewScrollsAndSelectsNothing) {
    ViewFrame<PlainView> plain;
    EXPECT_FALSE(plain.view->IsSelected(&plain.document));
    EXPECT_FALSE(plain.view->OnScroll(SB_LINEDOWN, 0));
    EXPECT_FALSE(plain.view->OnScrollBy(CSize(1, 1)));
    EXPECT_EQ(plain.view->GetScrollBarCtrl(SB_HORZ), nullptr);
    EXPECT_EQ(CView::GetParentSplitter(plain.view, TRUE), nullptr);
    EXPECT_FALSE(is_enabled(*plain.view, ID_WINDOW_SPLIT));
    EXPECT_FALSE(is_enabled(*plain.view, ID_NEXT_PANE));
}

TEST_F(DocumentsTest, AClickInAViewActivatesIt) {
    ViewFrame<PlainView> plain;
    plain.frame->ShowWindow(SW_SHOW);
    plain.frame->SetActiveView(nullptr);
    const auto click = [&] {
        return plain.view->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(plain.frame->m_hWnd),
                                       MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    };
    click();
    EXPECT_EQ(plain.frame->GetActiveView(), plain.view);
    plain.frame->SetActiveWindow();
    ::SetFocus(plain.frame->m_hWnd);
    plain.frame->SetActiveView(plain.view, FALSE);
    ::SetFocus(nullptr);
    click();
    EXPECT_EQ(plain.frame->GetActiveView(), plain.view);
    EXPECT_EQ(::GetFocus(), plain.view->m_hWnd) << "the focus comes along";
}

TEST_F(DocumentsTest, TextGoesThroughTheClipboard) {
    ViewFrame<CEditView> edit;
    CEditView& view = *edit.view;
    view.SetWindowText(L"one two");
    view.SendMessage(EM_SETSEL, 0, 3);
    command(view, ID_EDIT_COPY);
    EXPECT_EQ(content(view), L"one two");
    EXPECT_TRUE(is_enabled(view, ID_EDIT_PASTE));
    view.SendMessage(EM_SETSEL, 7, 7);
    command(view, ID_EDIT_PASTE);
    EXPECT_EQ(content(view), L"one twoone");
    EXPECT_TRUE(edit.document.IsModified());
    view.SendMessage(EM_SETSEL, 0, 4);
    command(view, ID_EDIT_CUT);
    EXPECT_EQ(content(view), L"twoone");
    command(view, ID_EDIT_PASTE);
    EXPECT_EQ(content(view), L"one twoone");
    view.SendMessage(EM_SETSEL, 0, 4);
    command(view, ID_EDIT_CLEAR);
    EXPECT_EQ(content(view), L"twoone");
    command(view, ID_EDIT_UNDO);
    EXPECT_EQ(content(view), L"one twoone");
    command(view, ID_EDIT_SELECT_ALL);
    CString all;
    view.GetSelectedText(all);
    EXPECT_EQ(all, L"one twoone");
    EXPECT_EQ(view.GetBufferLength(), 10U);
    ::OpenClipboard(view.m_hWnd);
    ::EmptyClipboard();
    ::CloseClipboard();
    EXPECT_FALSE(is_enabled(view, ID_EDIT_PASTE));
    view.DeleteContents();
    EXPECT_EQ(content(view), L"");
}

TEST_F(DocumentsTest, TabStopsOfATextAreMeasuredInDialogUnits) {
    ViewFrame<CEditView> edit;
    edit.view->SetWindowText(L"\tx");
    const auto place = [&] { return LOWORD(edit.view->SendMessage(EM_POSFROMCHAR, 1)); };
    edit.view->SetTabStops(16);
    const int narrow = place();
    edit.view->SetTabStops(64);
    EXPECT_GT(place(), 2 * narrow);
}

TEST_F(DocumentsTest, AFormStandsWhereItIsAskedFor) {
    CFrameWnd* const frame = new CFrameWnd;
    frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400));
    const auto make = [&](DWORD style) {
        auto* const form = new Form;
        EXPECT_TRUE(form->CWnd::Create(nullptr, nullptr, style, CRect(11, 22, 311, 222), frame, 77));
        return form;
    };
    Form* form = make(WS_CHILD | WS_VISIBLE | WS_BORDER);
    CRect place;
    form->GetWindowRect(&place);
    frame->ScreenToClient(&place);
    EXPECT_EQ(place, CRect(11, 22, 311, 222));
    EXPECT_EQ(form->GetDlgCtrlID(), 77);
    EXPECT_NE(form->GetStyle() & WS_VISIBLE, 0U);
    EXPECT_NE(form->GetExStyle() & WS_EX_CLIENTEDGE, 0U) << "a border is an edge";
    EXPECT_EQ(form->GetStyle() & WS_BORDER, 0U);
    EXPECT_EQ(form->GetStyle() & WS_CAPTION, 0U);
    EXPECT_NE(form->GetStyle() & WS_CHILD, 0U);
    form->DestroyWindow();
    form = make(WS_CHILD);
    EXPECT_EQ(form->GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(form->GetExStyle() & WS_EX_CLIENTEDGE, 0U);
    form->DestroyWindow();
    frame->DestroyWindow();
}

TEST_F(DocumentsTest, AFormWithoutItsTemplateIsNotMade) {
    class Missing : public CFormView {
    public:
        explicit Missing(int* count) : CFormView(L"no such dialog"), m_count(count) {}
        ~Missing() override { ++*m_count; }
        int* m_count;
    };
    int gone = 0;
    CFrameWnd* const frame = new CFrameWnd;
    frame->Create(nullptr, L"frame");
    auto* const form = new Missing(&gone);
    CWnd* const window = form;
    EXPECT_FALSE(window->Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 9, 9), frame, 77));
    EXPECT_EQ(gone, 1) << "it deletes itself";
    frame->DestroyWindow();
}

TEST_F(DocumentsTest, KeysMoveInAFormAndAcceleratorsOfTheFrameGoFirst) {
    ViewFrame<Form> form;
    form.frame->ShowWindow(SW_SHOW);
    CWnd* const first = form.view->GetDlgItem(IDC_FORM_FIRST);
    CWnd* const second = form.view->GetDlgItem(IDC_FORM_SECOND);
    first->SetFocus();
    MSG tab = {first->m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(form.view->PreTranslateMessage(&tab));
    EXPECT_EQ(::GetFocus(), second->m_hWnd);
    MSG other = {first->m_hWnd, WM_TIMER, 0, 0, 0, {}};
    EXPECT_FALSE(form.view->PreTranslateMessage(&other));
    form.frame->LoadAccelTable(MAKEINTRESOURCEW(IDR_MAIN));
    MSG accelerator = {second->m_hWnd, WM_KEYDOWN, VK_F9, 1, 0, {}};
    EXPECT_TRUE(form.view->PreTranslateMessage(&accelerator)) << "the frame takes it";
    form.view->SetFocus();
    EXPECT_EQ(::GetFocus(), first->m_hWnd) << "the first control when none had it";
}

TEST_F(SplitterTest, TheWheelGoesToTheActivePane) {
    make(false);
    frame->SetActiveView(nullptr);
    EXPECT_EQ(splitter().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(5, 5)), 0);
    auto* const leaf = static_cast<Leaf*>(splitter().GetPane(0, 1));
    frame->SetActiveView(leaf);
    leaf->ScrollToPosition(CPoint(0, 300));
    splitter().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(5, 5));
    EXPECT_LT(leaf->GetScrollPosition().y, 300);
    EXPECT_EQ(leaf->GetScrollPosition().x, 0);
}

TEST_F(SplitterTest, APaneIsActivatedByItsPlace) {
    make(false);
    splitter().SetActivePane(0, 1);
    EXPECT_EQ(frame->GetActiveView(), splitter().GetPane(0, 1));
    EXPECT_TRUE(splitter().CanActivateNext());
    splitter().ActivateNext();
    EXPECT_EQ(frame->GetActiveView(), splitter().GetPane(0, 0));
    splitter().ActivateNext(TRUE);
    EXPECT_EQ(frame->GetActiveView(), splitter().GetPane(0, 1));
    int row = 9, col = 9;
    EXPECT_EQ(splitter().GetActivePane(&row, &col), splitter().GetPane(0, 1));
    EXPECT_EQ(row, 0);
    EXPECT_EQ(col, 1);
    EXPECT_TRUE(is_enabled(*frame->GetActiveView(), ID_NEXT_PANE));
    command(*frame->GetActiveView(), ID_NEXT_PANE);
    EXPECT_EQ(frame->GetActiveView(), splitter().GetPane(0, 0));
    command(*frame->GetActiveView(), ID_PREV_PANE);
    EXPECT_EQ(frame->GetActiveView(), splitter().GetPane(0, 1));
}

TEST_F(DocumentsTest, TheFileDialogOffersTheKindsOfDocuments) {
    CSingleDocTemplate* const kind = add_single();
    CString name(L"plan of mine");
    std::wstring title, filters;
    answer_file_dialog([&](HWND window) {
        title = ui_test::text_of(window);
        const HWND kinds = ::GetDlgItem(window, 1136);
        for (LRESULT i = 0; i < ::SendMessageW(kinds, CB_GETCOUNT, 0, 0); ++i) {
            wchar_t text[200] = {};
            ::SendMessageW(kinds, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            filters += std::wstring(text) + L";";
        }
    });
    CString all, open;
    all.LoadString(AFX_IDS_ALLFILTER);
    open.LoadString(AFX_IDS_OPENFILE);
    EXPECT_FALSE(app.CWinApp::DoPromptFileName(name, AFX_IDS_OPENFILE, OFN_HIDEREADONLY, TRUE, nullptr));
    EXPECT_EQ(name, L"plan of mine") << "given up";
    EXPECT_EQ(title, std::wstring(open));
    EXPECT_EQ(filters, L"Plans (*.plan);" + std::wstring(all) + L";");
    filters.clear();
    answer_file_dialog([&](HWND window) { title = ui_test::text_of(window); });
    EXPECT_FALSE(app.CWinApp::DoPromptFileName(name, AFX_IDS_SAVEFILE, 0, FALSE, kind));
    CString save;
    save.LoadString(AFX_IDS_SAVEFILE);
    EXPECT_EQ(title, std::wstring(save));
}

TEST_F(DocumentsTest, OpeningAsksForANameAndOpensIt) {
    add_single();
    write(L"one.plan", "one");
    app.CWinApp::OnFileOpen();
    ASSERT_EQ(app.prompts.size(), 1U);
    EXPECT_EQ(app.prompts[0].substr(0, 5), L"open ");
    EXPECT_EQ(Plan::alive, 0) << "given up";
    app.promptAnswer = path(L"one.plan");
    app.CWinApp::OnFileOpen();
    ASSERT_EQ(app.recent.size(), 1U);
    EXPECT_EQ(app.recent[0], std::wstring(path(L"one.plan")));
}

TEST_F(DocumentsTest, ADocumentOfNoKindIsToldToBeUnknown) {
    app.OpenDocumentFile(path(L"x.plan"));
    const size_t before = app.told.size();
    class Empty : public CDocManager {};
    Empty none;
    EXPECT_EQ(none.OpenDocumentFile(L"x.plan"), nullptr);
    CString text;
    text.LoadString(AFX_IDP_FAILED_TO_OPEN_DOC);
    ASSERT_EQ(app.told.size(), before + 1);
    EXPECT_EQ(app.told.back(), std::wstring(text));
    none.OnFileNew();
    CString failed;
    failed.LoadString(AFX_IDP_FAILED_TO_CREATE_DOC);
    EXPECT_EQ(app.told.back(), std::wstring(failed));
}

}  // namespace documents_test
