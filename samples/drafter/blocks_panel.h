// The blocks palette: pictures of the drawing's blocks. One is dragged into the drawing, which inserts it
// where it is dropped; by Enter or a double click it is inserted at a place that is picked then.
#pragma once

#include <vector>

#include <ktui/ktui.h>

#include "block_list.h"

/// Where blocks go.
class CBlockTarget {
public:
    virtual ~CBlockTarget() = default;
    /// Whether a block can be dropped at a point of the screen.
    virtual bool TakesBlockAt(CPoint screen) const = 0;
    virtual void DropBlock(const OdDbObjectId& block, CPoint screen) = 0;
    /// Has the user pick a place for the block.
    virtual void PlaceBlock(const OdDbObjectId& block) = 0;
};

class CBlocksPanel : public CKtUiDialog {
    DECLARE_DYNAMIC(CBlocksPanel)

public:
    explicit CBlocksPanel(CBlockTarget& target);

    /// Shows the blocks of a drawing as they are now; it must live until another one is shown. What can't be
    /// seen is drawn when it is.
    void Show(OdDbDatabase& drawing);
    /// No drawing is open.
    void ShowNothing();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnPaint();
    afx_msg void OnBeginDrag(NMHDR* header, LRESULT* result);
    afx_msg void OnDoubleClick(NMHDR* header, LRESULT* result);
    afx_msg void OnItemChanged(NMHDR* header, LRESULT* result);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* now);
    DECLARE_MESSAGE_MAP()

private:
    void refresh();
    OdDbObjectId selected() const;
    CPoint onScreen(CPoint point) const;

    CBlockTarget& m_target;
    OdDbDatabase* m_drawing = nullptr;
    bool m_isStale = false;
    std::vector<BlockRow> m_rows;
    CImageList m_pictures;
    CListCtrl m_list;
    OdDbObjectId m_dragged;  ///< null while no block is dragged
};
