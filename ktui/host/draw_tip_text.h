// What a control needs to paint a text tip itself: where, on what, and which text.
#pragma once

#include <afxwin.h>

/// Datum of kKbUiNotifyDrawTipText. Lives for the time of the call; refers to a device context and a
/// rectangle of the sender and holds a copy of the text.
struct CKbUiDrawTipText {
    /// `dc` is painted on, `rect` (its logical units) is the tip's area, `text` is copied.
    CKbUiDrawTipText(CDC& dc, CRect& rect, const CString& text) : m_dc(dc), m_rect(rect), m_text(text) {}

    CDC& m_dc;
    CRect& m_rect;
    CString m_text;
};
