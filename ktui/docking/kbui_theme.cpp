#include <ktui/docking/kbui_theme.h>

CKbUiTheme::CKbUiTheme() = default;

CKbUiTheme::~CKbUiTheme() {
    m_colors.RemoveAll();
    m_data.RemoveAll();
    m_reactors.RemoveAll();
}

CKbUiTheme& CKbUiTheme::operator=(const CKbUiTheme*) { return *this; }

unsigned long CKbUiTheme::GetColor(KbUiThemeElement) const { return 0; }

int CKbUiTheme::SetColor(KbUiThemeElement, unsigned long) { return 0; }

int CKbUiTheme::GetFont(KbUiThemeElement, LOGFONT*) const { return 0; }

int CKbUiTheme::GetFont(KbUiThemeElement, CFont*&) const { return 0; }

int CKbUiTheme::SetFont(KbUiThemeElement, LOGFONT*) { return 0; }

int CKbUiTheme::GetData(int, CString&) const { return 0; }

int CKbUiTheme::GetData(int, unsigned long&) const { return 0; }

int CKbUiTheme::RegisterReactor(CKbUiThemeModifiedReactor*) { return 0; }

int CKbUiTheme::UnregisterReactor(CKbUiThemeModifiedReactor*) { return 0; }

void CKbUiTheme::SetData(int, const CString&) {}

void CKbUiTheme::SetData(int, const unsigned long&) {}

void CKbUiTheme::SendModifiedNotification() const {}

void CKbUiTheme::ResumeModifiedNotifications() {}

void CKbUiTheme::SuspendModifiedNotifications() { ++m_suspendCount; }

void CKbUiTheme::IncrementRefCount() { ++m_refCount; }

void CKbUiTheme::DecrementRefCount() { --m_refCount; }

int CKbUiTheme::RefCount() const { return m_refCount; }

int CKbUiTheme::UsesXP() const { return m_usesXP; }

void CKbUiTheme::SendThemeModifiedNotifications(KbUiThemeElement) const {}

void CKbUiTheme::CheckXP() {}
