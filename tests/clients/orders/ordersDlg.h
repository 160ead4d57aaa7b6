// ordersDlg.h : header file
//
#pragma once

#include "resource.h"

/////////////////////////////////////////////////////////////////////////////
// COrdersDlg dialog

class COrdersDlg : public CDialog {
public:
    explicit COrdersDlg(CWnd* pParent = NULL);

    //{{AFX_DATA(COrdersDlg)
    enum { IDD = IDD_ORDERS_DIALOG };
    CListBox m_list;
    CString m_strCustomer;
    int m_nQuantity;
    BOOL m_bExpress;
    int m_nKind;
    //}}AFX_DATA
    int m_nPieces;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);

    //{{AFX_MSG(COrdersDlg)
    virtual BOOL OnInitDialog();
    afx_msg void OnAdd();
    afx_msg void OnChangeCustomer();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
