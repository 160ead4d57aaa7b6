// settings.cpp : a property sheet, and a wizard when it was confirmed
//
#include "stdafx.h"

#include "resource.h"

/////////////////////////////////////////////////////////////////////////////
// Pages of the sheet

class CGeneralPage : public CPropertyPage {
    DECLARE_DYNCREATE(CGeneralPage)
public:
    CGeneralPage() : CPropertyPage(IDD_GENERAL) {}
    CString m_strName;
    static int s_nApplied;

    BOOL OnApply() override {
        ++s_nApplied;
        return CPropertyPage::OnApply();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_NAME, m_strName);
    }
    afx_msg void OnChange() { SetModified(); }
    DECLARE_MESSAGE_MAP()
};

int CGeneralPage::s_nApplied = 0;
IMPLEMENT_DYNCREATE(CGeneralPage, CPropertyPage)
BEGIN_MESSAGE_MAP(CGeneralPage, CPropertyPage)
    ON_EN_CHANGE(IDC_NAME, &CGeneralPage::OnChange)
END_MESSAGE_MAP()

class CColorsPage : public CPropertyPage {
public:
    CColorsPage() : CPropertyPage(IDD_COLORS) {}
    CString m_strColor;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_COLOR, m_strColor);
    }
};

/////////////////////////////////////////////////////////////////////////////
// Pages of the wizard

class CStepPage : public CPropertyPage {
public:
    CStepPage(UINT nID, DWORD dwButtons) : CPropertyPage(nID), m_dwButtons(dwButtons) {}
    BOOL OnSetActive() override {
        ((CPropertySheet*)GetParent())->SetWizardButtons(m_dwButtons);
        return CPropertyPage::OnSetActive();
    }

private:
    DWORD m_dwButtons;
};

class CNamePage : public CStepPage {
public:
    CNamePage() : CStepPage(IDD_NAME, PSWIZB_BACK | PSWIZB_NEXT) {}
    CString m_strName;
    LRESULT OnWizardNext() override {
        UpdateData();
        // A name is wanted before it goes on.
        return m_strName.IsEmpty() ? -1 : CStepPage::OnWizardNext();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CStepPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_NAME, m_strName);
    }
};

class CDonePage : public CStepPage {
public:
    explicit CDonePage(CNamePage& name) : CStepPage(IDD_DONE, PSWIZB_BACK | PSWIZB_FINISH), m_name(name) {}
    BOOL OnSetActive() override {
        SetDlgItemText(IDC_SUMMARY, _T("Hello, ") + m_name.m_strName);
        return CStepPage::OnSetActive();
    }

private:
    CNamePage& m_name;
};

/////////////////////////////////////////////////////////////////////////////

class CSettingsApp : public CWinApp {
public:
    BOOL InitInstance() override {
        CPropertySheet sheet(IDS_SHEET);
        CGeneralPage general;
        CColorsPage colors;
        general.m_strName = _T("nobody");
        sheet.AddPage(&general);
        sheet.AddPage(&colors);
        if (sheet.DoModal() != IDOK) {
            m_nAnswer = 90;
            return FALSE;
        }
        CPropertySheet wizard(IDS_WIZARD);
        CStepPage welcome(IDD_WELCOME, PSWIZB_NEXT);
        CNamePage name;
        CDonePage done(name);
        wizard.AddPage(&welcome);
        wizard.AddPage(&name);
        wizard.AddPage(&done);
        wizard.SetWizardMode();
        const INT_PTR nResult = wizard.DoModal();
        const bool bGood = nResult == ID_WIZFINISH && general.m_strName == _T("somebody") &&
                           colors.m_strColor == _T("green") && CGeneralPage::s_nApplied == 2;
        m_nAnswer = bGood ? 7 : 91;
        return FALSE;
    }
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return m_nAnswer;
    }

private:
    int m_nAnswer = 0;
};

CSettingsApp theApp;
