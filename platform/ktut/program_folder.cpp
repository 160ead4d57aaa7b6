#include <windows.h>

#include "ktut.h"

OdString ktutProgramFolder() {
    wchar_t file[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(nullptr, file, MAX_PATH);
    OdString drive, folder;
    if (length == 0 || length >= MAX_PATH || !ktutSplitPath(file, &drive, &folder, nullptr, nullptr))
        return {};
    return drive + folder;
}
