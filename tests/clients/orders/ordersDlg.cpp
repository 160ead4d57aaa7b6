// ordersDlg.cpp : implementation file
//
#include "stdafx.h"

#include "ordersDlg.h"

COrdersDlg::COrdersDlg(CWnd* pParent) : CDialog(COrdersDlg::IDD, pParent) {
    //{{AFX_DATA_INIT(COrdersDlg)
    m_strCustomer = _T("");
    m_nQuantity = 1;
    m_bExpress = FALSE;
    m_nKind = 0;
    //}}AFX_DATA_INIT
    m_nPieces = 0;
}

void COrdersDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(COrdersDlg)
    DDX_Control(pDX, IDC_LIST, m_list);
    DDX_Text(pDX, IDC_CUSTOMER, m_strCustomer);
    DDV_MaxChars(pDX, m_strCustomer, 20);
    DDX_Text(pDX, IDC_QUANTITY, m_nQuantity);
    DDV_MinMaxInt(pDX, m_nQuantity, 1, 100);
    DDX_Check(pDX, IDC_EXPRESS, m_bExpress);
    DDX_CBIndex(pDX, IDC_KIND, m_nKind);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(COrdersDlg, CDialog)
    //{{AFX_MSG_MAP(COrdersDlg)
    ON_BN_CLICKED(IDC_ADD, &COrdersDlg::OnAdd)
    ON_EN_CHANGE(IDC_CUSTOMER, &COrdersDlg::OnChangeCustomer)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

BOOL COrdersDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    GetDlgItem(IDC_ADD)->EnableWindow(FALSE);
    return TRUE;
}

void COrdersDlg::OnChangeCustomer() {
    GetDlgItem(IDC_ADD)->EnableWindow(GetDlgItem(IDC_CUSTOMER)->GetWindowTextLength() > 0);
}

void COrdersDlg::OnAdd() {
    if (!UpdateData(TRUE)) return;
    CString strKind;
    ((CComboBox*)GetDlgItem(IDC_KIND))->GetLBText(m_nKind, strKind);
    CString strLine;
    strLine.Format(_T("%s: %d x %s%s"), (LPCTSTR)m_strCustomer, m_nQuantity, (LPCTSTR)strKind,
                   m_bExpress ? _T(" (express)") : _T(""));
    m_list.AddString(strLine);
    m_nPieces += m_nQuantity;
    CString strCount, strPieces, strTotal;
    strCount.Format(_T("%d"), m_list.GetCount());
    strPieces.Format(_T("%d"), m_nPieces);
    AfxFormatString2(strTotal, IDP_TOTAL, strCount, strPieces);
    SetDlgItemText(IDC_TOTAL, strTotal);
    m_nQuantity = 1;
    UpdateData(FALSE);
}
