#include "documents_fixture.h"

#include <shlobj.h>

#include <fstream>
#include <iterator>

namespace documents_test {

IMPLEMENT_DYNCREATE(Plan, CDocument)
IMPLEMENT_DYNCREATE(PlanView, CView)
IMPLEMENT_DYNCREATE(MainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(Plan, CDocument)
    ON_COMMAND(IDC_PLAN_COMMAND, &Plan::OnPlanCommand)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(MainFrame, CFrameWnd)
    ON_COMMAND(IDC_PLAN_COMMAND, &MainFrame::OnMainCommand)
    ON_COMMAND(IDC_MAIN_COMMAND, &MainFrame::OnMainCommand)
END_MESSAGE_MAP()

void Plan::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        const CStringA bytes(text);
        ar.Write(bytes.GetString(), static_cast<UINT>(bytes.GetLength()));
    } else {
        char bytes[100] = {};
        ar.Read(bytes, sizeof(bytes) - 1);
        text = bytes;
    }
    if (failsToSerialize || text == L"damaged")
        AfxThrowArchiveException(CArchiveException::badSchema, L"plan");
}

BOOL Plan::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    return takesCommands && CDocument::OnCmdMsg(id, code, extra, info);
}

DocumentsTest::DocumentsTest()
    : formerWindow(AfxGetThread() != nullptr ? AfxGetThread()->m_pMainWnd : nullptr) {
    AfxGetModuleState()->m_pCurrentWinApp = &app;
    app.m_nCmdShow = SW_SHOWNORMAL;
    if (CWinThread* thread = AfxGetThread()) thread->m_pMainWnd = nullptr;
    folder = std::filesystem::temp_directory_path() / L"ktui documents test";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    take();
    Plan::refusesNew = false;
}

DocumentsTest::~DocumentsTest() {
    app.CloseAllDocuments(FALSE);
    if (app.m_pMainWnd != nullptr && ::IsWindow(app.m_pMainWnd->m_hWnd)) app.m_pMainWnd->DestroyWindow();
    app.m_pMainWnd = nullptr;
    // The end of a main window asks the pump to end.
    MSG message;
    while (::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
    if (CWinThread* thread = AfxGetThread()) thread->m_pMainWnd = formerWindow;
    AfxGetModuleState()->m_pCurrentWinApp = former;
    std::filesystem::remove_all(folder);
    EXPECT_EQ(Plan::alive, 0);
    EXPECT_EQ(PlanView::alive, 0);
}

void DocumentsTest::write(const wchar_t* name, const std::string& bytes) const {
    std::ofstream(folder / name, std::ios::binary) << bytes;
}

std::string DocumentsTest::read(const wchar_t* name) const {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

size_t DocumentsTest::files() const {
    return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

CSingleDocTemplate* DocumentsTest::add_single(UINT id) {
    auto* kind =
        new CSingleDocTemplate(id, RUNTIME_CLASS(Plan), RUNTIME_CLASS(MainFrame), RUNTIME_CLASS(PlanView));
    app.AddDocTemplate(kind);
    return kind;
}

Plan* open_new(DocumentsTest& test) {
    POSITION place = test.app.GetFirstDocTemplatePosition();
    return static_cast<Plan*>(test.app.GetNextDocTemplate(place)->OpenDocumentFile(nullptr));
}

PlanView* view_of(const CDocument* document) {
    POSITION place = document->GetFirstViewPosition();
    return static_cast<PlanView*>(document->GetNextView(place));
}

CFrameWnd* frame_of(const CDocument* document) { return view_of(document)->GetParentFrame(); }

HGLOBAL dropped(const std::vector<std::wstring>& names) {
    std::wstring list;
    for (const std::wstring& name : names) list += name + L'\0';
    const size_t bytes = (list.size() + 1) * sizeof(wchar_t);
    HGLOBAL memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
    auto* files = static_cast<DROPFILES*>(::GlobalLock(memory));
    files->pFiles = sizeof(DROPFILES);
    files->fWide = TRUE;
    ::memcpy(files + 1, list.c_str(), bytes);
    ::GlobalUnlock(memory);
    return memory;
}

}  // namespace documents_test
