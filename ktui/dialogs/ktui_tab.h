// CKtUiTab: the tab control by the name that an application uses.
#pragma once

#include <ktui/dialogs/kbui_tab.h>

class KTUI_API CKtUiTab : public CKbUiTab {
    DECLARE_DYNAMIC(CKtUiTab)

public:
    CKtUiTab();
    ~CKtUiTab() override;
};
