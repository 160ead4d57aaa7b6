#include "scene_preview.h"

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
    CDC memory;
    CBitmap bitmap;
    memory.CreateCompatibleDC(&dc);
    bitmap.CreateCompatibleBitmap(&dc, client.Width(), client.Height());
    CBitmap* former = memory.SelectObject(&bitmap);
    memory.FillSolidRect(&client, kDrawingPaper);
    ScenePlace place;
    place.size = client.Size();
    place.Fit(m_scene.extents());
    PaintScene(memory, m_scene, place);
    dc.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(former);
}

BOOL CScenePreview::OnEraseBkgnd(CDC*) { return TRUE; }

void CScenePreview::OnSize(UINT, int, int) { Invalidate(); }
