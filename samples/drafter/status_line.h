// CStatusLine: the line at the bottom of the frame. A prompt that its first pane has no room for ends in an
// ellipsis, and stands whole in a tip.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

class CStatusLine : public CStatusBarCtrl {
    DECLARE_DYNAMIC(CStatusLine)

public:
    /// Shows a prompt in the first pane. The window's text is the same, which is how the frame sets its
    /// prompts.
    void Say(const CString& prompt);
    /// Sets the right edges of the panes, in pixels, and fits the prompt into the first one.
    void Part(int count, int* edges);

protected:
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CString fitted(const CString& prompt);

    CString m_prompt;  ///< as it was said
};
