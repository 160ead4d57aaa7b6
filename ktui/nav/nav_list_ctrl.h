// CNavListCtrl: a list whose rows can be dragged by their picture. Private to the library.
#pragma once

#include <afxole.h>

#include <memory>

#include <ktui/controls/kbui_list_ctrl.h>

/// Answers the feedback of a drag as the platform does.
class CNavDropSource : public COleDropSource {
    DECLARE_DYNAMIC(CNavDropSource)

public:
    SCODE GiveFeedback(DROPEFFECT effect) override;
};

class CNavListCtrl : public CKbUiListCtrl {
    DECLARE_DYNAMIC(CNavListCtrl)

public:
    CNavListCtrl();
    ~CNavListCtrl() override;

    /// Begins to drag the row of the notice, an NMLISTVIEW, with its picture over the whole desktop; nothing
    /// for a row below 0.
    afx_msg void OnBeginDrag(NMHDR* notice, LRESULT* result);
    /// Kept: answers 0.
    virtual int OnHandleDrag();

protected:
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<CImageList> m_dragImage;
    CNavDropSource m_dropSource;
    int m_dragState = 0;  ///< Kept: nothing changes it.
};
