#include "ask_file.h"

#include <commdlg.h>

CString AskFileName(CWnd& owner, const FileQuestion& question) {
    wchar_t path[MAX_PATH] = {};
    CString filter;
    filter.LoadString(question.filter);
    filter.Replace(L'|', L'\0');
    OPENFILENAMEW request = {};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner.m_hWnd;
    request.lpstrFilter = filter;
    request.lpstrFile = path;
    request.nMaxFile = MAX_PATH;
    request.lpstrDefExt = question.extension;
    request.Flags =
        OFN_HIDEREADONLY | OFN_NOCHANGEDIR | (question.isForSaving ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    const BOOL chosen = question.isForSaving ? ::GetSaveFileNameW(&request) : ::GetOpenFileNameW(&request);
    return chosen ? CString(path) : CString();
}
