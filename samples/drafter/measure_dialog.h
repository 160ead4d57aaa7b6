// Tools > Measure: distance, angle, and the number and length of objects, each picked in the drawing. The
// dialog goes away while the user picks; Escape gives up the picking and leaves what the dialog showed.
#pragma once

#include <ktui/ktui.h>
#include <od_db_shared_reading.h>

#include <memory>

#include "drawing_picker.h"
#include "scene_build.h"

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
    afx_msg LRESULT OnScene(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void showObjects(const std::set<OdDbObjectId>& objects);
    void showLength(const Scene& scene);
    void dropBuild();

    OdDbDatabase& m_drawing;
    CDrawingPicker& m_picker;
    CKtUiPickButton m_pickDistance;
    CKtUiPickButton m_pickAngle;
    CKtUiSelectButton m_selectObjects;
    std::shared_ptr<const std::set<OdDbObjectId>> m_measured;
    /// The objects drawn on a thread, where they are many; null if none are.
    std::unique_ptr<CSceneBuild> m_build;
    OdDbSharedReading m_reading{m_drawing, [this] { dropBuild(); }};
};
