// Tools > Options: the drafter's own pages and those of its extensions. Comes back on the page that was open.
#pragma once

#include <functional>

#include "options_pages.h"

class CExtensions;

class COptionsDialog : public CKtUiTabMainDialog {
    DECLARE_DYNAMIC(COptionsDialog)

public:
    /// Edits `options`; `apply` is called with them at Apply. Pages of `extensions` join; null for none.
    COptionsDialog(const DrafterOptions& options, std::function<void(const DrafterOptions&)> apply,
                   CExtensions* extensions, CWnd* parent);

    /// Before it is shown: no drawing is open, so that there are no units to edit.
    void WithoutDrawing() { m_units.WithoutDrawing(); }
    /// What was accepted by OK or Apply.
    const DrafterOptions& options() const { return m_options; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    /// F1 on the strip of tabs is about the page in front.
    int DoDialogHelp() override;
    afx_msg void OnApply();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void addPages();
    void openLastPage();

    DrafterOptions m_options;
    std::function<void(const DrafterOptions&)> m_apply;
    CExtensions* m_extensions;
    CKtUiTab m_tabs;
    CFilesPage m_files{m_options};
    CDisplayPage m_display{m_options};
    CUnitsPage m_units{m_options};
};
