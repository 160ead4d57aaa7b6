#include <afxwin.h>
#include <kh_system.h>
#include <ktui/text/ktui_string_exp.h>

namespace {

struct ProductMacro {
    const wchar_t* name;
    const wchar_t* (CKhProductInfo::*value)();
};

constexpr ProductMacro kProduct = {L"%PRODUCT%", &CKhProductInfo::productName};

// The macros behind "%PROGRAM%", in the order in which they are replaced.
constexpr ProductMacro kMacros[] = {
    {L"%COMPANY%", &CKhProductInfo::companyFullName},
    {L"%AUTOCAD%", &CKhProductInfo::productName},
    {L"%VELMORA%", &CKhProductInfo::productName},
    {L"%ACADPROGRAM%", &CKhProductInfo::programName},
    {L"%KTDSPROGRAM%", &CKhProductInfo::programName},
    {L"%ADESKFULLNAME%", &CKhProductInfo::companyFullName},
    {L"%QUORVEXFULLNAME%", &CKhProductInfo::companyFullName},
    {L"%ADESKSHORTNAME%", &CKhProductInfo::companyShortName},
    {L"%QUORVEXSHORTNAME%", &CKhProductInfo::companyShortName},
};

void Expand(CString& text, const ProductMacro& macro) {
    text.Replace(macro.name, (CKhSystem::instance()->productInfo()->*macro.value)());
}

CString ModulePath(HMODULE module) {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(module, path, MAX_PATH);
    return path;
}

/// A module loaded for a look at its name.
class LoadedModule {
public:
    explicit LoadedModule(const CString& path) : m_module(::LoadLibraryW(path.GetString())) {}
    ~LoadedModule() {
        if (m_module) ::FreeLibrary(m_module);
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    explicit operator bool() const { return m_module != nullptr; }
    HMODULE handle() const { return m_module; }

private:
    HMODULE m_module;
};

/// The path of the process as the file system spells it.
CString ProcessPath() {
    CString path = ModulePath(nullptr);
    const LoadedModule module(path);
    if (module) path = ModulePath(module.handle());
    return path;
}

void ExpandProgram(CString& text) {
    constexpr const wchar_t* kProgram = L"%PROGRAM%";
    // Kept: a macro at the very start of the string stays.
    if (text.Find(kProgram) <= 0) return;
    const CString path = ProcessPath();
    const int slash = path.ReverseFind(L'\\');
    if (slash >= 1) text.Replace(kProgram, path.Mid(slash + 1).GetString());
}

}  // namespace

BOOL CKtUiStringExp::LoadString(unsigned id) { return CString::LoadString(id); }

void CKtUiStringExp::ReplaceProductMacroStrings() {
    Expand(*this, kProduct);
    ExpandProgram(*this);
    for (const ProductMacro& macro : kMacros) Expand(*this, macro);
}
