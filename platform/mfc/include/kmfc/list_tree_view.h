// CListView, CTreeView: views that are a list control or a tree control.
#pragma once

#include <kmfc/ctrl_view.h>
#include <kmfc/list_ctrl.h>
#include <kmfc/tree_ctrl.h>

class KMFC_API CListView : public CCtrlView {
    DECLARE_DYNCREATE(CListView)
public:
    CListView();
    CListCtrl& GetListCtrl() const { return m_control.over(m_hWnd); }

private:
    kmfc::ControlOverView<CListCtrl> m_control;
};

class KMFC_API CTreeView : public CCtrlView {
    DECLARE_DYNCREATE(CTreeView)
public:
    CTreeView();
    CTreeCtrl& GetTreeCtrl() const { return m_control.over(m_hWnd); }

private:
    kmfc::ControlOverView<CTreeCtrl> m_control;
};
