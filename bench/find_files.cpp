// The walks of a search for files against a plain walk, and how soon the first row is there.
#include <functional>
#include <string>

#include <ktdsres/find_file_ids.h>
#include <ktui/nav/find_batch.h>
#include <ktui/nav/find_file_dialog.h>
#include <ktui/nav/find_file_walk.h>
#include <ktui/nav/find_messages.h>
#include <ktui/nav/find_once_walk.h>
#include <ktui/nav/find_system_files.h>
#include <ktui/nav/find_walk.h>

#include "window_bench.h"

namespace {

constexpr int kFolders = 1000;
constexpr int kFilesInFolder = 100;  // a tenth each of *.dwg, *.dxf and *.dws
constexpr int kRounds = 5;

/// A tree in the temporary folder, three levels deep; gone with the object.
class FileTree {
public:
    FileTree() {
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        m_root.Format(L"%sktui find bench %lu\\", temporary, ::GetCurrentProcessId());
        ::CreateDirectoryW(m_root, nullptr);
        for (int folder = 0; folder < kFolders; ++folder) fill(pathOf(folder));
    }
    ~FileTree() { remove(m_root); }
    const CString& root() const { return m_root; }

private:
    /// Ten folders hold ten folders each, and each of these ten more.
    CString pathOf(int folder) const {
        CString path = m_root;
        for (const int part : {folder / 100, folder / 10 % 10, folder % 10}) {
            path.AppendFormat(L"folder %d\\", part);
            ::CreateDirectoryW(path, nullptr);
        }
        return path;
    }
    static void fill(const CString& path) {
        const wchar_t* const endings[] = {L"dwg", L"dxf", L"dws", L"txt", L"pdf"};
        for (int file = 0; file < kFilesInFolder; ++file) {
            CString name;
            name.Format(L"%sdrawing %02d.%s", path.GetString(), file, endings[std::min(file % 10, 4)]);
            ::CloseHandle(::CreateFileW(name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        }
    }
    static void remove(const CString& path) {
        WIN32_FIND_DATAW data = {};
        const HANDLE search = ::FindFirstFileW(path + L"*", &data);
        if (search == INVALID_HANDLE_VALUE) return;
        do {
            const CString name = data.cFileName;
            if (name == L"." || name == L"..") continue;
            if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
                remove(path + name + L"\\");
            else
                ::DeleteFileW(path + name);
        } while (::FindNextFileW(search, &data));
        ::FindClose(search);
        ::RemoveDirectoryW(path);
    }
    CString m_root;
};

/// Counts what it hears.
class Counter : public FindListener {
public:
    void Status(const CString&) override { ++m_folders; }
    void File(const CString&, const FindListing&) override { ++m_files; }
    bool IsStopped() const override { return false; }
    int m_folders = 0;
    int m_files = 0;
};

FindSearchRequest requestFor(const CString& root, std::initializer_list<const wchar_t*> patterns) {
    FindSearchRequest request;
    request.m_folders.Add(root);
    for (const wchar_t* pattern : patterns) request.m_patterns.Add(pattern);
    request.m_includeSubfolders = 1;
    request.m_dateTo = request.m_dateFrom;
    return request;
}

int plainWalk(const std::wstring& folder) {
    WIN32_FIND_DATAW data = {};
    const HANDLE search = ::FindFirstFileW((folder + L"*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return 0;
    int files = 0;
    do {
        const std::wstring name = data.cFileName;
        if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            ++files;
        else if (name != L"." && name != L"..")
            files += plainWalk(folder + name + L"\\");
    } while (::FindNextFileW(search, &data));
    ::FindClose(search);
    return files;
}

/// What the settled walk asks of the system, by bare calls: the files of the pattern, then all names for the
/// folders.
int plainWalkTwice(const std::wstring& folder, const std::wstring& pattern) {
    WIN32_FIND_DATAW data = {};
    int files = 0;
    HANDLE search = ::FindFirstFileW((folder + pattern).c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) ++files;
        } while (::FindNextFileW(search, &data));
        ::FindClose(search);
    }
    search = ::FindFirstFileW((folder + L"*.*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
        const std::wstring name = data.cFileName;
        if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY && name != L"." && name != L"..")
            files += plainWalkTwice(folder + name + L"\\", pattern);
    } while (::FindNextFileW(search, &data));
    ::FindClose(search);
    return files;
}

void measureWalk(const char* what, const FileTree& tree, const std::function<int()>& walk, double goal) {
    int found = 0, there = 0;
    const auto ours = [&] { return bench::seconds_of([&] { found = walk(); }); };
    const auto peer = [&] { return bench::seconds_of([&] { there = plainWalk(tree.root().GetString()); }); };
    bench::report(what, bench::compare(kRounds, 1, ours, peer), goal);
    std::printf("note\t%s: %d of %d files\n", what, found, there);
}

/// Presses Find in the dialog that is shown next, and notes when its first row is there.
class FirstRow {
public:
    static double seconds(const CString& root) {
        s_seconds = 0;
        ::SetTimer(nullptr, 0, 10, &begin);
        OdString folder, file;
        ktuiFindFileDialog(L"Drawings\0*.dwg;*.dxf;*.dws\0\0", 1, root, folder, file);
        return s_seconds;
    }

private:
    static void CALLBACK begin(HWND, UINT, UINT_PTR timer, DWORD) {
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM found) -> BOOL {
                if (::GetDlgItem(window, IDC_FIND_RESULTS) == nullptr || !::IsWindowVisible(window))
                    return TRUE;
                *reinterpret_cast<HWND*>(found) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&s_dialog));
        if (s_dialog == nullptr) return;
        ::KillTimer(nullptr, timer);
        s_former = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(s_dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&watch)));
        s_start = std::chrono::steady_clock::now();
        ::SendMessageW(s_dialog, WM_COMMAND, IDC_FIND_START, 0);
    }
    static LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const LRESULT result = ::CallWindowProcW(s_former, window, message, wParam, lParam);
        const HWND list = ::GetDlgItem(window, IDC_FIND_RESULTS);
        if (s_seconds == 0 && (message == WM_FIND_FILE || message == WM_FIND_BATCH) &&
            ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) > 0) {
            s_seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - s_start).count();
            ::SendMessageW(window, WM_COMMAND, IDC_FIND_STOP, 0);
        }
        if (message == WM_FIND_DONE) {
            ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
            s_dialog = nullptr;
        }
        return result;
    }
    static inline HWND s_dialog = nullptr;
    static inline WNDPROC s_former = nullptr;
    static inline double s_seconds = 0;
    static inline std::chrono::steady_clock::time_point s_start;
};

void measureFirstRow(const char* what, const CString& root, KTUI_FIND_FILE_WALK walk) {
    KtUiSetFindFileWalk(walk);
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round) times.push_back(FirstRow::seconds(root));
    KtUiSetFindFileWalk(kKtUiFindSettled);
    std::printf("note\tfirst row after start, %s: %.1f ms\n", what, bench::middle(times) * 1e3);
    std::fflush(stdout);
}

}  // namespace

void bench::measure_find_files() {
    const FileTree tree;
    const FindSystemFiles files;
    const auto settled = [&](const wchar_t* pattern) {
        return [&, pattern] {
            Counter counter;
            WalkFolders(requestFor(tree.root(), {pattern}), files, counter);
            return counter.m_files;
        };
    };
    measureWalk("settled walk, a pattern of a tenth", tree, settled(L"*.dwg"), 1.3);
    measureWalk(
        "its listings by bare calls", tree, [&] { return plainWalkTwice(tree.root().GetString(), L"*.dwg"); },
        0);
    measureWalk("settled walk, a pattern of all", tree, settled(L"*.*"), 0);
    measureWalk(
        "once-walk, three patterns", tree,
        [&] {
            Counter counter;
            WalkFoldersOnce(requestFor(tree.root(), {L"*.dwg", L"*.dxf", L"*.dws"}), files, counter);
            return counter.m_files;
        },
        1.2);
    measureFirstRow("settled", tree.root(), kKtUiFindSettled);
    measureFirstRow("once", tree.root(), kKtUiFindOnce);
}
