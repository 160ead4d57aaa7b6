#include <ktui/dialogs/elastic.h>

#include <ktui/dialogs/kbui_dialog.h>

KbUiElastic::KbUiElastic(CKbUiDialog* dialog) : m_dialog(dialog) {}

KbUiElastic::~KbUiElastic() {
    for (INT_PTR i = 0; i < m_tags.GetSize(); ++i) delete m_tags[i];
}

int KbUiElastic::Register(unsigned id, KBUI_ELASTIC_KIND kind, int percentX, int percentY) {
    Place place;
    place.m_owner = m_places.size();
    for (INT_PTR i = 0; i < m_tags.GetSize(); ++i) {
        if (m_tags[i]->m_id != id) continue;
        // Kept: only the first percentage of a pair of id and kind counts.
        if (m_tags[i]->m_kind == kind) return 1;
        place.m_owner = m_places[static_cast<size_t>(i)].m_owner;
    }
    auto* tag = new _SControlTag;
    tag->m_id = id;
    tag->m_kind = kind;
    tag->m_percentX = percentX;
    tag->m_percentY = percentY;
    m_tags.Add(tag);
    m_places.push_back(place);
    return 1;
}

void KbUiElastic::Resize(int cx, int cy) {
    bool moved = false;
    // Kept: minimising moves the controls by the full negative size and leaves (0, 0), and the next size
    // change then moves nothing.
    if (m_lastClient.cx > 0) moved = moveControls(cx - m_lastClient.cx, cy - m_lastClient.cy);
    m_lastClient = CSize(cx, cy);
    if (moved) m_dialog->InvalidateRect(nullptr, TRUE);
}

bool KbUiElastic::moveControls(int dx, int dy) {
    bool moved = false;
    for (Place& place : m_places) place.m_isRead = false;
    for (size_t i = 0; i < m_places.size(); ++i) {
        _SControlTag& tag = *m_tags[static_cast<INT_PTR>(i)];
        const CSize step = AdvanceElasticTag(tag, dx, dy);
        if (step.cx == 0 && step.cy == 0) continue;
        Place& place = m_places[m_places[i].m_owner];
        if (!place.m_isRead && !readPlace(place, tag.m_id)) continue;
        if (ApplyElasticStep(tag.m_kind, step, place.m_rect)) moved = true;
    }
    // What is moved is painted once, with the dialog: nothing is copied or drawn meanwhile.
    constexpr UINT kQuietly = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW;
    for (const Place& place : m_places) {
        if (!place.m_isRead || place.m_rect == place.m_before) continue;
        const CRect& rect = place.m_rect;
        UINT flags = kQuietly;
        if (rect.TopLeft() == place.m_before.TopLeft()) flags |= SWP_NOMOVE;
        if (rect.Size() == place.m_before.Size()) flags |= SWP_NOSIZE;
        ::SetWindowPos(place.m_control, nullptr, rect.left, rect.top, rect.Width(), rect.Height(), flags);
    }
    return moved;
}

HWND KbUiElastic::findControl(Place& place, unsigned id) const {
    // The search goes through all controls of the dialog, so what it found is kept while it stays true.
    const HWND known = place.m_control;
    const int wanted = static_cast<int>(id);
    // A window that is gone has no parent.
    const bool stands =
        known != nullptr && ::GetParent(known) == m_dialog->m_hWnd && ::GetDlgCtrlID(known) == wanted;
    if (!stands) place.m_control = ::GetDlgItem(m_dialog->m_hWnd, wanted);
    return place.m_control;
}

bool KbUiElastic::readPlace(Place& place, unsigned id) const {
    const HWND control = findControl(place, id);
    if (control == nullptr) return false;
    ::GetWindowRect(control, &place.m_before);
    m_dialog->ScreenToClient(&place.m_before);
    place.m_rect = place.m_before;
    place.m_isRead = true;
    return true;
}

void KbUiElastic::GetMinMaxInfo(MINMAXINFO& info) const {
    if (m_minExtent.m_width >= 0) info.ptMinTrackSize.x = m_minExtent.m_width;
    if (m_minExtent.m_height >= 0) info.ptMinTrackSize.y = m_minExtent.m_height;
    if (m_maxExtent.m_width >= 0) info.ptMaxTrackSize.x = m_maxExtent.m_width;
    if (m_maxExtent.m_height >= 0) info.ptMaxTrackSize.y = m_maxExtent.m_height;
}
