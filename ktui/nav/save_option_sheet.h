// CSaveOptionSheet: the options of saving. Private to the library.
#pragma once

#include <afxdlgs.h>

class CSaveOptionSheet : public CPropertySheet {
public:
    CSaveOptionSheet();

private:
    CPropertyPage m_page;
};
