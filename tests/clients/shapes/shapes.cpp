// shapes.cpp : Defines the initialization routines for the DLL.
//
#include "stdafx.h"

#include "shapes.h"

#include <afxdllx.h>

static AFX_EXTENSION_MODULE ShapesDLL = {FALSE, NULL, NULL, NULL, NULL};

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved) {
    UNREFERENCED_PARAMETER(lpReserved);

    if (dwReason == DLL_PROCESS_ATTACH) {
        TRACE0("SHAPES.DLL Initializing!\n");
        // Extension DLL one-time initialization
        if (!AfxInitExtensionModule(ShapesDLL, hInstance)) return 0;
        // Insert this DLL into the resource chain
        new CDynLinkLibrary(ShapesDLL);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        TRACE0("SHAPES.DLL Terminating!\n");
        AfxTermExtensionModule(ShapesDLL);
    }
    return 1;  // ok
}

IMPLEMENT_DYNCREATE(CCircle, CObject)

CCircle::CCircle() : m_dRadius(1) {}

double CCircle::GetArea() const { return 3.25 * m_dRadius * m_dRadius; }

CString CCircle::GetName() const {
    CString str;
    str.LoadString(IDS_CIRCLE);
    return str;
}

IMPLEMENT_DYNAMIC(CShapeDlg, CDialog)

CShapeDlg::CShapeDlg(CWnd* pParent) : CDialog(IDD_SHAPE, pParent), m_dRadius(0) {}

void CShapeDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_RADIUS, m_dRadius);
    DDV_MinMaxDouble(pDX, m_dRadius, 0, 10);
}
