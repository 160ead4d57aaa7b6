// The gallery: every control, dialog, tip and message of the toolkit, in its states, with the lines that make
// it.
//
//     gallery.exe [--pictures FOLDER]
//
// With --pictures it opens page after page, and for each leaves a file NN-name.request in the folder; whoever
// takes the picture removes the file. It ends when the last one is gone.
#include <afxwin.h>
#include <standin_host.h>

#include <fstream>

#include <ktui/ktui.h>
#include <ktut.h>

#include "gallery_dialog.h"
#include "gallery_drawing.h"
#include "resource.h"

namespace {

constexpr DWORD kPatience = 20000;  // milliseconds until a picture counts as not taken

/// Dispatches messages until `done`; false if that takes too long.
bool pumpUntil(const std::function<bool()>& done, DWORD patience = kPatience) {
    const ULONGLONG end = ::GetTickCount64() + patience;
    while (!done()) {
        if (::GetTickCount64() > end) return false;
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) return false;
            if (AfxGetApp()->PreTranslateMessage(&message)) continue;
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
    return true;
}

/// The name of a page's picture: "07-true-color".
CString pictureName(int number, CString name) {
    name.MakeLower();
    name.Replace(L' ', L'-');
    CString text;
    text.Format(L"%02d-%s", number, name.GetString());
    return text;
}

/// Opens every page and waits for its picture; false if one was not taken.
bool takePictures(CGalleryDialog& gallery, const CString& folder) {
    constexpr DWORD kSettles = 700;  // milliseconds for tips and fades
    for (int i = 0; i < gallery.PageCount(); ++i) {
        gallery.OpenPage(i);
        gallery.Page()->Pose();
        pumpUntil([] { return false; }, kSettles);
        const CString request =
            CString(ktutCombinePath(folder, pictureName(i + 1, gallery.Entry(i).name)).c_str()) + L".request";
        std::ofstream(request.GetString()).put('\n');
        if (!pumpUntil([&] { return !ktutPathExists(request); })) return false;
        gallery.Page()->EndPose();
    }
    return true;
}

class CGalleryApp : public CWinApp {
public:
    CGalleryApp() : CWinApp(L"Gallery") {}

    BOOL InitInstance() override {
        InitKtUiDLL();
        KtUiFollowSystemAppearance(TRUE);
        AfxSetResourceHandle(m_hInstance);
        CStandinHost host(*this);
        host.SetPathVariable(L"PrinterStyleSheetDir", ktutCombinePath(ktutProgramFolder(), L"Plot Styles"));
        CGalleryDocument document;
        host.SetCurrentDocument(&document);
        run();
        host.SetCurrentDocument(nullptr);
        return FALSE;
    }
    int ExitInstance() override { return m_result; }

private:
    void run() {
        const CString command = m_lpCmdLine;
        constexpr const wchar_t* kPictures = L"--pictures ";
        CGalleryDialog gallery;
        m_pMainWnd = &gallery;
        if (command.Find(kPictures) == 0) {
            CString folder = command.Mid(static_cast<int>(wcslen(kPictures)));
            folder.Trim(L" \"");
            gallery.Create(IDD_GALLERY, nullptr);
            gallery.ShowWindow(SW_SHOW);
            gallery.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            gallery.SetForegroundWindow();
            m_result = takePictures(gallery, folder) ? 0 : 1;
            gallery.DestroyWindow();
        } else {
            gallery.DoModal();
        }
        m_pMainWnd = nullptr;
    }

    int m_result = 0;
};

CGalleryApp theApp;

}  // namespace
