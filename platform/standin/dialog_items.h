// Whether a dialog has the controls that it works with. Internal to the module.
#pragma once

#include <initializer_list>

#include <afxwin.h>

/// Whether every one of `ids` is a control of the dialog. One without would come up half empty.
inline bool HasDialogItems(const CWnd& dialog, std::initializer_list<int> ids) {
    for (const int id : ids)
        if (::GetDlgItem(dialog.m_hWnd, id) == nullptr) return false;
    return true;
}
