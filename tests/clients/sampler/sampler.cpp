// sampler.cpp : a dialog with the common controls, each by its class
//
#include "stdafx.h"

#include "resource.h"

class CSamplerDlg : public CDialog {
public:
    CSamplerDlg() : CDialog(IDD_SAMPLER), m_nLevel(3), m_date(2001, 2, 3, 0, 0, 0), m_nChecks(0) {}
    int m_nLevel;
    CTime m_date;
    int m_nChecks;

protected:
    CListCtrl m_list;
    CTreeCtrl m_tree;
    CSliderCtrl m_slider;
    CProgressCtrl m_progress;
    CSpinButtonCtrl m_spin;
    CTabCtrl m_tab;
    CCheckListBox m_checks;

    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_LISTVIEW, m_list);
        DDX_Control(pDX, IDC_TREE, m_tree);
        DDX_Control(pDX, IDC_SLIDER, m_slider);
        DDX_Control(pDX, IDC_PROGRESS, m_progress);
        DDX_Control(pDX, IDC_SPIN, m_spin);
        DDX_Control(pDX, IDC_TAB, m_tab);
        DDX_Control(pDX, IDC_CHECKS, m_checks);
        DDX_Slider(pDX, IDC_SLIDER, m_nLevel);
        DDX_DateTimeCtrl(pDX, IDC_DATE, m_date);
    }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_list.InsertColumn(0, _T("Name"), LVCFMT_LEFT, 60);
        m_list.InsertColumn(1, _T("Size"), LVCFMT_RIGHT, 50);
        for (int i = 0; i < 3; i++) {
            CString str;
            str.Format(_T("item %d"), i);
            m_list.InsertItem(i, str);
            m_list.SetItemText(i, 1, _T("1 KB"));
            m_checks.AddString(str);
        }
        const HTREEITEM hRoot = m_tree.InsertItem(_T("root"));
        m_tree.InsertItem(_T("leaf"), hRoot);
        m_tree.Expand(hRoot, TVE_EXPAND);
        m_slider.SetRange(0, 10);
        m_progress.SetRange(0, 10);
        m_spin.SetRange(0, 50);
        m_spin.SetPos(20);
        m_tab.InsertItem(0, _T("one"));
        m_tab.InsertItem(1, _T("two"));
        m_checks.SetCheck(1, 1);
        ShowState();
        return TRUE;
    }

    void ShowState() {
        m_nChecks = 0;
        for (int i = 0; i < m_checks.GetCount(); i++) m_nChecks += m_checks.GetCheck(i);
        m_progress.SetPos(m_slider.GetPos());
        CString str;
        str.Format(_T("level %d, spin %d, checks %d, items %d"), m_slider.GetPos(), LOWORD(m_spin.GetPos()),
                   m_nChecks, m_list.GetItemCount());
        SetDlgItemText(IDC_STATE, str);
    }

    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
        CDialog::OnHScroll(nSBCode, nPos, pScrollBar);
        ShowState();
    }
    afx_msg void OnCheck() { ShowState(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSamplerDlg, CDialog)
    ON_WM_HSCROLL()
    ON_CLBN_CHKCHANGE(IDC_CHECKS, &CSamplerDlg::OnCheck)
END_MESSAGE_MAP()

class CSamplerApp : public CWinApp {
public:
    BOOL InitInstance() override {
        CSamplerDlg dlg;
        m_pMainWnd = &dlg;
        if (dlg.DoModal() == IDOK && dlg.m_date == CTime(2001, 2, 3, 0, 0, 0))
            m_nAnswer = 10 * dlg.m_nLevel + dlg.m_nChecks;
        m_pMainWnd = NULL;
        return FALSE;
    }
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return m_nAnswer;
    }

private:
    int m_nAnswer = 0;
};

CSamplerApp theApp;
