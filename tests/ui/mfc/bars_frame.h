// A frame whose commands say what buttons and panes are, for the tests of its bars.
#pragma once

#include "frame_with_view.h"

namespace bars {

constexpr UINT kNew = 2001, kOpen = 2002, kCut = 2003, kUnhandled = 2004;
constexpr UINT kPane = 2010, kShort = 2011;

class Frame : public CFrameWnd {
public:
    int news = 0, dropDowns = 0;
    BOOL openEnabled = TRUE;
    int cutCheck = 0;
    bool cutIsRadio = false;
    CString paneText;
    BOOL paneEnabled = TRUE;
    int paneCheck = 0;
    using CFrameWnd::m_nIDLastMessage;

protected:
    afx_msg void OnNew() { ++news; }
    afx_msg void OnOpen() {}
    afx_msg void OnUpdateOpen(CCmdUI* item) { item->Enable(openEnabled); }
    afx_msg void OnUpdateCut(CCmdUI* item) {
        if (cutIsRadio)
            item->SetRadio(cutCheck);
        else
            item->SetCheck(cutCheck);
        item->SetText(L"never shown");
    }
    afx_msg void OnUpdatePane(CCmdUI* item) {
        item->Enable(paneEnabled);
        item->SetText(paneText);
        item->SetCheck(paneCheck);
    }
    afx_msg void OnDropDown(NMHDR* header, LRESULT* result) {
        dropDowns += static_cast<int>(reinterpret_cast<NMTOOLBAR*>(header)->iItem);
        *result = TBDDRET_DEFAULT;
    }
    DECLARE_MESSAGE_MAP()
};

using FrameBars = FrameWithView<Frame>;

}  // namespace bars
