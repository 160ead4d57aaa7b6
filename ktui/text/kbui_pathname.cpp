#include <ktui/text/kbui_pathname.h>

namespace {

constexpr wchar_t kDot = L'.';
constexpr wchar_t kBlank = L' ';

bool EndsIn(const CString& text, wchar_t character) {
    return !text.IsEmpty() && text[text.GetLength() - 1] == character;
}

CString LastComponent(const CString& text, wchar_t separator) {
    return text.Mid(text.ReverseFind(separator) + 1);
}

}  // namespace

CKbUiPathname::CKbUiPathname() {}

CKbUiPathname::CKbUiPathname(const CKbUiPathname&) : m_volume(nullptr), m_path(nullptr) {}

CKbUiPathname& CKbUiPathname::operator=(const CKbUiPathname& other) {
    AssignCopy(other);
    return *this;
}

PathErr CKbUiPathname::Parse(const wchar_t*, int) { return kPathOk; }

void CKbUiPathname::AssignCopy(const CKbUiPathname&) {}

void CKbUiPathname::Empty() { m_path->Empty(); }

void CKbUiPathname::GetBasename(CString& out) const { out = LastComponent(*m_path, m_separator); }

void CKbUiPathname::GetFilename(CString& out) const {
    const CString component = LastComponent(*m_path, m_separator);
    const int dot = component.ReverseFind(kDot);
    out = dot < 0 ? CString() : component.Left(dot);
}

void CKbUiPathname::GetExtension(CString& out) const {
    const CString component = LastComponent(*m_path, m_separator);
    const int dot = component.ReverseFind(kDot);
    out = dot < 0 ? CString() : component.Mid(dot + 1);
}

void CKbUiPathname::GetParent(CString&) const {}

PathErr CKbUiPathname::Trim() {
    const int last = m_path->ReverseFind(m_separator);
    if (last < 0 || last == m_path->GetLength() - 1) return kPathBad;
    *m_path = m_path->Left(last + 1);
    return kPathOk;
}

PathErr CKbUiPathname::TrimSlash() {
    if (!EndsIn(*m_path, m_separator)) return kPathBad;
    CString trimmed = *m_path;
    trimmed.Trim(m_separator);
    if (trimmed.IsEmpty()) return kPathBad;
    *m_path = trimmed;
    return kPathOk;
}

PathErr CKbUiPathname::TrimComponent() {
    const int last = m_path->ReverseFind(m_separator);
    if (last <= 0) return kPathBad;
    *m_path = m_path->Left(last);
    return kPathOk;
}

PathErr CKbUiPathname::Append(const wchar_t* text) {
    *m_path += text;
    return kPathOk;
}

PathErr CKbUiPathname::AppendSlash() {
    if (m_path->IsEmpty()) return kPathBad;
    if (!EndsIn(*m_path, m_separator)) *m_path += m_separator;
    return kPathOk;
}

PathErr CKbUiPathname::AppendComponent(const wchar_t*) {
    if (m_path->IsEmpty()) return kPathBad;
    *m_path += m_separator;
    return kPathOk;
}

PathErr CKbUiPathname::ReplaceExtensionAlways(const wchar_t* text) {
    if (m_path->IsEmpty()) return kPathBad;
    const int dot = m_path->Find(kDot);
    if (dot >= 0) *m_path = m_path->Left(dot + 1);
    *m_path += text;
    return kPathOk;
}

void CKbUiPathname::RemoveExtensionAlways() {
    const int dot = m_path->Find(kDot);
    if (dot >= 0) *m_path = m_path->Left(dot);
}

void CKbUiPathname::BaseToLower() {
    *m_path = LastComponent(*m_path, m_separator);
    m_path->MakeLower();
}

void CKbUiPathname::BaseToUpper() {
    *m_path = LastComponent(*m_path, m_separator);
    m_path->MakeUpper();
}

void CKbUiPathname::RemoveSpaces() {
    CString name;
    GetFilename(name);
    name.Trim(kBlank);
    *m_path = name;
}

PathErr CKbUiPathname::ParseRelative(const wchar_t*, const CKbUiPathname&, int) { return kPathOk; }
PathErr CKbUiPathname::ParseAndOSFind(const wchar_t*, int) { return kPathOk; }
PathErr CKbUiPathname::AddExtensionAlways(const wchar_t*) { return kPathOk; }
PathErr CKbUiPathname::AddExtensionIfNoMatch(const wchar_t*, const wchar_t*) { return kPathOk; }
PathErr CKbUiPathname::ReplaceExtensionIfNoMatch(const wchar_t*, const wchar_t*) { return kPathOk; }
int CKbUiPathname::RemoveExtensionIfMatch(const wchar_t*) { return 0; }
int CKbUiPathname::Exists(int) const { return 0; }
int CKbUiPathname::GetFullPath(CString&) const { return 0; }
int CKbUiPathname::GetFullPath(wchar_t*, int) const { return 0; }
int CKbUiPathname::GetFullUNCPath(CString&) const { return 0; }
int CKbUiPathname::GetDisplayName(CString&) const { return 0; }
int CKbUiPathname::GetUniqueName(const wchar_t*) { return 0; }
const wchar_t* CKbUiPathname::GetPathString() const { return nullptr; }
int CKbUiPathname::PathMatch(const CKbUiPathname&) const { return 0; }
int CKbUiPathname::PathMatch(const wchar_t*) const { return 0; }
int CKbUiPathname::VerifyExtension(const wchar_t*) const { return 0; }
CFile* CKbUiPathname::Open(unsigned) { return nullptr; }
CFile* CKbUiPathname::Open(unsigned, CString&) { return nullptr; }
CFile* CKbUiPathname::OpenReadOnly() { return nullptr; }
CFile* CKbUiPathname::OpenWriteOnly() { return nullptr; }
int CKbUiPathname::Remove() { return 0; }
int CKbUiPathname::Rename(const wchar_t*) { return 0; }
FS_TYPE CKbUiPathname::GetFileSystem(const wchar_t*) const { return 0; }
const CKbUiVolumeDescriptor* CKbUiPathname::FindVolumeDescriptor(const wchar_t*) const { return nullptr; }
const CKbUiVolumeDescriptor* CKbUiPathname::NewVolDescriptor(const wchar_t*, FS_TYPE) const {
    return nullptr;
}
int CKbUiPathname::IsDeviceName(const wchar_t*) const { return 0; }
wchar_t CKbUiPathname::GetLastCharacter() const { return 0; }
DWORD CKbUiPathname::GetAttributes() const { return 0; }
int CKbUiPathname::GetFirstExtInList(const wchar_t*, CString&) const { return 0; }
int CKbUiPathname::StripSpaces(CString&) const { return 0; }
int CKbUiPathname::lstrncpy_x(wchar_t*, const wchar_t*, int) const { return 0; }
int CKbUiPathname::Unquote(CString&) const { return 0; }
