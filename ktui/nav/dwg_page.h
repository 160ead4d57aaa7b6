// CDwgPage: the settings of saved drawings, a page of the save options. Private to the library.
//
// It reads and writes the working drawing, which must be there, and the user's default save format.
#pragma once

#include <afxdlgs.h>

class CDwgPage : public CPropertyPage {
    DECLARE_DYNAMIC(CDwgPage)

public:
    CDwgPage();
    ~CDwgPage() override;

    void OnOK() override;

protected:
    BOOL OnInitDialog() override;

private:
    CComboBox& box(int id) const;
    void fillIndexes();
    void fillFormats();
};
