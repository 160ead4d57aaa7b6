// Measures the texts of a task dialog on its own device context. Private to the library.
#pragma once

#include <afxwin.h>

#include <ktui/tips/messages/task_dialog_layout.h>

class DialogMeasurer final : public TaskDialogMeasurer {
public:
    DialogMeasurer(CWnd& dialog, CFont& text, CFont& heading)
        : m_dc(&dialog), m_text(text), m_heading(heading) {}

    SIZE Wrapped(const CString& text, TaskDialogFont font, int width) const override {
        return measure(text, font == TaskDialogFont::kHeading ? m_heading : m_text, width,
                       DT_CALCRECT | DT_WORDBREAK);
    }
    SIZE Line(const CString& text) const override {
        return measure(text, m_text, 0, DT_CALCRECT | DT_SINGLELINE);
    }

private:
    SIZE measure(const CString& text, CFont& font, int width, UINT format) const {
        CFont* const former = m_dc.SelectObject(&font);
        CRect rect(0, 0, width, 0);
        m_dc.DrawText(text, &rect, format);
        m_dc.SelectObject(former);
        return rect.Size();
    }

    mutable CClientDC m_dc;
    CFont& m_text;
    CFont& m_heading;
};
