#include "dropped_files.h"

#include "resource.h"

std::vector<CString> TakeDroppedFiles(HDROP drop) {
    std::vector<CString> files;
    const UINT count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        CString path;
        const UINT length = ::DragQueryFileW(drop, i, nullptr, 0);
        ::DragQueryFileW(drop, i, path.GetBuffer(static_cast<int>(length) + 1), length + 1);
        path.ReleaseBuffer();
        files.push_back(path);
    }
    ::DragFinish(drop);
    return files;
}

UINT WhyNoDrawing(const CString& path) {
    const DWORD kind = ::GetFileAttributesW(path);
    if (kind == INVALID_FILE_ATTRIBUTES) return IDS_DROP_GONE;
    return kind & FILE_ATTRIBUTE_DIRECTORY ? IDS_DROP_FOLDER : 0;
}
