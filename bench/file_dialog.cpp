// The navigation file dialog against the system's own, and the preview of a large drawing against reading it.
#include <fstream>
#include <string>

#include <afxdlgs.h>

#include <shlobj.h>
#include <shlwapi.h>

#include <ktdb.h>
#include <ktdsres/nav_file_dialog_ids.h>
#include <ktdsres/places_ids.h>
#include <ktui/nav/ktui_nav_dialog.h>
#include <ktui/nav/never_blocked.h>
#include <od_db.h>

#include "window_bench.h"

namespace {

constexpr int kRounds = 15;
constexpr const wchar_t* kTitle = L"bench chooser";

/// Ends a dialog with this title as soon as it is shown.
void CALLBACK end(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = ::FindWindowW(L"#32770", kTitle);
    if (dialog == nullptr || !::IsWindowVisible(dialog)) return;
    ::KillTimer(nullptr, timer);
    ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

UINT_PTR CALLBACK noHook(HWND, UINT, WPARAM, LPARAM) { return 0; }

double openOurs(const CString& folder) {
    return bench::seconds_of([&] {
        ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &end);
        CNavDataArray chosen;
        CNavFilterArray types;
        CNavFilter* const type = types.AddData();
        type->SetDescription(L"Drawing");
        type->Add(L"*.dxf");
        CKtUiNavDialog dialog(chosen, types);
        dialog.SetAppRootKey(L"Software\\ktui bench\\");
        dialog.SetDialogName(L"bench");
        dialog.SetDialogCaption(kTitle);
        dialog.SetForceInitialFolder(folder);
        dialog.DoModal();
    });
}

/// Opens the system's dialog, with what `dress` puts into the record.
template <class Dress>
double openPlatform(const CString& folder, Dress&& dress) {
    return bench::seconds_of([&] {
        ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &end);
        wchar_t file[MAX_PATH] = {};
        OPENFILENAMEW ofn = {};
        ofn.lStructSize = sizeof ofn;
        ofn.lpstrFilter = L"Drawing\0*.dxf\0";
        ofn.lpstrFile = file;
        ofn.nMaxFile = MAX_PATH;
        ofn.lpstrInitialDir = folder;
        ofn.lpstrTitle = kTitle;
        // The same dialog as ours, not the newer one.
        ofn.lpfnHook = &noHook;
        ofn.Flags = OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING | OFN_HIDEREADONLY;
        dress(ofn);
        ::GetOpenFileNameW(&ofn);
    });
}

double openPeer(const CString& folder) {
    return openPlatform(folder, [](OPENFILENAMEW&) {});
}

/// A standard folder of the Places list, by the calls that its row takes.
void addPlace(HWND list, int folder) {
    IShellFolder* desktop = nullptr;
    LPITEMIDLIST item = nullptr;
    STRRET returned = {};
    wchar_t path[MAX_PATH] = {};
    SHFILEINFOW info = {};
    if (FAILED(::SHGetDesktopFolder(&desktop))) return;
    if (SUCCEEDED(::SHGetSpecialFolderLocation(nullptr, folder, &item))) {
        if (SUCCEEDED(desktop->GetDisplayNameOf(item, SHGDN_FORPARSING, &returned)))
            ::StrRetToBufW(&returned, item, path, MAX_PATH);
        ::ILFree(item);
    }
    desktop->Release();
    ::SHGetFileInfoW(path, 0, &info, sizeof info, SHGFI_DISPLAYNAME);
    ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(info.szDisplayName));
    if (::SHGetFileInfoW(path, 0, &info, sizeof info, SHGFI_ICON)) ::DestroyIcon(info.hIcon);
}

/// Fills the list of the toolkit's template and gives it its tip window; that is all.
UINT_PTR CALLBACK fillPlaces(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return 0;
    const HWND list = ::GetDlgItem(dialog, IDC_NAV_PLACES);
    for (const int folder : {CSIDL_RECENT, CSIDL_PERSONAL, CSIDL_FAVORITES, CSIDL_DESKTOP, CSIDL_NETWORK})
        addPlace(list, folder);
    ::ShowWindow(list, SW_SHOWNA);
    ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0, 0, list, nullptr,
                      nullptr, nullptr);
    return 0;
}

/// The system's dialog with the template and the places of ours.
double openDressed(const CString& folder) {
    return openPlatform(folder, [](OPENFILENAMEW& ofn) {
        ofn.hInstance = ::GetModuleHandleW(L"ktdsres.dll");
        ofn.lpTemplateName = MAKEINTRESOURCEW(IDD_NAV_FILE_PREVIEW);
        ofn.lpfnHook = &fillPlaces;
        ofn.Flags |= OFN_ENABLETEMPLATE;
    });
}

/// A drawing of ten megabytes with a picture; gone with the object.
class LargeDrawing {
public:
    LargeDrawing() {
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        m_path.Format(L"%sktui bench %lu.dxf", temporary, ::GetCurrentProcessId());
        std::string line =
            "0\r\nLINE\r\n8\r\n0\r\n10\r\n1.25\r\n20\r\n2.5\r\n30\r\n0.0\r\n11\r\n3.75\r\n21\r\n5.0\r\n";
        std::string text = "0\r\nSECTION\r\n2\r\nENTITIES\r\n";
        constexpr std::size_t kSize = 10u << 20;
        while (text.size() < kSize) text += line;
        text += "0\r\nENDSEC\r\n0\r\nSECTION\r\n2\r\nTHUMBNAILIMAGE\r\n90\r\n" +
                std::to_string(picture().size() / 2) + "\r\n";
        for (std::size_t at = 0; at < picture().size(); at += kGroup)
            text += "310\r\n" + picture().substr(at, kGroup) + "\r\n";
        text += "0\r\nENDSEC\r\n0\r\nEOF\r\n";
        std::ofstream(m_path.GetString(), std::ios::binary) << text;
    }
    ~LargeDrawing() { ::DeleteFileW(m_path); }
    const CString& path() const { return m_path; }

private:
    static constexpr std::size_t kGroup = 254;
    /// A bitmap of 200 by 150 in 24 bits, in hexadecimal digits.
    static const std::string& picture() {
        static const std::string digits = [] {
            BITMAPINFOHEADER header = {sizeof(BITMAPINFOHEADER), 200, 150, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
            std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
            bytes.resize(bytes.size() + 200 * 150 * 3, '\x55');
            std::string text;
            for (const char c : bytes) {
                char two[3];
                std::snprintf(two, sizeof two, "%02X", static_cast<unsigned char>(c));
                text += two;
            }
            return text;
        }();
        return digits;
    }
    CString m_path;
};

void measurePreview() {
    const LargeDrawing drawing;
    bool found = true;
    const auto ours = [&] {
        return bench::seconds_of([&] {
            HBITMAP bitmap = nullptr;
            HPALETTE palette = nullptr;
            found = ktdbGetPreviewBitmapFromDwg(drawing.path(), &bitmap, &palette) && found;
            ::DeleteObject(bitmap);
            ::DeleteObject(palette);
        });
    };
    std::string bytes(11u << 20, '\0');
    const auto peer = [&] {
        return bench::seconds_of([&] {
            std::ifstream stream(drawing.path().GetString(), std::ios::binary);
            stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        });
    };
    bench::report("preview of a 10 MB drawing, against reading it", bench::compare(kRounds, 1, ours, peer),
                  0);
    std::printf("note\tthe picture was %s\n", found ? "found" : "not found");
    const OdDbDatabasePtr read(new OdDbDatabase);
    const double whole = bench::seconds_of([&] { read->readDxf(drawing.path()); });
    std::printf("note\treading the whole drawing as a database: %.0f ms\n", whole * 1e3);
}

}  // namespace

void bench::measure_file_dialog() {
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    const auto ours = [&] {
        drain_queue();
        return openOurs(folder);
    };
    const auto peer = [&] {
        drain_queue();
        return openPeer(folder);
    };
    report("opening and closing the file dialog", compare(kRounds, 1, ours, peer), 1.3);
    const auto dressed = [&] {
        drain_queue();
        return openDressed(folder);
    };
    report("its template and places by bare calls", compare(kRounds, 1, dressed, peer), 0);
    KtUiSetNeverBlocked(3000);
    report("the same, never blocked", compare(kRounds, 1, ours, peer), 1.3);
    KtUiSetNeverBlocked(0);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui bench");
    measurePreview();
}
