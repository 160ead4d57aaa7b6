// CTaskDialog over TaskDialogIndirect, which is looked for at run time: older systems lack it, and so do
// programs that run with the older common controls.
#include <kmfc/task_dialog.h>

#include <kmfc/app.h>

#include <iterator>
#include <utility>

IMPLEMENT_DYNAMIC(CTaskDialog, CObject)

namespace {

using Function = decltype(&::TaskDialogIndirect);

Function task_dialog() {
    static const auto found = reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::LoadLibraryW(L"COMCTL32.DLL"), "TaskDialogIndirect")));
    return found;
}

struct CommonButton {
    int flag, id;
};

constexpr CommonButton kCommonButtons[] = {
    {TDCBF_OK_BUTTON, IDOK},         {TDCBF_YES_BUTTON, IDYES},     {TDCBF_NO_BUTTON, IDNO},
    {TDCBF_CANCEL_BUTTON, IDCANCEL}, {TDCBF_RETRY_BUTTON, IDRETRY}, {TDCBF_CLOSE_BUTTON, IDCLOSE},
};

/// The system's width is in horizontal dialog units.
UINT dialog_units(int pixels) {
    return static_cast<UINT>(::MulDiv(pixels, 4, LOWORD(::GetDialogBaseUnits())));
}

const wchar_t* text_or_null(const CString& text) { return text.IsEmpty() ? nullptr : text.GetString(); }

}  // namespace

CTaskDialog::CTaskDialog(const CString& strContent, const CString& strMainInstruction,
                         const CString& strTitle, int nCommonButtons, int nTaskDialogOptions,
                         const CString& strFooter)
    : m_title(strTitle),
      m_mainInstruction(strMainInstruction),
      m_content(strContent),
      m_footer(strFooter),
      m_options(nTaskDialogOptions),
      m_commonButtons(nCommonButtons) {}

CTaskDialog::CTaskDialog(const CString& strContent, const CString& strMainInstruction,
                         const CString& strTitle, int nIDCommandControlsFirst, int nIDCommandControlsLast,
                         int nCommonButtons, int nTaskDialogOptions, const CString& strFooter)
    : CTaskDialog(strContent, strMainInstruction, strTitle, nCommonButtons, nTaskDialogOptions, strFooter) {
    LoadCommandControls(nIDCommandControlsFirst, nIDCommandControlsLast);
}

CTaskDialog::~CTaskDialog() = default;

BOOL CTaskDialog::IsSupported() { return task_dialog() != nullptr; }

INT_PTR CTaskDialog::ShowDialog(const CString& strContent, const CString& strMainInstruction,
                                const CString& strTitle, int nIDCommandControlsFirst,
                                int nIDCommandControlsLast, int nCommonButtons, int nTaskDialogOptions,
                                const CString& strFooter) {
    CTaskDialog dialog(strContent, strMainInstruction, strTitle, nIDCommandControlsFirst,
                       nIDCommandControlsLast, nCommonButtons, nTaskDialogOptions, strFooter);
    return dialog.DoModal();
}

INT_PTR CTaskDialog::DoModal(HWND hParent) {
    if (!IsSupported()) return -1;
    TASKDIALOGCONFIG config = {};
    const std::vector<TASKDIALOG_BUTTON> commands = buttons_of(m_commands), radios = buttons_of(m_radios);
    config.hwndParent = hParent;
    config.cButtons = static_cast<UINT>(commands.size());
    config.pButtons = commands.data();
    config.cRadioButtons = static_cast<UINT>(radios.size());
    config.pRadioButtons = radios.data();
    fill(config);
    int button = 0, radio = 0;
    WINBOOL verified = FALSE;
    CWinApp* app = AfxGetApp();
    if (app != nullptr) app->EnableModeless(FALSE);
    const HRESULT result = task_dialog()(&config, &button, &radio, &verified);
    if (app != nullptr) app->EnableModeless(TRUE);
    m_window = nullptr;
    if (m_failure) std::rethrow_exception(std::exchange(m_failure, nullptr));
    if (FAILED(result)) return -1;
    m_selectedCommand = button;
    m_selectedRadio = radio;
    m_verified = verified;
    return button;
}

std::vector<TASKDIALOG_BUTTON> CTaskDialog::buttons_of(const Controls& controls) {
    std::vector<TASKDIALOG_BUTTON> buttons;
    for (const Control& control : controls) buttons.push_back({control.id, control.text});
    return buttons;
}

void CTaskDialog::fill(TASKDIALOGCONFIG& config) const {
    config.cbSize = sizeof config;
    config.hInstance = AfxGetResourceHandle();
    config.dwFlags = static_cast<TASKDIALOG_FLAGS>(m_options);
    config.dwCommonButtons = static_cast<TASKDIALOG_COMMON_BUTTON_FLAGS>(m_commonButtons);
    config.pszWindowTitle = m_title;
    if (m_options & TDF_USE_HICON_MAIN)
        config.hMainIcon = m_mainIcon;
    else
        config.pszMainIcon = m_mainIconName;
    config.pszMainInstruction = text_or_null(m_mainInstruction);
    config.pszContent = text_or_null(m_content);
    config.nDefaultButton = m_defaultCommand;
    config.nDefaultRadioButton = m_defaultRadio;
    config.pszVerificationText = text_or_null(m_verificationText);
    config.pszExpandedInformation = text_or_null(m_expandedInformation);
    config.pszExpandedControlText = text_or_null(m_expandedLabel);
    config.pszCollapsedControlText = text_or_null(m_collapsedLabel);
    if (m_options & TDF_USE_HICON_FOOTER)
        config.hFooterIcon = m_footerIcon;
    else
        config.pszFooterIcon = m_footerIconName;
    config.pszFooter = text_or_null(m_footer);
    config.cxWidth = m_width > 0 ? dialog_units(m_width) : 0;
    config.pfCallback = callback;
    config.lpCallbackData = reinterpret_cast<LONG_PTR>(this);
}

HRESULT CALLBACK CTaskDialog::callback(HWND window, UINT notification, WPARAM wParam, LPARAM lParam,
                                       LONG_PTR data) {
    return reinterpret_cast<CTaskDialog*>(data)->guarded(window, notification, wParam, lParam);
}

HRESULT CTaskDialog::guarded(HWND window, UINT notification, WPARAM wParam, LPARAM lParam) {
    m_window = window;
    if (m_failure) return S_OK;
    try {
        return notify(notification, wParam, lParam);
    } catch (...) {
        // The system's dialog is in between: it ends, and DoModal throws.
        m_failure = std::current_exception();
        ::EndDialog(window, IDCANCEL);
        return S_OK;
    }
}

/// Escape and the close box ask for IDCANCEL. Wine does nothing then unless there is a Cancel button; Windows
/// has told of a click by the time it answers.
LRESULT CALLBACK CTaskDialog::watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data) {
    auto* const dialog = reinterpret_cast<CTaskDialog*>(data);
    if (message == WM_NCDESTROY) ::RemoveWindowSubclass(window, watch, id);
    if (message != WM_COMMAND || wParam != IDCANCEL)
        return ::DefSubclassProc(window, message, wParam, lParam);
    dialog->m_clickHeard = false;
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (!dialog->m_clickHeard && (dialog->m_options & TDF_ALLOW_DIALOG_CANCELLATION)) dialog->cancel(window);
    return result;
}

void CTaskDialog::cancel(HWND window) {
    if (guarded(window, TDN_BUTTON_CLICKED, IDCANCEL, 0) == S_OK) ::EndDialog(window, IDCANCEL);
}

HRESULT CTaskDialog::notify(UINT notification, WPARAM wParam, LPARAM lParam) {
    switch (notification) {
        case TDN_DIALOG_CONSTRUCTED:
            ::SetWindowSubclass(m_window, watch, 0, reinterpret_cast<DWORD_PTR>(this));
            send_states();
            return OnInit();
        case TDN_CREATED: return OnCreate();
        case TDN_NAVIGATED: return OnNavigatePage();
        case TDN_BUTTON_CLICKED: m_clickHeard = true; return OnCommandControlClick(static_cast<int>(wParam));
        case TDN_HYPERLINK_CLICKED:
            return OnHyperlinkClick(CString(reinterpret_cast<const wchar_t*>(lParam)));
        case TDN_TIMER: return OnTimer(static_cast<long>(wParam));
        case TDN_RADIO_BUTTON_CLICKED: return OnRadioButtonClick(static_cast<int>(wParam));
        case TDN_VERIFICATION_CLICKED:
            m_verified = static_cast<BOOL>(wParam);
            return OnVerificationCheckboxClick(m_verified);
        case TDN_HELP: return OnHelp();
        case TDN_EXPANDO_BUTTON_CLICKED: return OnExpandButtonClick(static_cast<BOOL>(wParam));
        case TDN_DESTROYED: {
            const HRESULT result = OnDestroy();
            m_window = nullptr;
            return result;
        }
        default: return S_OK;
    }
}

LRESULT CTaskDialog::send(UINT message, LONG_PTR wParam, LONG_PTR lParam) const {
    return m_window != nullptr ? ::SendMessageW(m_window, message, static_cast<WPARAM>(wParam), lParam) : 0;
}

void CTaskDialog::send_states() const {
    for (const CommonButton& button : kCommonButtons)
        if (m_commonButtons & button.flag)
            send_button_state(button.id, !(m_disabledButtons & button.flag),
                              (m_elevatedButtons & button.flag) != 0);
    for (const Control& command : m_commands)
        send_button_state(command.id, command.enabled, command.elevation);
    for (const Control& radio : m_radios)
        if (!radio.enabled) send(TDM_ENABLE_RADIO_BUTTON, radio.id, FALSE);
    if (m_options & (TDF_SHOW_PROGRESS_BAR | TDF_SHOW_MARQUEE_PROGRESS_BAR)) send_progress();
}

void CTaskDialog::send_button_state(int id, BOOL enabled, BOOL elevation) const {
    send(TDM_ENABLE_BUTTON, id, enabled);
    send(TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, id, elevation);
}

void CTaskDialog::send_progress() const {
    send(TDM_SET_PROGRESS_BAR_RANGE, 0, MAKELPARAM(m_progressMin, m_progressMax));
    send(TDM_SET_PROGRESS_BAR_POS, m_progressPosition);
    send(TDM_SET_PROGRESS_BAR_STATE, m_progressState);
    if (m_options & TDF_SHOW_MARQUEE_PROGRESS_BAR)
        send(TDM_SET_PROGRESS_BAR_MARQUEE, m_marquee, m_marqueeSpeed);
}

void CTaskDialog::set_text(CString& member, TASKDIALOG_ELEMENTS element, const CString& text) {
    member = text;
    send(TDM_SET_ELEMENT_TEXT, element, reinterpret_cast<LONG_PTR>(member.GetString()));
}

void CTaskDialog::SetMainInstruction(const CString& strInstructions) {
    set_text(m_mainInstruction, TDE_MAIN_INSTRUCTION, strInstructions);
}

void CTaskDialog::SetContent(const CString& strContent) { set_text(m_content, TDE_CONTENT, strContent); }

void CTaskDialog::SetFooterText(const CString& strFooterText) {
    set_text(m_footer, TDE_FOOTER, strFooterText);
}

void CTaskDialog::SetMainIcon(HICON hMainIcon) {
    m_mainIcon = hMainIcon;
    m_options |= TDF_USE_HICON_MAIN;
    send(TDM_UPDATE_ICON, TDIE_ICON_MAIN, reinterpret_cast<LONG_PTR>(hMainIcon));
}

void CTaskDialog::SetMainIcon(LPCWSTR lpszMainIcon) {
    m_mainIconName = lpszMainIcon;
    m_options &= ~TDF_USE_HICON_MAIN;
    send(TDM_UPDATE_ICON, TDIE_ICON_MAIN, reinterpret_cast<LONG_PTR>(lpszMainIcon));
}

void CTaskDialog::SetFooterIcon(HICON hFooterIcon) {
    m_footerIcon = hFooterIcon;
    m_options |= TDF_USE_HICON_FOOTER;
    send(TDM_UPDATE_ICON, TDIE_ICON_FOOTER, reinterpret_cast<LONG_PTR>(hFooterIcon));
}

void CTaskDialog::SetFooterIcon(LPCWSTR lpszFooterIcon) {
    m_footerIconName = lpszFooterIcon;
    m_options &= ~TDF_USE_HICON_FOOTER;
    send(TDM_UPDATE_ICON, TDIE_ICON_FOOTER, reinterpret_cast<LONG_PTR>(lpszFooterIcon));
}

void CTaskDialog::SetExpansionArea(const CString& strExpandedInformation, const CString& strCollapsedLabel,
                                   const CString& strExpandedLabel) {
    m_collapsedLabel = strCollapsedLabel;
    m_expandedLabel = strExpandedLabel;
    set_text(m_expandedInformation, TDE_EXPANDED_INFORMATION, strExpandedInformation);
}

void CTaskDialog::SetCommonButtons(int nButtonMask, int nDisabledButtonMask, int nElevationButtonMask) {
    m_commonButtons = nButtonMask;
    SetCommonButtonOptions(nDisabledButtonMask, nElevationButtonMask);
}

void CTaskDialog::SetCommonButtonOptions(int nDisabledButtonMask, int nElevationButtonMask) {
    m_disabledButtons = nDisabledButtonMask;
    m_elevatedButtons = nElevationButtonMask;
    if (m_window != nullptr) send_states();
}

int CTaskDialog::GetCommonButtonCount() const {
    int count = 0;
    for (const CommonButton& button : kCommonButtons) count += (m_commonButtons & button.flag) != 0;
    return count;
}

int CTaskDialog::GetCommonButtonFlag(int nButtonId) const {
    for (const CommonButton& button : kCommonButtons)
        if (button.id == nButtonId) return button.flag;
    return 0;
}

int CTaskDialog::GetCommonButtonId(int nFlag) const {
    for (const CommonButton& button : kCommonButtons)
        if (button.flag == nFlag) return button.id;
    return 0;
}

CTaskDialog::Control* CTaskDialog::find(Controls& controls, int id) {
    for (Control& control : controls)
        if (control.id == id) return &control;
    return nullptr;
}

void CTaskDialog::load(Controls& controls, int first, int last) {
    controls.clear();
    for (int id = first; id <= last; ++id) {
        CString text;
        // Ids without a text are left out.
        if (text.LoadString(static_cast<UINT>(id))) controls.push_back({id, text});
    }
}

void CTaskDialog::AddCommandControl(int nCommandControlID, const CString& strCaption, BOOL bEnabled,
                                    BOOL bRequiresElevation) {
    m_commands.push_back({nCommandControlID, strCaption, bEnabled, bRequiresElevation});
}

void CTaskDialog::LoadCommandControls(int nIDCommandControlsFirst, int nIDCommandControlsLast) {
    load(m_commands, nIDCommandControlsFirst, nIDCommandControlsLast);
}

void CTaskDialog::SetCommandControlOptions(int nCommandControlID, BOOL bEnabled, BOOL bRequiresElevation) {
    Control* command = find(m_commands, nCommandControlID);
    if (command == nullptr) return;
    command->enabled = bEnabled;
    command->elevation = bRequiresElevation;
    send_button_state(nCommandControlID, bEnabled, bRequiresElevation);
}

BOOL CTaskDialog::IsCommandControlEnabled(int nCommandControlID) const {
    const Control* command = find(const_cast<Controls&>(m_commands), nCommandControlID);
    return command != nullptr && command->enabled;
}

void CTaskDialog::AddRadioButton(int nRadioButtonID, const CString& strCaption, BOOL bEnabled) {
    m_radios.push_back({nRadioButtonID, strCaption, bEnabled});
}

void CTaskDialog::LoadRadioButtons(int nIDRadioButtonsFirst, int nIDRadioButtonsLast) {
    load(m_radios, nIDRadioButtonsFirst, nIDRadioButtonsLast);
}

void CTaskDialog::SetRadioButtonOptions(int nRadioButtonID, BOOL bEnabled) {
    Control* radio = find(m_radios, nRadioButtonID);
    if (radio == nullptr) return;
    radio->enabled = bEnabled;
    send(TDM_ENABLE_RADIO_BUTTON, nRadioButtonID, bEnabled);
}

BOOL CTaskDialog::IsRadioButtonEnabled(int nRadioButtonID) const {
    const Control* radio = find(const_cast<Controls&>(m_radios), nRadioButtonID);
    return radio != nullptr && radio->enabled;
}

void CTaskDialog::SetVerificationCheckbox(BOOL bChecked) {
    m_options = bChecked ? m_options | TDF_VERIFICATION_FLAG_CHECKED
                         : m_options & ~static_cast<int>(TDF_VERIFICATION_FLAG_CHECKED);
    m_verified = bChecked;
    send(TDM_CLICK_VERIFICATION, bChecked, FALSE);
}

void CTaskDialog::SetProgressBarRange(int nRangeMin, int nRangeMax) {
    m_progressMin = nRangeMin;
    m_progressMax = nRangeMax;
    send(TDM_SET_PROGRESS_BAR_RANGE, 0, MAKELPARAM(nRangeMin, nRangeMax));
}

void CTaskDialog::SetProgressBarPosition(int nProgressPos) {
    m_progressPosition = nProgressPos;
    send(TDM_SET_PROGRESS_BAR_POS, nProgressPos);
}

void CTaskDialog::SetProgressBarState(int nState) {
    m_progressState = nState;
    send(TDM_SET_PROGRESS_BAR_STATE, nState);
}

void CTaskDialog::SetProgressBarMarquee(BOOL bEnabled, int nMarqueeSpeed) {
    m_marquee = bEnabled;
    m_marqueeSpeed = nMarqueeSpeed;
    send(TDM_SET_PROGRESS_BAR_MARQUEE, bEnabled, nMarqueeSpeed);
}
