// CListBoxDir: the drop-down list of the location box, which shows a text that is too wide in a tip. Private
// to the library.
#pragma once

#include <afxwin.h>

#include <memory>

#include <ktui/tips/tool_tip.h>

class CListBoxDir : public CListBox {
public:
    /// `names` are the texts of the rows; not owned.
    explicit CListBoxDir(const CStringArray& names) : m_names(&names) {}
    ~CListBoxDir() override;

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    /// Shows the text of the selected row if it is wider than the row.
    void showTip();

    std::unique_ptr<CToolTip> m_tip;
    const CStringArray* m_names;
};

/// Pixels that a text takes in the font of `window`.
int WidthOfText(CWnd& window, const CString& text);
/// Pixels to the left of a text, which an icon takes.
constexpr int kDirIconWidth = 24;
