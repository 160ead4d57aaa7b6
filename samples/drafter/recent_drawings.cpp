#include "recent_drawings.h"

#include <afxadv.h>

namespace {

CRecentFileList& recentFiles() { return *AfxGetApp()->m_pRecentFileList; }

}  // namespace

CString RecentDrawing(int index) { return recentFiles()[index]; }

CString RecentFolder() {
    const CString newest = RecentDrawing(0);
    return newest.Left(newest.ReverseFind(L'\\'));
}

void KeepRecent(const CString& path) {
    recentFiles().ReadList();
    recentFiles().Add(path);
    recentFiles().WriteList();
}

void ForgetRecent(const CString& path) {
    CRecentFileList& recent = recentFiles();
    recent.ReadList();
    for (int i = 0; i < recent.GetSize(); ++i)
        if (recent[i].CompareNoCase(path) == 0) recent.Remove(i);
    recent.WriteList();
}
