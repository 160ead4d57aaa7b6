// shapes.h : what the library gives to its users
//
#pragma once

#include <afxwin.h>

#include "resource.h"

class AFX_EXT_CLASS CCircle : public CObject {
    DECLARE_DYNCREATE(CCircle)
public:
    CCircle();
    double m_dRadius;
    double GetArea() const;
    CString GetName() const;
};

class AFX_EXT_CLASS CShapeDlg : public CDialog {
    DECLARE_DYNAMIC(CShapeDlg)
public:
    explicit CShapeDlg(CWnd* pParent = NULL);
    double m_dRadius;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};
