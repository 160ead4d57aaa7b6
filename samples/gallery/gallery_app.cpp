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

/// The name of a page's picture: "07-true-color".
CString pictureName(int number, CString name) {
    name.MakeLower();
    name.Replace(L' ', L'-');
    CString text;
    text.Format(L"%02d-%s", number, name.GetString());
    return text;
}

/// The list of the pictures, a line each: name, family and page, in English, parted by tabs.
void listPictures(const CGalleryDialog& gallery, const CString& folder) {
    std::ofstream list(ktutCombinePath(folder, L"pages.txt").c_str());
    for (int i = 0; i < gallery.PageCount(); ++i) {
        const GalleryEntry& entry = gallery.Entry(i);
        list << CStringA(pictureName(i + 1, entry.name)).GetString() << '\t'
             << CStringA(entry.family).GetString() << '\t' << CStringA(entry.name).GetString() << '\n';
    }
}

/// Moves a dialog that stands elsewhere on the screen over the gallery, whose place the pictures show.
void bringOver(const CWnd& gallery) {
    const HWND dialog = ::GetLastActivePopup(gallery.m_hWnd);
    CRect frame, place, common;
    gallery.GetWindowRect(&frame);
    ::GetWindowRect(dialog, &place);
    if (dialog == gallery.m_hWnd || (common.IntersectRect(frame, place) && common == place)) return;
    const CPoint at(frame.left + (frame.Width() - place.Width()) / 2,
                    frame.top + (frame.Height() - place.Height()) / 2);
    ::SetWindowPos(dialog, nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// Goes through the pages by a timer, which also runs while a page shows a modal dialog: opens a page, has
/// its picture taken, goes on.
class PictureTaker {
public:
    PictureTaker(CGalleryDialog& gallery, const CString& folder) : m_gallery(gallery), m_folder(folder) {
        taker = this;
        ::SetTimer(nullptr, 0, kTick, [](HWND, UINT, UINT_PTR, DWORD) { taker->step(); });
    }
    int result() const { return m_result; }

private:
    static constexpr UINT kTick = 50;      // milliseconds
    static constexpr int kSettles = 16;    // ticks for lists, tips and dialogs to come up, or to go
    static constexpr int kPatience = 400;  // ticks until a picture counts as not taken
    enum class Phase { kOpen, kSettle, kTaken, kClose };

    void step() {
        ++m_ticks;
        switch (m_phase) {
            case Phase::kOpen: return open();
            case Phase::kSettle:
                if (m_ticks == kSettles / 2) bringOver(m_gallery);
                if (m_ticks >= kSettles) request();
                return;
            case Phase::kTaken:
                if (m_ticks >= kPatience) return end(1);
                if (!ktutPathExists(m_request)) next(Phase::kClose);
                return;
            case Phase::kClose:
                // More than once, because of a dialog over a dialog.
                if (m_ticks % kSettles == 1 && m_page > 0) m_gallery.Page()->EndPose();
                if (m_ticks >= kSettles && m_gallery.IsWindowEnabled()) next(Phase::kOpen);
                return;
        }
    }
    void open() {
        if (m_page == m_gallery.PageCount()) return end(0);
        next(Phase::kSettle);
        // The system may take the window for the one in front before it can be.
        if (m_page == 0) ::SetForegroundWindow(::GetDesktopWindow());
        m_gallery.SetForegroundWindow();
        m_gallery.OpenPage(m_page++);
        m_gallery.Page()->Pose();
    }
    void request() {
        const CString name = pictureName(m_page, m_gallery.Entry(m_page - 1).name);
        m_request = CString(ktutCombinePath(m_folder, name).c_str()) + L".request";
        std::ofstream(m_request.GetString()).put('\n');
        next(Phase::kTaken);
    }
    void next(Phase phase) {
        m_phase = phase;
        m_ticks = 0;
    }
    void end(int result) {
        m_result = result;
        ::PostQuitMessage(result);
    }

    static inline PictureTaker* taker = nullptr;
    CGalleryDialog& m_gallery;
    const CString m_folder;
    CString m_request;
    Phase m_phase = Phase::kClose;  // the window comes up first
    int m_page = 0;
    int m_ticks = 1;
    int m_result = 1;
};

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
            gallery.SetActiveWindow();
            listPictures(gallery, folder);
            const PictureTaker pictures(gallery, folder);
            Run();
            m_result = pictures.result();
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
