#include <ktui/nav/ktui_nav_dialog.h>

#include <direct.h>

#include <ktut.h>
#include <od_db_database.h>
#include <od_host_services.h>

#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>
#include <ktui/pickers/working_drawing.h>

IMPLEMENT_DYNAMIC(CKtUiNavDialog, CNavDialog)

namespace {

constexpr const char* kUpdateThumbnail = "UPDATETHUMBNAIL";
constexpr short kUpdateAllThumbnails = 15;

/// The working drawing's setting of which previews follow a change.
short updateThumbnail() {
    OdDbDatabase* const drawing = WorkingDrawing();
    if (drawing == nullptr || drawing->header().find(kUpdateThumbnail) == nullptr)
        return kUpdateAllThumbnails;
    return static_cast<short>(drawing->header().integer(kUpdateThumbnail));
}

constexpr int kSecurityButton = 0x80;
constexpr int kPartialOpen = 0x1000;
constexpr int kOptionsButton = 0x8000;
constexpr int kOpenWithoutTemplate = 0x4000000;
constexpr int kKeptFlag = 0x8000000;
constexpr int kUnderlayExport = 0x10000000;

}  // namespace

CKtUiNavDialog::CKtUiNavDialog(CNavDataArray& data, CNavFilterArray& filters, unsigned templateId,
                               CWnd* parent, HINSTANCE resource)
    : CNavDialog(data, filters, templateId, parent, resource), m_updateThumbnail(updateThumbnail()) {
    GetImpObject()->m_applicationMode = 1;
}

CKtUiNavDialog::~CKtUiNavDialog() = default;

void CKtUiNavDialog::ConvertFlagsToState(int flags) {
    const auto isSet = [flags](int bit) { return (flags & bit) != 0 ? 1 : 0; };
    CNavDialogImp& imp = *GetImpObject();
    imp.m_securityButton = m_securityBit = isSet(kSecurityButton);
    imp.m_partialOpen = m_partialOpenBit = isSet(kPartialOpen);
    imp.m_optionsButton = m_optionsBit = isSet(kOptionsButton);
    imp.m_openWithoutTemplate = m_openWithoutTemplateBit = isSet(kOpenWithoutTemplate);
    imp.m_flag8000000 = m_flag8000000Bit = isSet(kKeptFlag);
    imp.m_underlayExport = isSet(kUnderlayExport);
}

int CKtUiNavDialog::GetRecentDirectory(CString& folder) {
    OdString data;
    if (!ktutGetAppDataDir(data)) return 0;
    const OdString recent = ktutCombinePath(data, L"Recent");
    if (!ktutDirectoryExists(recent) && ::_wmkdir(recent) != 0) return 0;
    folder = recent.c_str();
    return 1;
}

short CKtUiNavDialog::GetUpdateThumbnailOverride() const { return updateThumbnail(); }

KtUiOpenNoTemplateFlag CKtUiNavDialog::GetOpenNoTemplateSelection() const {
    return GetImpObject()->m_openNoTemplateSelection;
}

int CKtUiNavDialog::CanPartiallyOpen(const wchar_t*) const { return 1; }

void CKtUiNavDialog::Do3DDwfOptionsDialog() {}
void CKtUiNavDialog::InitPreviewState() {}
void CKtUiNavDialog::OnOpenMenuPartialOpen() {}
void CKtUiNavDialog::OnOpenMenuPartialOpenReadOnly() {}
void CKtUiNavDialog::OnOpenNoTemplateImperial() {}
void CKtUiNavDialog::OnOpenNoTemplateMetric() {}
void CKtUiNavDialog::OnToolsMenuOptions() {}
void CKtUiNavDialog::OnToolsMenuSecurity() {}
void CKtUiNavDialog::OnUpdateThumbnailCheck() {}
void CKtUiNavDialog::OnViewsMenuPreview() {}
void CKtUiNavDialog::OnPaintPreview() {}
int CKtUiNavDialog::GetOptionsState() { return 0; }
int CKtUiNavDialog::GetInitialViewButtonChecked() { return 0; }
void CKtUiNavDialog::EnableFloatingWindows(int) {}
int CKtUiNavDialog::EnableMultiDocumentActivation(int) { return 0; }
int CKtUiNavDialog::IsMultiDocumentActivationEnabled() { return 0; }
