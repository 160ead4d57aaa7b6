// The title block palette: what the page of the options fills, at hand beside the drawing.
#pragma once

#include <ktui/ktui.h>

#include "drafter/extension_api.h"

/// The fields of the title block with a button that fills them in, one step of Undo.
class CTitlePanel : public CKtUiDialog {
public:
    CTitlePanel(HINSTANCE module, CDrafterServices& services);
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

private:
    CDrafterServices& m_services;
};

class CTitlePalette : public CKbUiPalette {
public:
    CTitlePalette(HINSTANCE module, CDrafterServices& services);

    using CKbUiPalette::Create;
    int Create(CKbUiPaletteSet* set) override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    CTitlePanel m_panel;
};
