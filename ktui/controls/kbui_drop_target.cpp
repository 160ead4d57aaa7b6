#include <ktui/controls/kbui_drop_target.h>

IMPLEMENT_DYNAMIC(CKbUiDropTarget, COleDropTarget)

DROPEFFECT CKbUiDropTarget::OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint) { return DROPEFFECT_NONE; }

DROPEFFECT CKbUiDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) { return DROPEFFECT_NONE; }

void CKbUiDropTarget::OnDragLeave(CWnd*) {}

DROPEFFECT CKbUiDropTarget::OnDragScroll(CWnd*, DWORD, CPoint) { return DROPEFFECT_NONE; }

BOOL CKbUiDropTarget::OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint) { return FALSE; }

DROPEFFECT CKbUiDropTarget::OnDropEx(CWnd*, COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint) {
    return DROPEFFECT_NONE;
}
