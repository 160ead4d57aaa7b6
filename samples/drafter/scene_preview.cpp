#include "scene_preview.h"

#include <afxext.h>

IMPLEMENT_DYNAMIC(CScenePreview, CStatic)

BEGIN_MESSAGE_MAP(CScenePreview, CStatic)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
END_MESSAGE_MAP()

void CScenePreview::SetScene(Scene scene) {
    m_scene = std::move(scene);
    Invalidate();
}

void CScenePreview::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty()) return;
    CMemDC memory(dc, client);
    memory.GetDC().FillSolidRect(&client, kDrawingPaper);
    ScenePlace place;
    place.size = client.Size();
    place.Fit(m_scene.extents());
    PaintScene(memory.GetDC(), m_scene, place);
}

BOOL CScenePreview::OnEraseBkgnd(CDC*) { return TRUE; }

void CScenePreview::OnSize(UINT, int, int) { Invalidate(); }
