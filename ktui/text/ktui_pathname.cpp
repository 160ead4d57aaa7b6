#include <ktui/text/ktui_pathname.h>

CKtUiPathname::CKtUiPathname() = default;
CKtUiPathname::CKtUiPathname(const CKtUiPathname& other) = default;

CKtUiPathname& CKtUiPathname::operator=(const CKtUiPathname& other) {
    AssignCopy(other);
    return *this;
}

PathErr CKtUiPathname::Parse(const wchar_t*, int) { return kPathOk; }
void CKtUiPathname::AssignCopy(const CKbUiPathname&) {}
int CKtUiPathname::Status() { return 0; }
CFile* CKtUiPathname::Open(unsigned) { return nullptr; }
