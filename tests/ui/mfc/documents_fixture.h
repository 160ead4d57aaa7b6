// An application with documents, views and frames that note what is asked of them.
#pragma once

#include <afxext.h>

#include <filesystem>
#include <string>
#include <vector>

#include "documents_ids.h"
#include "ui_test.h"

namespace documents_test {

/// What documents, views and frames were asked for, in order.
inline std::vector<std::string>& heard() {
    static std::vector<std::string> list;
    return list;
}
inline void note(const std::string& what) { heard().push_back(what); }
/// What was heard since the last call.
inline std::vector<std::string> take() { return std::exchange(heard(), {}); }

/// Its data is one text.
class Plan : public CDocument {
    DECLARE_DYNCREATE(Plan)
public:
    Plan() { ++alive; }
    ~Plan() override {
        --alive;
        note("~document");
    }
    CString text;
    bool failsToSerialize = false;
    bool takesCommands = true;
    static inline int alive = 0;
    static inline bool refusesNew = false;

    BOOL OnNewDocument() override {
        note("new");
        return !refusesNew && CDocument::OnNewDocument();
    }
    void DeleteContents() override {
        note("empty");
        text.Empty();
    }
    void Serialize(CArchive& ar) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    void OnPlanCommand() { note("document command"); }
    DECLARE_MESSAGE_MAP()
};

/// Draws nothing, and tells of its calls.
class PlanView : public CView {
    DECLARE_DYNCREATE(PlanView)
public:
    PlanView() { ++alive; }
    ~PlanView() override { --alive; }
    static inline int alive = 0;
    int draws = 0;
    LPARAM hint = -1;
    CView* sender = nullptr;
    bool takesCommand = false;
    std::vector<std::pair<UINT, CFrameWnd*>> frameStates;  ///< what OnActivateFrame was told

    void OnInitialUpdate() override {
        note("initial update");
        CView::OnInitialUpdate();
    }

protected:
    void OnDraw(CDC*) override { ++draws; }
    void OnUpdate(CView* from, LPARAM what, CObject* object) override {
        sender = from;
        hint = what;
        note("update");
        CView::OnUpdate(from, what, object);
    }
    void OnActivateView(BOOL activate, CView* next, CView* former) override {
        note(activate ? "view on" : "view off");
        CView::OnActivateView(activate, next, former);
    }
    void OnActivateFrame(UINT state, CFrameWnd* frame) override {
        frameStates.emplace_back(state, frame);
        CView::OnActivateFrame(state, frame);
    }
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (takesCommand && id == IDC_PLAN_COMMAND && code == CN_COMMAND) {
            note("view command");
            return TRUE;
        }
        return CView::OnCmdMsg(id, code, extra, info);
    }
};

class MainFrame : public CFrameWnd {
    DECLARE_DYNCREATE(MainFrame)
public:
    ~MainFrame() override { note("~frame"); }

protected:
    void OnMainCommand() { note("frame command"); }
    DECLARE_MESSAGE_MAP()
};

class App : public CWinApp {
public:
    std::vector<std::wstring> told;  ///< message boxes
    int answer = IDOK;
    std::vector<std::wstring> recent;
    CString promptAnswer;  ///< what the file dialog gives; empty cancels
    std::vector<std::wstring> prompts;

    int ExitInstance() override {
        note("exit");
        return 0;
    }
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        told.emplace_back(text);
        return answer;
    }
    void AddToRecentFileList(LPCTSTR path) override { recent.emplace_back(path); }
    BOOL DoPromptFileName(CString& name, UINT title, DWORD, BOOL open, CDocTemplate*) override {
        CString caption;
        caption.LoadString(title);
        prompts.push_back((open ? L"open " : L"save ") + std::wstring(caption) + L": " + std::wstring(name));
        if (promptAnswer.IsEmpty()) return FALSE;
        name = promptAnswer;
        return TRUE;
    }
};

/// The application stands in the place of the test program's; files lie in a folder of the test's own.
struct DocumentsTest : ::testing::Test {
    DocumentsTest();
    ~DocumentsTest() override;

    CWinApp* const former = AfxGetApp();
    CWnd* const formerWindow;
    App app;
    std::filesystem::path folder;

    CString path(const wchar_t* name) const { return (folder / name).c_str(); }
    void write(const wchar_t* name, const std::string& bytes) const;
    std::string read(const wchar_t* name) const;
    /// How many files there are in the folder.
    size_t files() const;
    /// A program with one document.
    CSingleDocTemplate* add_single(UINT id = IDR_PLAN);
};

using Texts = std::vector<std::string>;

/// A new document of the first kind, with its frame and its view.
Plan* open_new(DocumentsTest& test);
PlanView* view_of(const CDocument* document);
CFrameWnd* frame_of(const CDocument* document);

/// What WM_DROPFILES hands over: a list of full names.
HGLOBAL dropped(const std::vector<std::wstring>& names);

}  // namespace documents_test
