// The linetype manager of the stand-in host: the linetypes of a drawing to choose one from, to load more from
// a file, and to delete those that nothing uses. Internal to the module.
#pragma once

#include <vector>

#include <afxwin.h>
#include <od_db.h>

#include "linetypes/linetype_list.h"

class CStandinLinetypeDialog : public CDialog {
    DECLARE_DYNAMIC(CStandinLinetypeDialog)

public:
    /// Lists the linetypes of `drawing`, with `current` selected if it is one of them. The drawing must
    /// outlive the dialog. What is loaded and deleted stays so, also after a cancel.
    CStandinLinetypeDialog(OdDbDatabase& drawing, const OdDbObjectId& current, CWnd* parent);

    /// The linetype chosen, after DoModal has answered IDOK.
    OdDbObjectId chosen() const { return m_current; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnLoad();
    afx_msg void OnDelete();
    afx_msg void OnDoubleClick(NMHDR* header, LRESULT* result);
    afx_msg void OnListKey(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    /// Lists the drawing's linetypes anew and selects `id`. False when there are none, or they can't be
    /// listed.
    bool fill(OdDbObjectId id);
    /// Place of the selected row, -1 for none.
    int selectedRow() const;

    OdDbDatabase& m_drawing;
    OdDbObjectId m_current;
    CLinetypeList m_list;
    std::vector<OdDbObjectId> m_ids;  ///< of the rows
};
