#include "file_bytes.h"

#include <afx.h>

bool ReadFileBytes(const wchar_t* path, std::size_t most, std::string& bytes) {
    CFile file;
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyNone)) return false;
    try {
        const ULONGLONG size = file.GetLength();
        if (size > most) return false;
        std::string all(static_cast<std::size_t>(size), '\0');
        if (file.Read(all.data(), static_cast<UINT>(size)) != size) return false;
        bytes = std::move(all);
        return true;
    } catch (CFileException* failure) {
        failure->Delete();
        return false;
    }
}
