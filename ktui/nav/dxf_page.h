// CDxfPage: the settings of exchange files, a page of the save options. Private to the library.
//
// It reads and writes the variables of the current document, which must be there.
#pragma once

#include <afxdlgs.h>

class CDxfPage : public CPropertyPage {
    DECLARE_DYNAMIC(CDxfPage)

public:
    CDxfPage();
    ~CDxfPage() override;

    void OnOK() override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg void OnText();
    afx_msg void OnBinary();
    DECLARE_MESSAGE_MAP()

private:
    void enablePrecision(bool enable);

    int m_precision;  ///< decimals of a text file, 0 to 16
};
