// CUiStatic: a text of a task dialog, drawn in a font and a colour of its own. Private to the library.
#pragma once

#include <afxwin.h>

class CUiStatic : public CStatic {
public:
    void DrawItem(LPDRAWITEMSTRUCT item) override;

    CRect m_rect;  ///< client coordinates of the dialog
    COLORREF m_color = 0;
    CFont* m_font = nullptr;  ///< not owned
};
