// viewer.cpp : uses the classes, texts and the dialog of an extension DLL
//
#include "stdafx.h"

#include "shapes.h"

class CViewerApp : public CWinApp {
public:
    BOOL InitInstance() override {
        // Made by the name of its class, which the library registered.
        CObject* pObject = RUNTIME_CLASS(CCircle)->CreateObject();
        CRuntimeClass* pFound = CRuntimeClass::FromName("CCircle");
        if (pFound != RUNTIME_CLASS(CCircle) || !pObject->IsKindOf(RUNTIME_CLASS(CCircle))) m_nAnswer = 50;
        CCircle* pCircle = DYNAMIC_DOWNCAST(CCircle, pObject);
        if (pCircle->GetName() != _T("Circle of the library")) m_nAnswer = 51;
        CShapeDlg dlg;
        dlg.m_dRadius = 2;
        if (dlg.DoModal() != IDOK) m_nAnswer = 52;
        pCircle->m_dRadius = dlg.m_dRadius;
        if (m_nAnswer == 0) m_nAnswer = (int)pCircle->GetArea();
        delete pObject;
        return FALSE;
    }
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return m_nAnswer;
    }

private:
    int m_nAnswer = 0;
};

CViewerApp theApp;
