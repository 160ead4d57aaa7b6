// The drafter's own pages of Tools > Options. A page with a bad value refuses to be left, says why in its
// line IDC_MESSAGE and puts the focus there.
#pragma once

#include <ktui/ktui.h>

#include "options.h"

class COptionsPage : public CKtUiTabChildDialog {
    DECLARE_DYNAMIC(COptionsPage)

public:
    /// `options` (not owned) is what the dialog edits; the page shows it, and writes it at OK and Apply.
    explicit COptionsPage(DrafterOptions& options) : m_options(options) {}

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// Shows the options in the controls.
    virtual void Show() = 0;
    /// Writes the controls' values, which are good, to the options.
    virtual void Collect() = 0;
    /// The words for the first bad value, with its control in `id`; empty if all are good.
    virtual CString Problem(int& id);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    int OnTabChanging() override;
    void OnMainDialogApply() override;
    void OnMainDialogOK() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    CString FieldText(int id) const;

    DrafterOptions& m_options;

private:
    /// Says what is bad and goes there, to the front if need be; true if nothing is.
    bool accept();
    void sayProblem(const CString& problem);
};

class CFilesPage : public COptionsPage {
    DECLARE_DYNAMIC(CFilesPage)

public:
    using COptionsPage::COptionsPage;

protected:
    void Show() override;
    void Collect() override;
    CString Problem(int& id) override;
    afx_msg void OnBrowseTemplate();
    DECLARE_MESSAGE_MAP()
};

/// The messages button acts at once: it is no option that Cancel would take back.
class CDisplayPage : public COptionsPage {
    DECLARE_DYNAMIC(CDisplayPage)

public:
    using COptionsPage::COptionsPage;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void Show() override;
    void Collect() override;
    CString Problem(int& id) override;
    afx_msg void OnShowMessages();
    DECLARE_MESSAGE_MAP()

private:
    /// Says whether messages are held back, and enables the button if so.
    void showMessagesState();

    CKtUiTrueColorComboBox m_background, m_selection;
};

class CUnitsPage : public COptionsPage {
    DECLARE_DYNAMIC(CUnitsPage)

public:
    using COptionsPage::COptionsPage;
    /// Before it is shown: no drawing is open, so that nothing on the page can be used.
    void WithoutDrawing() { m_hasDrawing = false; }

protected:
    void Show() override;
    void Collect() override;
    afx_msg void OnChoice();
    DECLARE_MESSAGE_MAP()

private:
    UnitOptions chosen() const;
    void showSample();

    bool m_hasDrawing = true;
};
