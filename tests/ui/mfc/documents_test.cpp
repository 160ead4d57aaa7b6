// Documents: new, open, save, close, and what the user is asked.
#include "documents_fixture.h"

#include <kmfc/command_line_info.h>
#include <shlobj.h>

namespace documents_test {

TEST_F(DocumentsTest, ANewDocumentComesInTheMainWindowInThisOrder) {
    add_single();
    Plan* document = open_new(*this);
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(take(), (Texts{"new", "empty", "initial update", "update", "view on", "view on"}));
    EXPECT_STREQ(document->GetTitle(), L"Plan");
    EXPECT_STREQ(document->GetPathName(), L"");
    EXPECT_FALSE(document->IsModified());
    CFrameWnd* frame = frame_of(document);
    EXPECT_EQ(AfxGetThread()->m_pMainWnd, frame);
    EXPECT_STREQ(ui_test::text_of(frame->m_hWnd), L"Plan - Pad");
    EXPECT_TRUE(frame->IsWindowVisible());
    EXPECT_EQ(frame->GetActiveDocument(), document);
    EXPECT_EQ(view_of(document)->GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_EQ(view_of(document)->GetExStyle() & WS_EX_CLIENTEDGE, 0u) << "the only view has the frame's edge";
    CRect room, view;
    frame->GetClientRect(&room);
    view_of(document)->GetWindowRect(&view);
    EXPECT_EQ(view.Size(), room.Size());
}

TEST_F(DocumentsTest, TheSecondNewOneReusesDocumentAndFrame) {
    add_single();
    Plan* document = open_new(*this);
    CFrameWnd* frame = frame_of(document);
    document->text = L"old";
    take();
    EXPECT_EQ(open_new(*this), document);
    EXPECT_EQ(frame_of(document), frame);
    EXPECT_STREQ(document->text, L"");
    EXPECT_EQ(app.GetOpenDocumentCount(), 1);
}

TEST_F(DocumentsTest, AChangedOneIsAskedForBeforeItIsReplaced) {
    add_single();
    Plan* document = open_new(*this);
    document->text = L"old";
    document->SetModifiedFlag();
    app.answer = IDCANCEL;
    EXPECT_EQ(open_new(*this), nullptr);
    EXPECT_EQ(app.told, (std::vector<std::wstring>{L"Save the changes to Plan?"}));
    EXPECT_STREQ(document->text, L"old");
    app.answer = IDNO;
    EXPECT_EQ(open_new(*this), document);
    EXPECT_STREQ(document->text, L"");
    EXPECT_FALSE(document->IsModified());
}

TEST_F(DocumentsTest, AnsweringYesAsksForANameAndSaves) {
    add_single();
    Plan* document = open_new(*this);
    document->text = L"kept";
    document->SetModifiedFlag();
    app.answer = IDYES;
    EXPECT_FALSE(document->SaveModified()) << "the file dialog was cancelled";
    EXPECT_EQ(app.prompts, (std::vector<std::wstring>{L"save Save As: Plan.plan"}));
    app.promptAnswer = path(L"a.plan");
    EXPECT_TRUE(document->SaveModified());
    EXPECT_EQ(read(L"a.plan"), "kept");
    EXPECT_FALSE(document->IsModified());
    EXPECT_STREQ(document->GetPathName(), path(L"a.plan"));
    EXPECT_STREQ(document->GetTitle().Left(1), L"a");
    EXPECT_EQ(app.recent, (std::vector<std::wstring>{path(L"a.plan").GetString()}));
    EXPECT_STREQ(ui_test::text_of(frame_of(document)->m_hWnd).Right(6), L" - Pad");
}

TEST_F(DocumentsTest, AProposedNameHasNothingThatAFileNameMustNot) {
    add_single();
    Plan* document = open_new(*this);
    document->SetTitle(L"North wing: <first>");
    document->OnCmdMsg(ID_FILE_SAVE_AS, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(app.prompts, (std::vector<std::wstring>{L"save Save As: North wing.plan"}));
}

TEST_F(DocumentsTest, OpeningReadsTheFile) {
    add_single();
    write(L"b.plan", "walls");
    auto* document = static_cast<Plan*>(app.OpenDocumentFile(path(L"b.plan")));
    ASSERT_NE(document, nullptr);
    EXPECT_STREQ(document->text, L"walls");
    EXPECT_FALSE(document->IsModified());
    EXPECT_STREQ(document->GetPathName(), path(L"b.plan"));
    EXPECT_EQ(app.recent.size(), 1u);
    EXPECT_EQ(take(), (Texts{"empty", "initial update", "update", "view on", "view on"}));
    // A second time it is the same one, and nothing is read.
    document->text = L"changed since";
    EXPECT_EQ(app.OpenDocumentFile(path(L"b.plan")), document);
    EXPECT_STREQ(document->text, L"changed since");
    EXPECT_EQ(app.OpenDocumentFile(L"\"" + path(L"B.PLAN") + L"\""), document) << "in quotes, in capitals";
}

TEST_F(DocumentsTest, WithoutRecentFilesItIsNotPutThere) {
    add_single();
    write(L"b.plan", "walls");
    EXPECT_NE(app.OpenDocumentFile(path(L"b.plan"), FALSE), nullptr);
    EXPECT_TRUE(app.recent.empty());
}

TEST_F(DocumentsTest, AMissingFileIsToldAndLeavesNothing) {
    add_single();
    EXPECT_EQ(app.OpenDocumentFile(path(L"none.plan")), nullptr);
    ASSERT_EQ(app.told.size(), 1u);
    EXPECT_TRUE(app.told[0].starts_with(L"The document could not be opened."));
    EXPECT_GT(app.told[0].size(), 40u) << "and the reason";
    EXPECT_EQ(Plan::alive, 0);
    EXPECT_EQ(PlanView::alive, 0);
}

TEST_F(DocumentsTest, AFileThatIsMissingLeavesTheOpenDocumentAsItWas) {
    add_single();
    Plan* document = open_new(*this);
    document->text = L"mine";
    document->SetModifiedFlag();
    app.answer = IDNO;
    EXPECT_EQ(app.OpenDocumentFile(path(L"none.plan")), nullptr);
    EXPECT_STREQ(document->text, L"mine");
    EXPECT_TRUE(document->IsModified());
}

TEST_F(DocumentsTest, ADamagedFileLeavesAnUntitledDocument) {
    add_single();
    Plan* document = open_new(*this);
    document->SetTitle(L"mine");
    write(L"bad.plan", "damaged");
    EXPECT_EQ(app.OpenDocumentFile(path(L"bad.plan")), nullptr);
    ASSERT_EQ(app.told.size(), 1u);
    EXPECT_STREQ(document->text, L"");
    EXPECT_STREQ(document->GetTitle(), L"Plan");
    EXPECT_FALSE(document->IsModified());
}

TEST_F(DocumentsTest, AFailedSaveLeavesTheFormerFileWholeAndNothingBeside) {
    add_single();
    write(L"c.plan", "former");
    auto* document = static_cast<Plan*>(app.OpenDocumentFile(path(L"c.plan")));
    document->text = L"half";
    document->failsToSerialize = true;
    document->SetModifiedFlag();
    EXPECT_FALSE(document->DoFileSave());
    ASSERT_EQ(app.told.size(), 1u);
    EXPECT_TRUE(app.told[0].starts_with(L"The document could not be saved."));
    EXPECT_EQ(read(L"c.plan"), "former");
    EXPECT_EQ(files(), 1u);
    EXPECT_TRUE(document->IsModified());
    document->failsToSerialize = false;
    EXPECT_TRUE(document->DoFileSave());
    EXPECT_EQ(read(L"c.plan"), "half");
    EXPECT_EQ(files(), 1u);
    EXPECT_FALSE(document->IsModified());
}

TEST_F(DocumentsTest, AFileHeldByAnotherIsRefusedWithItsReason) {
    add_single();
    write(L"c.plan", "former");
    auto* document = static_cast<Plan*>(app.OpenDocumentFile(path(L"c.plan")));
    document->text = L"new";
    HANDLE held = ::CreateFileW(path(L"c.plan"), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(document->DoFileSave());
    ::CloseHandle(held);
    EXPECT_EQ(app.told.size(), 1u);
    EXPECT_EQ(read(L"c.plan"), "former");
    EXPECT_EQ(files(), 1u);
}

TEST_F(DocumentsTest, AReadOnlyFileIsSavedUnderAnotherName) {
    add_single();
    write(L"d.plan", "fixed");
    auto* document = static_cast<Plan*>(app.OpenDocumentFile(path(L"d.plan")));
    ::SetFileAttributesW(path(L"d.plan"), FILE_ATTRIBUTE_READONLY);
    app.promptAnswer = path(L"e.plan");
    EXPECT_TRUE(document->DoFileSave());
    ::SetFileAttributesW(path(L"d.plan"), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(app.prompts.size(), 1u);
    EXPECT_STREQ(document->GetPathName(), path(L"e.plan"));
    EXPECT_EQ(read(L"d.plan"), "fixed");
}

TEST_F(DocumentsTest, ACopyChangesNeitherNameNorModification) {
    add_single();
    write(L"d.plan", "x");
    auto* document = static_cast<Plan*>(app.OpenDocumentFile(path(L"d.plan")));
    document->text = L"copied";
    document->SetModifiedFlag();
    EXPECT_TRUE(document->DoSave(path(L"copy.plan"), FALSE));
    EXPECT_EQ(read(L"copy.plan"), "copied");
    EXPECT_STREQ(document->GetPathName(), path(L"d.plan"));
    EXPECT_TRUE(document->IsModified());
}

TEST_F(DocumentsTest, ADocumentOfAnotherProgramsExtensionIsTakenByTheFirstKind) {
    CSingleDocTemplate* plan = add_single();
    auto* note = new CSingleDocTemplate(IDR_NOTE, RUNTIME_CLASS(Plan), RUNTIME_CLASS(MainFrame),
                                        RUNTIME_CLASS(PlanView));
    app.AddDocTemplate(note);
    CDocument* open = nullptr;
    EXPECT_EQ(plan->MatchDocType(path(L"x.plan"), open), CDocTemplate::yesAttemptNative);
    EXPECT_EQ(plan->MatchDocType(path(L"x.PLAN"), open), CDocTemplate::yesAttemptNative);
    EXPECT_EQ(plan->MatchDocType(path(L"x.note"), open), CDocTemplate::yesAttemptForeign);
    EXPECT_EQ(plan->MatchDocType(path(L"a.plan\\x"), open), CDocTemplate::yesAttemptForeign)
        << "a folder's point";
    EXPECT_EQ(open, nullptr);
    write(L"x.note", "n");
    CDocument* document = app.OpenDocumentFile(path(L"x.note"));
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetDocTemplate(), note);
    EXPECT_EQ(note->MatchDocType(path(L"x.note"), open), CDocTemplate::yesAlreadyOpen);
    EXPECT_EQ(open, document);
}

TEST_F(DocumentsTest, ATemplatesStringHasSevenParts) {
    CSingleDocTemplate* kind = add_single();
    const std::pair<CDocTemplate::DocStringIndex, const wchar_t*> rows[] = {
        {CDocTemplate::windowTitle, L"Pad"},
        {CDocTemplate::docName, L"Plan"},
        {CDocTemplate::fileNewName, L"Plan Drawing"},
        {CDocTemplate::filterName, L"Plans (*.plan)"},
        {CDocTemplate::filterExt, L".plan"},
        {CDocTemplate::regFileTypeId, L"KtuiTest.Plan"},
        {CDocTemplate::regFileTypeName, L"Ktui Test Plan"},
    };
    for (const auto& [index, expected] : rows) {
        CString text;
        EXPECT_TRUE(kind->GetDocString(text, index));
        EXPECT_STREQ(text, expected);
    }
    CSingleDocTemplate note(IDR_NOTE, RUNTIME_CLASS(Plan), RUNTIME_CLASS(MainFrame), RUNTIME_CLASS(PlanView));
    CString text;
    EXPECT_FALSE(note.GetDocString(text, CDocTemplate::docName)) << "an empty part is none";
}

TEST_F(DocumentsTest, PointsSizesAndRectanglesGoThroughAnArchive) {
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive << CPoint(1, -2) << CSize(3, 4) << CRect(5, 6, 7, 8);
    }
    EXPECT_EQ(file.GetLength(), 32u);
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    CPoint point;
    CSize size;
    CRect rect;
    archive >> point >> size >> rect;
    EXPECT_EQ(point, CPoint(1, -2));
    EXPECT_EQ(size, CSize(3, 4));
    EXPECT_EQ(rect, CRect(5, 6, 7, 8));
    bool ended = false;
    try {
        archive >> point;
    } catch (CArchiveException* e) {
        ended = e->m_cause == CArchiveException::endOfFile;
        e->Delete();
    }
    EXPECT_TRUE(ended);
}

TEST_F(DocumentsTest, ViewsAreToldOfAChangeExceptTheOneThatMadeIt) {
    add_single();
    Plan* document = open_new(*this);
    PlanView* view = view_of(document);
    take();
    view->hint = -1;
    document->UpdateAllViews(view, 7);
    EXPECT_EQ(view->hint, -1);
    document->UpdateAllViews(nullptr, 7);
    EXPECT_EQ(view->hint, 7);
    EXPECT_EQ(view->sender, nullptr);
    EXPECT_EQ(take(), (Texts{"update"}));
    view->UpdateWindow();
    EXPECT_GT(view->draws, 0);
}

TEST_F(DocumentsTest, CommandsGoToViewThenDocumentThenFrame) {
    add_single();
    Plan* document = open_new(*this);
    CFrameWnd* frame = frame_of(document);
    view_of(document)->takesCommand = true;
    take();
    frame->SendMessage(WM_COMMAND, IDC_PLAN_COMMAND);
    EXPECT_EQ(take(), (Texts{"view command"}));
    view_of(document)->takesCommand = false;
    frame->SendMessage(WM_COMMAND, IDC_PLAN_COMMAND);
    EXPECT_EQ(take(), (Texts{"document command"}));
    document->takesCommands = false;
    frame->SendMessage(WM_COMMAND, IDC_PLAN_COMMAND);
    EXPECT_EQ(take(), (Texts{"frame command"}));
    document->takesCommands = true;
}

TEST_F(DocumentsTest, ClosingTheMainWindowAsksAndTakesTheDocumentAlong) {
    add_single();
    Plan* document = open_new(*this);
    CFrameWnd* frame = frame_of(document);
    HWND const window = frame->m_hWnd;
    app.m_pMainWnd = frame;
    document->SetModifiedFlag();
    app.answer = IDCANCEL;
    frame->SendMessage(WM_CLOSE);
    ASSERT_TRUE(::IsWindow(window));
    EXPECT_TRUE(frame->IsWindowVisible());
    take();
    app.answer = IDNO;
    frame->SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(take(), (Texts{"view off", "~frame", "empty", "~document"}));
    EXPECT_EQ(app.told.size(), 2u);
}

TEST_F(DocumentsTest, EndingTheSessionAsksFirst) {
    add_single();
    Plan* document = open_new(*this);
    CFrameWnd* frame = frame_of(document);
    app.m_pMainWnd = frame;
    document->SetModifiedFlag();
    app.answer = IDCANCEL;
    EXPECT_FALSE(frame->SendMessage(WM_QUERYENDSESSION));
    app.answer = IDNO;
    EXPECT_TRUE(frame->SendMessage(WM_QUERYENDSESSION));
}

TEST_F(DocumentsTest, ANewDocumentThatIsRefusedLeavesNothing) {
    add_single();
    Plan::refusesNew = true;
    EXPECT_EQ(open_new(*this), nullptr);
    EXPECT_EQ(Plan::alive, 0);
    EXPECT_EQ(PlanView::alive, 0);
    EXPECT_EQ(AfxGetThread()->m_pMainWnd, nullptr);
}

TEST_F(DocumentsTest, FilesDroppedOnTheFrameAreOpened) {
    add_single();
    write(L"f.plan", "dropped");
    Plan* document = open_new(*this);
    HGLOBAL const memory = dropped({path(L"f.plan").GetString()});
    frame_of(document)->SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
    EXPECT_STREQ(document->text, L"dropped");
}

TEST_F(DocumentsTest, TheCommandLineMakesOrOpensTheFirstDocument) {
    add_single();
    write(L"g.plan", "named");
    CCommandLineInfo info;
    info.m_nShellCommand = CCommandLineInfo::FileOpen;
    info.m_strFileName = path(L"g.plan");
    EXPECT_TRUE(app.ProcessShellCommand(info));
    EXPECT_STREQ(static_cast<CFrameWnd*>(AfxGetThread()->m_pMainWnd)->GetActiveDocument()->GetPathName(),
                 path(L"g.plan"));
    info.m_strFileName = path(L"none.plan");
    EXPECT_FALSE(app.ProcessShellCommand(info));
    info.m_nShellCommand = CCommandLineInfo::FileNothing;
    EXPECT_TRUE(app.ProcessShellCommand(info));
}

TEST_F(DocumentsTest, TypesOfFilesAreRegisteredForTheShellAndGoAgain) {
    add_single();
    const auto value = [](const wchar_t* key) {
        wchar_t text[MAX_PATH] = {};
        LONG size = sizeof(text);
        return ::RegQueryValueW(HKEY_CLASSES_ROOT, key, text, &size) == ERROR_SUCCESS
                   ? std::wstring(text)
                   : std::wstring(L"(none)");
    };
    const std::wstring program = ui_test::program_path().GetString();
    CCommandLineInfo info;
    info.m_nShellCommand = CCommandLineInfo::AppRegister;
    EXPECT_FALSE(app.ProcessShellCommand(info)) << "the program ends then";
    EXPECT_EQ(value(L".plan"), L"KtuiTest.Plan");
    EXPECT_EQ(value(L"KtuiTest.Plan"), L"Ktui Test Plan");
    EXPECT_EQ(value(L"KtuiTest.Plan\\shell\\open\\command"), L"\"" + program + L"\" \"%1\"");
    EXPECT_EQ(value(L"KtuiTest.Plan\\shell\\print\\command"), L"\"" + program + L"\" /p \"%1\"");
    EXPECT_EQ(value(L"KtuiTest.Plan\\DefaultIcon"), program + L",1");
    info.m_nShellCommand = CCommandLineInfo::AppUnregister;
    EXPECT_FALSE(app.ProcessShellCommand(info));
    EXPECT_EQ(value(L".plan"), L"(none)");
    EXPECT_EQ(value(L"KtuiTest.Plan"), L"(none)");
    // An extension that another program has stays with that.
    ::RegSetValueW(HKEY_CLASSES_ROOT, L".plan", REG_SZ, L"Somebody.Else", 0);
    app.RegisterShellFileTypes();
    EXPECT_EQ(value(L".plan"), L"Somebody.Else");
    EXPECT_EQ(value(L"KtuiTest.Plan\\shell\\print\\command"), L"(none)") << "only when asked for";
    app.UnregisterShellFileTypes();
    EXPECT_EQ(value(L".plan"), L"Somebody.Else");
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, L".plan");
}

TEST_F(DocumentsTest, SeveralKindsAreOfferedForANewDocument) {
    add_single(IDR_PLAN);
    add_single(IDR_NOTE);
    ui_test::when_dialog(L"New", [](HWND dialog) {
        HWND list = ::GetDlgItem(dialog, 1000);
        EXPECT_EQ(::SendMessageW(list, LB_GETCOUNT, 0, 0), 2);
        EXPECT_EQ(::SendMessageW(list, LB_GETCURSEL, 0, 0), 0);
        wchar_t text[64] = {};
        ::SendMessageW(list, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(text, L"Note");
        ::SendMessageW(list, LB_SETCURSEL, 1, 0);
        ::SendMessageW(dialog, WM_COMMAND, IDOK, 0);
    });
    app.OnFileNew();
    auto* frame = static_cast<CFrameWnd*>(AfxGetThread()->m_pMainWnd);
    ASSERT_NE(frame, nullptr);
    EXPECT_STREQ(frame->GetActiveDocument()->GetTitle(), L"Untitled") << "the kind has no name for documents";
    ui_test::when_dialog(L"New", [](HWND dialog) { ::SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
    app.OnFileNew();
    EXPECT_EQ(app.GetOpenDocumentCount(), 1);
}

}  // namespace documents_test
