#include <ktui/dialogs/elastic.h>

#include <ktui/dialogs/kbui_dialog.h>

KbUiElastic::KbUiElastic(CKbUiDialog* dialog) : m_dialog(dialog) {}

KbUiElastic::~KbUiElastic() {
    for (INT_PTR i = 0; i < m_tags.GetSize(); ++i) delete m_tags[i];
}

int KbUiElastic::Register(unsigned id, KBUI_ELASTIC_KIND kind, int percentX, int percentY) {
    for (INT_PTR i = 0; i < m_tags.GetSize(); ++i) {
        // Kept: only the first percentage of a pair of id and kind counts.
        if (m_tags[i] != nullptr && m_tags[i]->m_id == id && m_tags[i]->m_kind == kind) return 1;
    }
    auto* tag = new _SControlTag;
    tag->m_id = id;
    tag->m_kind = kind;
    tag->m_percentX = percentX;
    tag->m_percentY = percentY;
    m_tags.Add(tag);
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
    m_found.resize(static_cast<size_t>(m_tags.GetSize()), nullptr);
    for (INT_PTR i = 0; i < m_tags.GetSize(); ++i) {
        if (m_tags[i] == nullptr) continue;
        const CSize step = AdvanceElasticTag(*m_tags[i], dx, dy);
        if (step.cx == 0 && step.cy == 0) continue;
        if (moveControl(*m_tags[i], step, m_found[static_cast<size_t>(i)])) moved = true;
    }
    return moved;
}

bool KbUiElastic::moveControl(const _SControlTag& tag, CSize step, HWND& known) const {
    known = findControl(known, tag.m_id);
    if (known == nullptr) return false;
    CRect rect;
    ::GetWindowRect(known, &rect);
    m_dialog->ScreenToClient(&rect);
    if (!ApplyElasticStep(tag.m_kind, step, rect)) return false;
    ::MoveWindow(known, rect.left, rect.top, rect.Width(), rect.Height(), FALSE);
    return true;
}

HWND KbUiElastic::findControl(HWND known, unsigned id) const {
    // The search goes through all controls of the dialog, so what it found is kept while it stays true. A
    // window that is gone has no parent.
    const int wanted = static_cast<int>(id);
    const bool stands =
        known != nullptr && ::GetParent(known) == m_dialog->m_hWnd && ::GetDlgCtrlID(known) == wanted;
    return stands ? known : ::GetDlgItem(m_dialog->m_hWnd, wanted);
}

void KbUiElastic::GetMinMaxInfo(MINMAXINFO& info) const {
    if (m_minExtent.m_width >= 0) info.ptMinTrackSize.x = m_minExtent.m_width;
    if (m_minExtent.m_height >= 0) info.ptMinTrackSize.y = m_minExtent.m_height;
    if (m_maxExtent.m_width >= 0) info.ptMaxTrackSize.x = m_maxExtent.m_width;
    if (m_maxExtent.m_height >= 0) info.ptMaxTrackSize.y = m_maxExtent.m_height;
}
