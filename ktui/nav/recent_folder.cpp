#include <ktui/nav/recent_folder.h>

#include <afxwin.h>
#include <ktut.h>
#include <shlobj.h>

#include <ktui/host/com_reference.h>

namespace {

constexpr const wchar_t* kShortcutEnd = L".lnk";
constexpr int kMostShortcuts = 100;  // a ring of shortcuts names no file

/// A path in pieces.
struct Pieces {
    CString folder;  ///< with its drive
    CString name;    ///< with its extension
};

bool split(const CString& path, Pieces& pieces) {
    OdString drive, directory, name, extension;
    if (!ktutSplitPath(path, &drive, &directory, &name, &extension)) return false;
    pieces.folder = CString(drive.c_str()) + directory.c_str();
    pieces.name = CString(name.c_str()) + extension.c_str();
    return true;
}

bool isShortcut(const CString& name) { return name.Right(4).CompareNoCase(kShortcutEnd) == 0; }

bool writeShortcut(const CString& path, const Pieces& pieces, const CString& file) {
    ComReference<IShellLinkW> link;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_ALL, IID_IShellLinkW, link.anyPlace())))
        return false;
    link->SetPath(path);
    link->SetWorkingDirectory(pieces.folder);
    link->SetShowCmd(SW_SHOWNORMAL);
    ComReference<IPersistFile> kept;
    if (FAILED(link->QueryInterface(IID_IPersistFile, kept.anyPlace()))) return false;
    return kept->Save(file, TRUE) == S_OK;
}

}  // namespace

int AddToRecentFolder(const wchar_t* path, const wchar_t* folder) {
    if (path == nullptr || folder == nullptr || *path == L'\0' || !ktutDirectoryExists(folder)) return 0;
    CString file = path;
    Pieces pieces;
    if (!split(file, pieces)) return 0;
    for (int followed = 0; isShortcut(pieces.name); ++followed) {
        wchar_t target[MAX_PATH] = {};
        if (followed == kMostShortcuts) return 0;
        if (!AfxResolveShortcut(CWnd::GetDesktopWindow(), file, target, MAX_PATH)) return 0;
        file = target;
        if (!split(file, pieces)) return 0;
    }
    const OdString shortcut = ktutCombinePath(folder, pieces.name + kShortcutEnd);
    return writeShortcut(file, pieces, shortcut.c_str()) ? 1 : 0;
}
