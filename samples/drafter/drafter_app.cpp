// The drafter: a small host that shows the toolkit at work on a drawing.
//
//     drafter.exe [--clean] [drawing.dxf ...]    --clean puts window and palettes where they stand at first
#include <afxadv.h>
#include <afxwin.h>
#include <afxwinappex.h>
#include <ktut.h>
#include <standin_host.h>

#include <ktui/ktui.h>

#include "command_line.h"
#include "drawing_chooser.h"
#include "main_frame.h"
#include "resource.h"

namespace {

constexpr UINT kMostRecentFiles = 9;
constexpr int kLongestRecentPath = 60;  // characters, in the menu

// After so many milliseconds the file dialogs give a drive up that does not answer.
constexpr unsigned kDriveLimit = 3000;

class CDrafterApp : public CWinAppEx {
public:
    /// Before the program's resources can be found it needs the name that its settings stand under.
    CDrafterApp() { m_pszAppName = ::_wcsdup(L"Drafter"); }

    BOOL InitInstance() override {
        InitKtUiDLL();
        KtUiFollowSystemAppearance(TRUE);
        // Loading the toolkit has made its resource library the current one; this program's own come first
        // again.
        AfxSetResourceHandle(m_hInstance);
        m_host = std::make_unique<CStandinHost>(*this);
        m_host->SetHelpTopic(HID_PICKER_BAR, L"PickerBar");
        SetFileHelpTopics(*m_host);
        SetRegistryKey(L"Velmora");
        LoadStdProfileSettings(kMostRecentFiles);
        m_pRecentFileList->m_nMaxDisplayLength = kLongestRecentPath;
        ShowPreviewsOfDrawings();
        KtUiSetNeverBlocked(kDriveLimit);
        const DrafterCommandLine told = ReadCommandLine(
            m_lpCmdLine, [](const std::wstring& path) { return ktutPathExists(path.c_str()); });
        if (told.isClean) CleanState();
        auto* frame = new CMainFrame(*m_host);
        m_pMainWnd = frame;
        if (!frame->LoadFrame(IDR_MAINFRAME)) return FALSE;
        frame->ShowWindow(m_nCmdShow);
        frame->UpdateWindow();
        std::vector<CString> files;
        for (const std::wstring& file : told.files) files.emplace_back(file.c_str());
        frame->OpenAtStart(files);
        return TRUE;
    }

    int ExitInstance() override {
        m_host.reset();
        // The list was written at each change, and by other drafters since.
        m_pRecentFileList->ReadList();
        return CWinAppEx::ExitInstance();
    }

protected:
    void LoadCustomState() override { frame().palettes().Load(*this); }
    void SaveCustomState() override { frame().palettes().Save(*this); }

private:
    CMainFrame& frame() { return *static_cast<CMainFrame*>(m_pMainWnd); }

    /// The application's own handler, which is asked before the main window's, would look for a template of
    /// documents.
    afx_msg void OnRecentFile(UINT id) { frame().OpenRecent(static_cast<int>(id - ID_FILE_MRU_FILE1)); }
    DECLARE_MESSAGE_MAP()

    std::unique_ptr<CStandinHost> m_host;
};

BEGIN_MESSAGE_MAP(CDrafterApp, CWinAppEx)
    ON_COMMAND_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE9, &CDrafterApp::OnRecentFile)
END_MESSAGE_MAP()

CDrafterApp theApp;

}  // namespace
