#include "undo_menu.h"

#include "resource.h"

namespace {

void showStep(CCmdUI& item, bool isThere, const OdString& name, UINT plain, UINT named) {
    CString text;
    if (name.isEmpty()) {
        text.LoadString(plain);
    } else {
        // A name with an ampersand would lose it.
        CString shown(name.c_str());
        shown.Replace(L"&", L"&&");
        text.Format(named, shown.GetString());
    }
    item.SetText(text);
    item.Enable(isThere);
}

}  // namespace

void ShowUndoStep(CCmdUI& item, const CUndoHistory& history) {
    showStep(item, history.CanUndo(), history.UndoName(), IDS_UNDO, IDS_UNDO_NAMED);
}

void ShowRedoStep(CCmdUI& item, const CUndoHistory& history) {
    showStep(item, history.CanRedo(), history.RedoName(), IDS_REDO, IDS_REDO_NAMED);
}
