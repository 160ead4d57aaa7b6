#include <ktui/nav/underlay_export_dlg.h>

#include <kh_plot_service.h>
#include <kh_system.h>
#include <ktdsres/underlay_export_ids.h>
#include <ktut.h>

#include <ktui/dialogs/editor_command_messages.h>
#include <ktui/host/host_calls.h>
#include <ktui/host/message_box.h>
#include <ktui/host/string_resources.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_keyboard_hook.h>
#include <ktui/nav/plot_override.h>

namespace {

CKhPlotSvr* plotService() {
    return static_cast<CKhPlotSvr*>(CKhSystem::instance()->serviceManager()->getService(kKhPlotService));
}

CString textOf(const ExportText& text) { return LoadToolkitString(text.id, text.standard); }

/// Whether another program keeps the file from being written.
bool isHeld(const CString& path) {
    if (!ktutPathExists(path)) return false;
    const HANDLE file = ::CreateFileW(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                      nullptr, OPEN_ALWAYS, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return true;
    ::CloseHandle(file);
    return false;
}

/// Gives a button of the template its picture.
void attach(CKtUiBitmapButton& button, int id, const wchar_t* picture, CWnd& dialog) {
    if (!button.SubclassDlgItem(static_cast<UINT>(id), &dialog)) return;
    button.LoadBitmapW(picture);
    button.AutoLoad();
}

LRESULT send(const CWnd& dialog, int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendDlgItemMessageW(dialog.m_hWnd, id, message, wParam, lParam);
}

void addEntry(const CWnd& dialog, int box, const ExportText& text, int data) {
    const CString shown = textOf(text);
    const LRESULT at = send(dialog, box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(shown.GetString()));
    if (at >= 0) send(dialog, box, CB_SETITEMDATA, static_cast<WPARAM>(at), data);
}

int selectedData(const CWnd& dialog, int box) {
    const LRESULT selected = send(dialog, box, CB_GETCURSEL);
    return static_cast<int>(send(dialog, box, CB_GETITEMDATA, static_cast<WPARAM>(selected)));
}

void selectData(const CWnd& dialog, int box, int data) {
    const LRESULT count = send(dialog, box, CB_GETCOUNT);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i)
        if (send(dialog, box, CB_GETITEMDATA, i) == data) send(dialog, box, CB_SETCURSEL, i);
}

}  // namespace

IMPLEMENT_DYNAMIC(CNavUnderlayExportFileDlg, CNavFileDlg)

BEGIN_MESSAGE_MAP(CNavUnderlayExportFileDlg, CNavFileDlg)
    ON_BN_CLICKED(IDC_EXPORT_SHOW_OPTIONS, &CNavUnderlayExportFileDlg::OnExportOptions)
    ON_BN_CLICKED(IDC_EXPORT_PLOT_STAMP, &CNavUnderlayExportFileDlg::OnPlotStamp)
    ON_BN_CLICKED(IDC_EXPORT_PICK_WINDOW, &CNavUnderlayExportFileDlg::OnPickWindow)
    ON_BN_CLICKED(IDC_EXPORT_OVERRIDE, &CNavUnderlayExportFileDlg::OnOverride)
    ON_BN_CLICKED(IDC_EXPORT_FIRST_SWITCH, &CNavUnderlayExportFileDlg::OnFirstSwitch)
    ON_BN_CLICKED(IDC_EXPORT_SECOND_SWITCH, &CNavUnderlayExportFileDlg::OnSecondSwitch)
    ON_CBN_SELCHANGE(IDC_EXPORT_AREA, &CNavUnderlayExportFileDlg::OnAreaSelected)
    ON_CBN_SELCHANGE(IDC_EXPORT_PAGE_SETUP, &CNavUnderlayExportFileDlg::OnPageSetupSelected)
END_MESSAGE_MAP()

CNavUnderlayExportFileDlg::CNavUnderlayExportFileDlg(CNavDialogImp* owner, int open, const wchar_t* fileName,
                                                     unsigned long flags, const wchar_t* filter)
    : CNavFileDlg(owner, open, fileName, flags, filter) {
    if (!open) SetTemplate(0, IDD_UNDERLAY_EXPORT);
}

void CNavUnderlayExportFileDlg::OnInitDone() {
    CNavFileDlg::OnInitDone();
    CKhPlotSvr* const service = plotService();
    if (service == nullptr) return;
    attach(m_plotStamp, IDC_EXPORT_PLOT_STAMP, L"IDB_UNDERLAYEXPORT_PLOTSTAMP", *this);
    attach(m_windowPick, IDC_EXPORT_PICK_WINDOW, L"IDB_UNDERLAYEXPORT_WINDOWPICK", *this);
    settleFormat();
    service->setExportFormat(m_format, m_flag);
    refreshSummary(*service);
    check(IDC_EXPORT_FIRST_SWITCH, service->getFirstSwitch());
    check(IDC_EXPORT_SECOND_SWITCH, service->getSecondSwitch());
    fillAreas(*service);
    fillPageSetups(*service);
}

void CNavUnderlayExportFileDlg::settleFormat() {
    const ExportFormat known = ExportFormatOf(m_ofn.lpstrDefExt, {m_tag, m_format});
    m_tag = known.tag;
    m_format = known.format;
}

void CNavUnderlayExportFileDlg::refreshSummary(CKhPlotSvr& service) {
    KhExportSummary summary;
    service.getExportSummary(summary);
    say(IDC_EXPORT_SHEETS, SheetsText(summary.multiSheet));
    SetDlgItemText(IDC_EXPORT_SUMMARY, summary.summary);
    say(IDC_EXPORT_LAYER_INFORMATION, InclusionText(summary.layerInformation));
    say(IDC_EXPORT_MERGE_CONTROL, MergeText(summary.mergeControl));
    say(IDC_EXPORT_PASSWORD_PROMPT, PasswordText(summary.passwordPrompt));
    say(IDC_EXPORT_BLOCK_INFORMATION, InclusionText(summary.blockInformation));
    const OdString& folder = summary.defaultLocation;
    if (folder.isEmpty() || !ktutDirectoryExists(folder) || ktutPathIsSame(folder, GetFolderPath())) return;
    NavigateTo(folder);
    owner()->m_owner->OnFolderChange();
}

void CNavUnderlayExportFileDlg::fillAreas(CKhPlotSvr& service) {
    const bool isModel = IsModelLayoutCurrent();
    for (const ExportArea& entry : ExportAreas(isModel))
        addEntry(*this, IDC_EXPORT_AREA, entry.text, entry.area);
    service.prepareArea(isModel);
    const int area = service.getPlotArea(isModel);
    selectData(*this, IDC_EXPORT_AREA, area);
    enable(IDC_EXPORT_PICK_WINDOW, PicksExportWindow(area));
    // Kept: an area of all layouts that was there before leaves the box of page set-ups enabled.
}

void CNavUnderlayExportFileDlg::fillPageSetups(CKhPlotSvr& service) {
    addEntry(*this, IDC_EXPORT_PAGE_SETUP, {IDS_EXPORT_CURRENT_SETUP, L"Current"}, 0);
    addEntry(*this, IDC_EXPORT_PAGE_SETUP, {IDS_EXPORT_OVERRIDE_SETUP, L"Override"}, 1);
    const bool overrides = service.getOverride();
    send(*this, IDC_EXPORT_PAGE_SETUP, CB_SETCURSEL, overrides ? 1 : 0);
    enable(IDC_EXPORT_OVERRIDE, overrides);
}

void CNavUnderlayExportFileDlg::say(int id, const ExportText& text) { SetDlgItemText(id, textOf(text)); }

void CNavUnderlayExportFileDlg::enable(int id, bool enabled) {
    ::EnableWindow(::GetDlgItem(m_hWnd, id), enabled);
}

void CNavUnderlayExportFileDlg::check(int id, bool checked) {
    CheckDlgButton(id, checked ? BST_CHECKED : BST_UNCHECKED);
}

void CNavUnderlayExportFileDlg::OnExportOptions() {
    const NavKeyboardHookAside hook;
    CKhPlotSvr* const service = plotService();
    if (service == nullptr) return;
    service->exportOptionsDialog();
    refreshSummary(*service);
}

void CNavUnderlayExportFileDlg::OnPlotStamp() {
    const NavKeyboardHookAside hook;
    if (CKhPlotSvr* const service = plotService()) service->plotStampDialog();
}

void CNavUnderlayExportFileDlg::OnPickWindow() {
    const NavKeyboardHookAside hook;
    CKhPlotSvr* const service = plotService();
    if (service == nullptr) return;
    stepAside(true);
    service->pickWindow();
    stepAside(false);
}

void CNavUnderlayExportFileDlg::stepAside(bool aside) {
    ::SetWindowPos(PlatformWindow(), nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | (aside ? SWP_HIDEWINDOW : SWP_SHOWWINDOW));
    // Kept: the end is told as a cancel, whatever came of it.
    if (CWnd* const main = HostMainWindow()) TellMainWindow(main, *this, aside ? 1 : -1);
}

void CNavUnderlayExportFileDlg::OnOverride() {
    const NavKeyboardHookAside hook;
    CKhPlotSvr* const service = plotService();
    OdDbPlotSettingsPtr settings;
    if (service == nullptr || !FindPlotOverride(settings)) return;
    service->overrideDialog(settings.get(), m_tag);
}

void CNavUnderlayExportFileDlg::OnFirstSwitch() {
    const NavKeyboardHookAside hook;
    CKhPlotSvr* const service = plotService();
    if (service == nullptr) return;
    UpdateData();
    service->setFirstSwitch(IsDlgButtonChecked(IDC_EXPORT_FIRST_SWITCH) == BST_CHECKED);
}

void CNavUnderlayExportFileDlg::OnSecondSwitch() {
    const NavKeyboardHookAside hook;
    CKhPlotSvr* const service = plotService();
    if (service == nullptr) return;
    UpdateData();
    service->setSecondSwitch(IsDlgButtonChecked(IDC_EXPORT_SECOND_SWITCH) == BST_CHECKED);
}

void CNavUnderlayExportFileDlg::OnAreaSelected() {
    const NavKeyboardHookAside hook;
    CKhPlotSvr* const service = plotService();
    if (service == nullptr) return;
    const int area = selectedData(*this, IDC_EXPORT_AREA);
    service->setPlotArea(area, IsModelLayoutCurrent());
    enable(IDC_EXPORT_PICK_WINDOW, PicksExportWindow(area));
    enable(IDC_EXPORT_PAGE_SETUP, !TakesLayoutSetups(area));
    if (TakesLayoutSetups(area)) {
        send(*this, IDC_EXPORT_PAGE_SETUP, CB_SETCURSEL, 0);
        OnPageSetupSelected();
    } else if (PicksExportWindow(area) && service->hasNoWindow()) {
        OnPickWindow();
    }
}

void CNavUnderlayExportFileDlg::OnPageSetupSelected() {
    const NavKeyboardHookAside hook;
    CKhPlotSvr* const service = plotService();
    if (service == nullptr) return;
    const bool overrides = send(*this, IDC_EXPORT_PAGE_SETUP, CB_GETCURSEL) != 0;
    service->setOverride(overrides);
    enable(IDC_EXPORT_OVERRIDE, overrides);
}

BOOL CNavUnderlayExportFileDlg::OnFileNameOK() {
    const CString path = GetPathName();
    if (!isHeld(path)) return CNavFileDlg::OnFileNameOK();
    tellInUse(path);
    // Kept: the platform takes this for consent, so the dialog ends with OK and has given no file.
    return FALSE;
}

void CNavUnderlayExportFileDlg::tellInUse(const CString& path) const {
    CString caption, text;
    caption.Format(textOf({IDS_EXPORT_SAVE_AS, L"Save As %s"}).GetString(), ExportFormatName(m_format));
    text.Format(textOf({IDS_EXPORT_IN_USE,
                        L"<%s> is currently open in another program.\nPlease close the "
                        L"file and try again."})
                    .GetString(),
                path.GetString());
    KtUiMessageBox(caption, text, MB_ICONEXCLAMATION);
}
