// How a drawing's scene comes into its view: at once where it is small, and else from a thread that builds
// it.
#include <algorithm>

#include "drawing_window.h"
#include "resource.h"
#include "scene_notice.h"

namespace {

// What is built at once, in the measure of SceneOptions::workLimit: some thousand objects, some hundredths of
// a second.
constexpr std::size_t kWorkAtOnce = 400'000;
constexpr UINT_PTR kPercentTimer = 1;
constexpr UINT kPercentInterval = 250;  // milliseconds

}  // namespace

void CDrawingWindow::Refresh(bool keepPlace) {
    const bool isOther = leaveSpace();
    if (isOther) keepPlace = false;
    const bool refits = !keepPlace || (m_refits && m_view.ShowsExtents());
    m_build.reset();
    m_isOutdated = m_isBehind = false;
    SceneOptions options = m_desk.ViewSceneOptions(drawing(), false);
    const std::size_t limit = std::exchange(options.workLimit, std::min(kWorkAtOnce, options.workLimit));
    Scene scene = BuildScene(drawing(), m_space, options);
    const bool isWhole = (!scene.isCut || limit <= kWorkAtOnce) && !scene.awaitsPictures;
    m_notice = UndrawnText(scene);
    if (isWhole || !m_wasShown || !keepPlace) {
        SceneBounds bounds(scene);
        showScene(std::move(scene), std::move(bounds), keepPlace);
    }
    m_wasShown = true;
    m_refits = refits && !isWhole;
    if (isOther)
        returnToPlace();
    else if (isWhole && keepPlace && refits)
        m_view.ZoomExtents();
    if (!isWhole) startBuild();
    showTabs();
    showTitle();
    m_desk.DrawingChanged(*this);
}

void CDrawingWindow::showScene(Scene scene, SceneBounds bounds, bool keepPlace) {
    m_view.SetSheet(sheetUnder(scene));
    m_view.SetScene(std::move(scene), std::move(bounds), keepPlace);
}

bool CDrawingWindow::leaveSpace() {
    const OdDbObjectId space = drawing().currentSpaceId();
    if (space == m_space) return false;
    if (!m_space.isNull()) m_places[m_space.handle()] = m_view.Place();
    m_space = space;
    return true;
}

void CDrawingWindow::returnToPlace() {
    const auto found = m_places.find(m_space.handle());
    if (found == m_places.end()) return;
    m_view.GoTo(found->second);
    m_refits = m_refits && found->second.showsExtents;
}

bool CDrawingWindow::RefreshIfOutdated() {
    if (m_wasShown && !m_isOutdated) return false;
    Refresh(m_wasShown);
    return true;
}

void CDrawingWindow::startBuild() {
    m_shownPercent = 0;
    m_build = std::make_unique<CSceneBuild>(drawing(), m_space, m_desk.ViewSceneOptions(drawing(), true),
                                            m_hWnd, WM_DRAFTER_SCENE);
    SetTimer(kPercentTimer, kPercentInterval, nullptr);
}

void CDrawingWindow::finishBuild() {
    Scene scene;
    SceneBounds bounds;
    m_build->Take(scene, bounds);
    m_build.reset();
    KillTimer(kPercentTimer);
    m_notice = UndrawnText(scene);
    showScene(std::move(scene), std::move(bounds), true);
    if (std::exchange(m_refits, false) && m_view.ShowsExtents()) m_view.ZoomExtents();
    m_desk.NoticeChanged(*this);
}

void CDrawingWindow::dropBuild() {
    if (!m_build) return;
    m_build.reset();
    KillTimer(kPercentTimer);
    m_isBehind = true;
    PostMessage(WM_DRAFTER_BEHIND);
}

bool CDrawingWindow::StopBuilding() {
    if (!m_build) return false;
    m_build->Stop();
    finishBuild();
    return true;
}

LRESULT CDrawingWindow::OnScene(WPARAM wParam, LPARAM) {
    if (m_build && m_build->number() == wParam) finishBuild();
    return 0;
}

/// Whoever changed the drawing usually has it shown anew by itself.
LRESULT CDrawingWindow::OnBehind(WPARAM, LPARAM) {
    if (m_isBehind) Refresh(true);
    return 0;
}

void CDrawingWindow::OnTimer(UINT_PTR timer) {
    if (timer != kPercentTimer) return CMDIChildWndEx::OnTimer(timer);
    if (!m_build || m_build->percent() == m_shownPercent) return;
    m_shownPercent = m_build->percent();
    m_desk.NoticeChanged(*this);
}

void CDrawingWindow::OnRedraw() { Refresh(true); }

CString CDrawingWindow::Notice() const {
    CString text;
    if (m_build) {
        text.Format(IDS_BUILDING_STATUS, m_shownPercent);
        return text;
    }
    text = MendedText(m_document->Reading());
    if (!text.IsEmpty() && !m_notice.IsEmpty()) text += L" ";
    return text + m_notice;
}
