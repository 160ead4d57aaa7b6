// Views that scroll, that are a dialog, and that are a control.
#include <afxcview.h>

#include "view_frame.h"

namespace documents_test {

namespace {

const int kBar = ::GetSystemMetrics(SM_CXVSCROLL);

}  // namespace

TEST_F(DocumentsTest, BarsAreThereOnlyWhereTheContentsDoNotFit) {
    ViewFrame<Sheet> sheet;
    ASSERT_NE(sheet.view, nullptr);
    EXPECT_EQ(sheet.view->GetDocument(), &sheet.document);
    EXPECT_EQ(sheet.room().Size(), CSize(400, 300));
    sheet.view->SetScrollSizes(MM_TEXT, CSize(400, 300));
    EXPECT_FALSE(sheet.bar(WS_HSCROLL));
    EXPECT_FALSE(sheet.bar(WS_VSCROLL));
    sheet.view->SetScrollSizes(MM_TEXT, CSize(300, 301));
    EXPECT_FALSE(sheet.bar(WS_HSCROLL));
    EXPECT_TRUE(sheet.bar(WS_VSCROLL));
    // The upright bar takes room that the other then needs.
    sheet.view->SetScrollSizes(MM_TEXT, CSize(400 - kBar + 1, 301));
    EXPECT_TRUE(sheet.bar(WS_HSCROLL));
    EXPECT_TRUE(sheet.bar(WS_VSCROLL));
    sheet.view->SetScrollSizes(MM_TEXT, CSize(401, 200));
    EXPECT_TRUE(sheet.bar(WS_HSCROLL));
    EXPECT_FALSE(sheet.bar(WS_VSCROLL));
    sheet.resize(500, 300);
    EXPECT_FALSE(sheet.bar(WS_HSCROLL));
}

TEST_F(DocumentsTest, LinesPagesAndEndsScrollAndStopAtTheEnds) {
    ViewFrame<Sheet> sheet;
    sheet.view->SetScrollSizes(MM_TEXT, CSize(1000, 2000));
    int mode = 0;
    SIZE total, page, line;
    sheet.view->GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(CSize(page), CSize(100, 200));
    EXPECT_EQ(CSize(line), CSize(10, 20));
    const auto send = [&](UINT message, UINT code) { sheet.view->SendMessage(message, code); };
    send(WM_VSCROLL, SB_LINEDOWN);
    send(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(10, 20));
    send(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(10, 220));
    send(WM_HSCROLL, SB_BOTTOM);
    send(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(1000 - 400 + kBar, 2000 - 300 + kBar));
    send(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(sheet.view->GetScrollPosition().y, 2000 - 300 + kBar);
    send(WM_VSCROLL, SB_PAGEUP);
    EXPECT_EQ(sheet.view->GetScrollPosition().y, 2000 - 300 + kBar - 200);
    send(WM_VSCROLL, SB_TOP);
    send(WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(1000 - 400 + kBar - 10, 0));
    sheet.draw();
    EXPECT_EQ(sheet.view->drawn.TopLeft(), CPoint(1000 - 400 + kBar - 10, 0))
        << "what is drawn has moved along";
}

TEST_F(DocumentsTest, TheWheelScrollsByThreeLinesWhereThereIsABar) {
    ViewFrame<Sheet> sheet;
    const auto wheel = [&](int delta, UINT keys = 0) {
        sheet.view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(keys, static_cast<WORD>(delta)), 0);
    };
    sheet.view->SetScrollSizes(MM_TEXT, CSize(100, 2000), CSize(50, 100), CSize(5, 10));
    wheel(-120);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(0, 30));
    wheel(120);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(0, 0));
    wheel(-120, MK_CONTROL);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(0, 0)) << "zooming is the program's own";
    sheet.view->SetScrollSizes(MM_TEXT, CSize(2000, 100), CSize(50, 100), CSize(5, 10));
    wheel(-240);
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(30, 0));
}

TEST_F(DocumentsTest, PositionsAreLogicalUnitsOfTheMappingMode) {
    ViewFrame<Sheet> sheet;
    // 100 mm by 100 mm, upwards.
    sheet.view->SetScrollSizes(MM_LOMETRIC, CSize(4000, 4000));
    int mode = 0;
    SIZE total, page, line;
    sheet.view->GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(mode, MM_LOMETRIC);
    EXPECT_GT(total.cx, 600);
    EXPECT_EQ(sheet.view->GetTotalSize(), CSize(4000, 4000));
    sheet.view->ScrollToPosition(CPoint(1000, -500));
    EXPECT_NEAR(sheet.view->GetScrollPosition().x, 1000, 6);
    EXPECT_NEAR(sheet.view->GetScrollPosition().y, -500, 6);
    sheet.draw();
    EXPECT_NEAR(sheet.view->drawn.left, 1000, 6);
    EXPECT_NEAR(sheet.view->drawn.top, -500, 6);
}

TEST_F(DocumentsTest, ShrinkingTheContentsBringsThePlaceBack) {
    ViewFrame<Sheet> sheet;
    sheet.view->SetScrollSizes(MM_TEXT, CSize(100, 2000));
    sheet.view->ScrollToPosition(CPoint(0, 1700));
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(0, 1700));
    sheet.view->SetScrollSizes(MM_TEXT, CSize(100, 500));
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(0, 200));
    sheet.view->SetScrollSizes(MM_TEXT, CSize(100, 100));
    EXPECT_EQ(sheet.view->GetScrollPosition(), CPoint(0, 0));
}

TEST_F(DocumentsTest, ScaledContentsFillTheWindow) {
    ViewFrame<Sheet> sheet;
    sheet.view->SetScrollSizes(MM_TEXT, CSize(1000, 1000));
    sheet.view->SetScaleToFitSize(CSize(200, 600));
    EXPECT_FALSE(sheet.bar(WS_HSCROLL | WS_VSCROLL));
    sheet.draw();
    EXPECT_EQ(sheet.view->drawn, CRect(0, 0, 200, 600));
    sheet.resize(600, 200);
    sheet.draw();
    EXPECT_EQ(sheet.view->drawn, CRect(0, 0, 200, 600));
    EXPECT_FALSE(sheet.view->OnScroll(MAKEWORD(0xFF, SB_LINEDOWN), 0));
}

TEST_F(DocumentsTest, APointIsBroughtToTheMiddleAndSmallContentsStandThereWhenAsked) {
    ViewFrame<Sheet> sheet;
    sheet.view->SetScrollSizes(MM_TEXT, CSize(2000, 2000));
    sheet.view->CenterOnPoint(CPoint(1000, 900));
    const CRect room = sheet.room();
    EXPECT_EQ(sheet.view->GetDeviceScrollPosition(),
              CPoint(1000 - room.Width() / 2, 900 - room.Height() / 2));
    sheet.view->SetScrollSizes(MM_TEXT, CSize(100, 60));
    sheet.draw();
    EXPECT_EQ(sheet.view->drawn.TopLeft(), CPoint(0, 0));
    sheet.view->m_bCenter = TRUE;
    sheet.draw();
    EXPECT_EQ(sheet.view->drawn.TopLeft(), CPoint(-150, -120));
}

TEST_F(DocumentsTest, TheFrameIsMadeAsLargeAsTheContents) {
    ViewFrame<Sheet> sheet;
    sheet.view->SetScrollSizes(MM_TEXT, CSize(250, 350));
    sheet.view->ResizeParentToFit();
    EXPECT_EQ(sheet.room().Width(), 250 - kBar) << "only smaller: the height stays, with its bar";
    sheet.view->ResizeParentToFit(FALSE);
    EXPECT_EQ(sheet.room().Size(), CSize(250, 350));
}

TEST_F(DocumentsTest, AFormHasTheControlsOfItsTemplateAndScrolls) {
    ViewFrame<Form> form;
    ASSERT_NE(form.view, nullptr);
    EXPECT_TRUE(form.view->IsInitDlgCompleted());
    EXPECT_EQ(form.view->GetDocument(), &form.document);
    EXPECT_STREQ(ui_test::text_of(::GetDlgItem(form.view->m_hWnd, IDC_FORM_FIRST)), L"one");
    ::SetDlgItemTextW(form.view->m_hWnd, IDC_FORM_SECOND, L"written");
    EXPECT_TRUE(form.view->UpdateData());
    EXPECT_STREQ(form.view->second, L"written");
    EXPECT_FALSE(form.bar(WS_VSCROLL));
    form.resize(400, 60);
    EXPECT_TRUE(form.bar(WS_VSCROLL));
    form.view->OnScroll(MAKEWORD(0xFF, SB_BOTTOM), 0);
    CRect field;
    ::GetWindowRect(::GetDlgItem(form.view->m_hWnd, IDC_FORM_FIRST), &field);
    form.view->ScreenToClient(&field);
    EXPECT_LT(field.bottom, 0) << "the controls move along";
}

TEST_F(DocumentsTest, AnEditViewIsTheTextOfItsDocument) {
    ViewFrame<CEditView> edit;
    ASSERT_NE(edit.view, nullptr);
    EXPECT_FALSE(edit.document.IsModified());
    ::SendMessageW(edit.view->m_hWnd, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"one two\r\ntwo"));
    EXPECT_TRUE(edit.document.IsModified()) << "typing changes the document";
    EXPECT_EQ(edit.view->GetBufferLength(), 12u);
    EXPECT_EQ(edit.view->GetEditCtrl().GetLineCount(), 2);
    edit.view->GetEditCtrl().SetSel(0, 0);
    EXPECT_TRUE(edit.view->FindText(L"TWO", TRUE, FALSE));
    CString found;
    edit.view->GetSelectedText(found);
    EXPECT_STREQ(found, L"two");
    EXPECT_TRUE(edit.view->FindText(L"two"));
    EXPECT_FALSE(edit.view->FindText(L"two"));
    EXPECT_TRUE(edit.view->FindText(L"two", FALSE));
    int first = 0, end = 0;
    edit.view->GetEditCtrl().GetSel(first, end);
    EXPECT_EQ(first, 4);
    EXPECT_FALSE(edit.view->FindText(L"TWO"));
    edit.view->SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL);
    edit.view->SendMessage(WM_COMMAND, ID_EDIT_CLEAR);
    EXPECT_EQ(edit.view->GetBufferLength(), 0u);
    edit.view->SendMessage(WM_COMMAND, ID_EDIT_UNDO);
    EXPECT_EQ(edit.view->GetBufferLength(), 12u);
}

TEST_F(DocumentsTest, AnEditViewKeepsTheEncodingOfItsFile) {
    ViewFrame<CEditView> edit;
    const auto load = [&](const std::string& bytes) {
        CMemFile file;
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        file.SeekToBegin();
        CArchive archive(&file, CArchive::load);
        edit.view->SerializeRaw(archive);
    };
    const auto store = [&] {
        CMemFile file;
        {
            CArchive archive(&file, CArchive::store);
            edit.view->SerializeRaw(archive);
        }
        std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
        file.SeekToBegin();
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    };
    load("plain\ntext\r");
    EXPECT_STREQ(ui_test::text_of(edit.view->m_hWnd), L"plain\r\ntext\r\n");
    EXPECT_EQ(store(), "plain\r\ntext\r\n");
    const std::string utf16(
        "\xFF\xFE"
        "a\0\x2D\x4E",
        6);
    load(utf16);
    EXPECT_STREQ(ui_test::text_of(edit.view->m_hWnd), L"a\x4E2D");
    EXPECT_EQ(store(), utf16);
    load("\xEF\xBB\xBF\xE4\xB8\xAD");
    EXPECT_STREQ(ui_test::text_of(edit.view->m_hWnd), L"\x4E2D");
    EXPECT_EQ(store(), "\xEF\xBB\xBF\xE4\xB8\xAD");
    load(std::string(70000, 'x'));
    EXPECT_EQ(edit.view->GetBufferLength(), 70000u);
    load("");
    EXPECT_EQ(edit.view->GetBufferLength(), 0u);
}

TEST_F(DocumentsTest, ListsAndTreesAreViews) {
    {
        ViewFrame<CListView> list;
        ASSERT_NE(list.view, nullptr);
        EXPECT_EQ(list.view->GetListCtrl().InsertItem(0, L"first"), 0);
        EXPECT_EQ(::SendMessageW(list.view->m_hWnd, LVM_GETITEMCOUNT, 0, 0), 1);
        EXPECT_EQ(list.view->GetDocument(), &list.document);
    }
    ViewFrame<CTreeView> tree;
    ASSERT_NE(tree.view, nullptr);
    EXPECT_NE(tree.view->GetTreeCtrl().InsertItem(L"root"), nullptr);
    EXPECT_EQ(::SendMessageW(tree.view->m_hWnd, TVM_GETCOUNT, 0, 0), 1);
}

TEST_F(DocumentsTest, ActiveViewsAreToldOnceAndOnlyWhenTheyChange) {
    ViewFrame<PlanView> frame;
    take();
    frame.frame->SetActiveView(frame.view);
    EXPECT_TRUE(take().empty()) << "it is already";
    frame.frame->SetActiveView(nullptr);
    EXPECT_EQ(take(), (std::vector<std::string>{"view off"}));
    EXPECT_EQ(frame.frame->GetActiveDocument(), nullptr);
    frame.frame->SetActiveView(frame.view, FALSE);
    EXPECT_TRUE(take().empty());
    EXPECT_EQ(frame.frame->GetActiveView(), frame.view);
}

}  // namespace documents_test
