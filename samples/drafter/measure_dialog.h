// Tools > Measure: distance, angle, and the number and length of objects, each picked in the drawing. The
// dialog goes away while the user picks; Escape gives up the picking and leaves what the dialog showed.
#pragma once

#include <ktui/ktui.h>

#include "drawing_picker.h"

class CMeasureDialog : public CKtUiDialog {
    DECLARE_DYNAMIC(CMeasureDialog)

public:
    /// `drawing` and `picker` must outlive the dialog.
    CMeasureDialog(OdDbDatabase& drawing, CDrawingPicker& picker, CWnd* parent);

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnPickDistance();
    afx_msg void OnPickAngle();
    afx_msg void OnSelectObjects();
    DECLARE_MESSAGE_MAP()

private:
    void showObjects(const std::set<OdDbObjectId>& objects);

    OdDbDatabase& m_drawing;
    CDrawingPicker& m_picker;
    CKtUiPickButton m_pickDistance;
    CKtUiPickButton m_pickAngle;
    CKtUiSelectButton m_selectObjects;
};
