// CDocManager: the types of files in the registry, by which the shell opens them.
#include <kmfc/doc_manager.h>
#include <kmfc/doc_template.h>
#include <kmfc/app.h>

namespace {

void write_default(const CString& key, const CString& value) {
    ::RegSetValueW(HKEY_CLASSES_ROOT, key, REG_SZ, value, 0);
}

CString read_default(const CString& key) {
    wchar_t value[MAX_PATH] = {};
    LONG size = sizeof(value);
    return ::RegQueryValueW(HKEY_CLASSES_ROOT, key, value, &size) == ERROR_SUCCESS ? CString(value)
                                                                                   : CString();
}

/// What a template says of its type of file; false when it says too little.
struct FileType {
    CString id, name, extension;

    bool read(const CDocTemplate& kind) {
        if (!kind.GetDocString(id, CDocTemplate::regFileTypeId)) return false;
        if (!kind.GetDocString(name, CDocTemplate::regFileTypeName)) name = id;
        kind.GetDocString(extension, CDocTemplate::filterExt);
        return true;
    }
};

CString own_path() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(AfxGetInstanceHandle(), path, MAX_PATH);
    return path;
}

}  // namespace

void CDocManager::RegisterShellFileTypes(BOOL bCompat) {
    const CString program = own_path();
    int icon = 1;  // the program's own comes first
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr; ++icon) {
        FileType type;
        if (!type.read(*GetNextDocTemplate(place))) continue;
        write_default(type.id, type.name);
        if (bCompat) {
            CString number;
            number.Format(L",%d", icon);
            write_default(type.id + L"\\DefaultIcon", program + number);
            write_default(type.id + L"\\shell\\print\\command", L"\"" + program + L"\" /p \"%1\"");
            write_default(type.id + L"\\shell\\printto\\command",
                          L"\"" + program + L"\" /pt \"%1\" \"%2\" \"%3\" \"%4\"");
        }
        write_default(type.id + L"\\shell\\open\\command", L"\"" + program + L"\" \"%1\"");
        if (type.extension.IsEmpty()) continue;
        const CString owner = read_default(type.extension);
        if (!owner.IsEmpty() && owner != type.id) continue;
        write_default(type.extension, type.id);
        HKEY key = nullptr;
        if (::RegCreateKeyExW(HKEY_CLASSES_ROOT, type.extension + L"\\ShellNew", 0, nullptr, 0, KEY_WRITE,
                              nullptr, &key, nullptr) != ERROR_SUCCESS)
            continue;
        ::RegSetValueExW(key, L"NullFile", 0, REG_SZ, reinterpret_cast<const BYTE*>(L""), sizeof(wchar_t));
        ::RegCloseKey(key);
    }
}

void CDocManager::UnregisterShellFileTypes() {
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;) {
        FileType type;
        if (!type.read(*GetNextDocTemplate(place))) continue;
        ::RegDeleteTreeW(HKEY_CLASSES_ROOT, type.id);
        if (!type.extension.IsEmpty() && read_default(type.extension) == type.id)
            ::RegDeleteTreeW(HKEY_CLASSES_ROOT, type.extension);
    }
}
