// The look of a text tip that a control paints itself: the same whatever theme is active. Private to the
// library.
#pragma once

#include <afxwin.h>
#include <ktui/host/draw_tip_text.h>

/// Paints the framed tip of `control` with its text in the control's font.
void PaintFramedTip(CWnd& control, CKbUiDrawTipText& tip);
