// orders.cpp : Defines the class behaviors for the application.
//
#include "stdafx.h"

#include "ordersDlg.h"

class COrdersApp : public CWinApp {
public:
    BOOL InitInstance() override;
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return m_nAnswer;
    }

private:
    int m_nAnswer = 0;
};

COrdersApp theApp;

BOOL COrdersApp::InitInstance() {
    COrdersDlg dlg;
    m_pMainWnd = &dlg;
    const INT_PTR nResponse = dlg.DoModal();
    m_nAnswer = nResponse == IDOK ? dlg.m_nPieces : 99;
    m_pMainWnd = NULL;
    // Since the dialog has been closed, return FALSE so that we exit the application.
    return FALSE;
}
