// CTaskDialog: the system's task dialog, a message with a heading, command controls, common buttons, radio
// buttons, a progress bar, a verification box and a footer.
//
//     CTaskDialog dialog(L"Changes will be lost.", L"Save the drawing?", L"Drafter", TDCBF_CANCEL_BUTTON);
//     dialog.AddCommandControl(101, L"Save");
//     if (dialog.DoModal() == 101) save();
//
// Setters work before DoModal and, where the system provides for it, on the running dialog too.
#pragma once

#include <kmfc/wnd.h>

#include <commctrl.h>

#include <exception>
#include <vector>

class KMFC_API CTaskDialog : public CObject {
    DECLARE_DYNAMIC(CTaskDialog)
public:
    CTaskDialog(const CString& strContent, const CString& strMainInstruction, const CString& strTitle,
                int nCommonButtons = TDCBF_OK_BUTTON | TDCBF_CANCEL_BUTTON,
                int nTaskDialogOptions = TDF_ENABLE_HYPERLINKS | TDF_ALLOW_DIALOG_CANCELLATION,
                const CString& strFooter = CString());
    /// Takes the command controls from string resources, one for each id from first to last.
    CTaskDialog(const CString& strContent, const CString& strMainInstruction, const CString& strTitle,
                int nIDCommandControlsFirst, int nIDCommandControlsLast, int nCommonButtons,
                int nTaskDialogOptions = TDF_ENABLE_HYPERLINKS | TDF_ALLOW_DIALOG_CANCELLATION,
                const CString& strFooter = CString());
    ~CTaskDialog() override;

    /// Whether this system has task dialogs.
    static BOOL IsSupported();
    /// Runs the dialog; the id of the button that ended it, IDCANCEL for a closed one, -1 on failure. Throws
    /// what left one of the handlers below.
    virtual INT_PTR DoModal(HWND hParent = ::GetActiveWindow());
    static INT_PTR ShowDialog(const CString& strContent, const CString& strMainInstruction,
                              const CString& strTitle, int nIDCommandControlsFirst,
                              int nIDCommandControlsLast,
                              int nCommonButtons = TDCBF_YES_BUTTON | TDCBF_NO_BUTTON,
                              int nTaskDialogOptions = TDF_ENABLE_HYPERLINKS | TDF_ALLOW_DIALOG_CANCELLATION,
                              const CString& strFooter = CString());

    void SetWindowTitle(const CString& strWindowTitle) { m_title = strWindowTitle; }
    void SetMainInstruction(const CString& strInstructions);
    void SetContent(const CString& strContent);
    void SetFooterText(const CString& strFooterText);
    /// Width in pixels; 0 lets the system choose.
    void SetDialogWidth(int nWidth = 0) { m_width = nWidth; }
    void SetMainIcon(HICON hMainIcon);
    void SetMainIcon(LPCWSTR lpszMainIcon);
    void SetFooterIcon(HICON hFooterIcon);
    void SetFooterIcon(LPCWSTR lpszFooterIcon);
    /// TDF_... flags.
    void SetOptions(int nOptionFlag) { m_options = nOptionFlag; }
    int GetOptions() const { return m_options; }
    void SetExpansionArea(const CString& strExpandedInformation, const CString& strCollapsedLabel = CString(),
                          const CString& strExpandedLabel = CString());

    /// TDCBF_... flags: which buttons there are, which of them are disabled, which need elevation.
    void SetCommonButtons(int nButtonMask, int nDisabledButtonMask = 0, int nElevationButtonMask = 0);
    void SetCommonButtonOptions(int nDisabledButtonMask, int nElevationButtonMask = 0);
    int GetCommonButtonCount() const;
    /// The flag of a button's id, and the reverse; 0 for none.
    int GetCommonButtonFlag(int nButtonId) const;
    int GetCommonButtonId(int nFlag) const;

    void AddCommandControl(int nCommandControlID, const CString& strCaption, BOOL bEnabled = TRUE,
                           BOOL bRequiresElevation = FALSE);
    /// Replaces the command controls by string resources.
    void LoadCommandControls(int nIDCommandControlsFirst, int nIDCommandControlsLast);
    void RemoveAllCommandControls() { m_commands.clear(); }
    void SetCommandControlOptions(int nCommandControlID, BOOL bEnabled, BOOL bRequiresElevation = FALSE);
    void SetDefaultCommandControl(int nCommandControlID) { m_defaultCommand = nCommandControlID; }
    BOOL IsCommandControlEnabled(int nCommandControlID) const;
    void ClickCommandControl(int nCommandControlID) const { send(TDM_CLICK_BUTTON, nCommandControlID); }
    int GetSelectedCommandControlID() const { return m_selectedCommand; }

    void AddRadioButton(int nRadioButtonID, const CString& strCaption, BOOL bEnabled = TRUE);
    void LoadRadioButtons(int nIDRadioButtonsFirst, int nIDRadioButtonsLast);
    void RemoveAllRadioButtons() { m_radios.clear(); }
    void SetRadioButtonOptions(int nRadioButtonID, BOOL bEnabled);
    void SetDefaultRadioButton(int nRadioButtonID) { m_defaultRadio = nRadioButtonID; }
    BOOL IsRadioButtonEnabled(int nRadioButtonID) const;
    void ClickRadioButton(int nRadioButtonID) const { send(TDM_CLICK_RADIO_BUTTON, nRadioButtonID); }
    int GetSelectedRadioButtonID() const { return m_selectedRadio; }

    void SetVerificationCheckboxText(const CString& strVerificationText) {
        m_verificationText = strVerificationText;
    }
    void SetVerificationCheckbox(BOOL bChecked);
    BOOL GetVerificationCheckboxState() const { return m_verified; }

    void SetProgressBarRange(int nRangeMin, int nRangeMax);
    void SetProgressBarPosition(int nProgressPos);
    /// PBST_...
    void SetProgressBarState(int nState = PBST_NORMAL);
    void SetProgressBarMarquee(BOOL bEnabled = TRUE, int nMarqueeSpeed = 0);

protected:
    // What happens on the running dialog. The base does nothing and answers S_OK, which lets it happen;
    // S_FALSE from OnCommandControlClick keeps the dialog open.
    virtual HRESULT OnCreate() { return S_OK; }
    virtual HRESULT OnDestroy() { return S_OK; }
    virtual HRESULT OnInit() { return S_OK; }
    virtual HRESULT OnHelp() { return S_OK; }
    virtual HRESULT OnNavigatePage() { return S_OK; }
    virtual HRESULT OnTimer(long) { return S_OK; }
    virtual HRESULT OnCommandControlClick(int) { return S_OK; }
    virtual HRESULT OnRadioButtonClick(int) { return S_OK; }
    virtual HRESULT OnExpandButtonClick(BOOL) { return S_OK; }
    virtual HRESULT OnVerificationCheckboxClick(BOOL) { return S_OK; }
    virtual HRESULT OnHyperlinkClick(const CString&) { return S_OK; }

private:
    struct Control {
        int id = 0;
        CString text;
        BOOL enabled = TRUE;
        BOOL elevation = FALSE;
    };
    using Controls = std::vector<Control>;

    static HRESULT CALLBACK callback(HWND window, UINT notification, WPARAM wParam, LPARAM lParam,
                                     LONG_PTR data);
    static LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                  DWORD_PTR data);
    void cancel(HWND window);
    HRESULT notify(UINT notification, WPARAM wParam, LPARAM lParam);
    HRESULT guarded(HWND window, UINT notification, WPARAM wParam, LPARAM lParam);
    static Control* find(Controls& controls, int id);
    static void load(Controls& controls, int first, int last);
    void fill(TASKDIALOGCONFIG& config) const;
    static std::vector<TASKDIALOG_BUTTON> buttons_of(const Controls& controls);
    LRESULT send(UINT message, LONG_PTR wParam, LONG_PTR lParam = 0) const;
    void send_states() const;
    void send_button_state(int id, BOOL enabled, BOOL elevation) const;
    void send_progress() const;
    void set_text(CString& member, TASKDIALOG_ELEMENTS element, const CString& text);

    CString m_title, m_mainInstruction, m_content, m_footer, m_verificationText;
    CString m_expandedInformation, m_collapsedLabel, m_expandedLabel;
    int m_options = 0;
    int m_commonButtons = 0, m_disabledButtons = 0, m_elevatedButtons = 0;
    int m_width = 0;
    int m_defaultCommand = 0, m_defaultRadio = 0;
    int m_selectedCommand = 0, m_selectedRadio = 0;
    BOOL m_verified = FALSE;
    HICON m_mainIcon = nullptr, m_footerIcon = nullptr;
    LPCWSTR m_mainIconName = nullptr;
    LPCWSTR m_footerIconName = nullptr;
    Controls m_commands, m_radios;
    int m_progressMin = 0, m_progressMax = 100, m_progressPosition = 0, m_progressState = PBST_NORMAL;
    BOOL m_marquee = FALSE;
    int m_marqueeSpeed = 0;
    HWND m_window = nullptr;    ///< while the dialog runs
    bool m_clickHeard = false;  ///< since the last request to cancel
    std::exception_ptr m_failure;
};
