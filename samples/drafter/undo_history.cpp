#include "undo_history.h"

#include <utility>

namespace {

constexpr std::size_t kMostSteps = 200;

}  // namespace

CUndoHistory::CUndoHistory(OdDbDatabasePtr drawing) : m_drawing(std::move(drawing)), m_recorder(m_drawing) {}

bool CUndoHistory::Commit(const OdString& name) {
    auto change = m_recorder.take();
    const bool isChanged = !change->isEmpty();
    if (isChanged) {
        if (m_saved && *m_saved > m_done) m_saved.reset();
        m_steps.resize(m_done);
        m_steps.push_back({name, std::move(change)});
        ++m_done;
        if (m_steps.size() > kMostSteps) dropOldest();
    }
    showModified();
    return isChanged;
}

void CUndoHistory::dropOldest() {
    m_steps.erase(m_steps.begin());
    --m_done;
    if (m_saved == 0u)
        m_saved.reset();
    else if (m_saved)
        --*m_saved;
}

void CUndoHistory::Rollback() {
    m_recorder.take()->exchange();
    showModified();
}

bool CUndoHistory::Undo() {
    Commit(OdString());
    if (!CanUndo()) return false;
    m_steps[--m_done].change->exchange();
    showModified();
    return true;
}

bool CUndoHistory::Redo() {
    Commit(OdString());
    if (!CanRedo()) return false;
    m_steps[m_done++].change->exchange();
    showModified();
    return true;
}

void CUndoHistory::MarkSaved() {
    Commit(OdString());
    m_saved = m_done;
    showModified();
}
