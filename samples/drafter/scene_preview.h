// A static control that shows a scene, all of it, on the paper of the drawing view.
#pragma once

#include <afxwin.h>

#include "scene_painter.h"

class CScenePreview : public CStatic {
    DECLARE_DYNAMIC(CScenePreview)

public:
    void SetScene(Scene scene);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    Scene m_scene;
};
