// CUndoHistory: the changes of one drawing, to be undone and redone one by one, each with its name for the
// menu. It also knows which of them the saved file holds. Knows no window.
//
//     CDrawingChange change(history);
//     ... the drawing is edited, by whatever functions ...
//     change.Keep(L"Properties");  // without this nothing of it stays
#pragma once

#include <optional>
#include <vector>

#include <od_db.h>
#include <od_db_change.h>

class CUndoHistory {
public:
    /// From now on every change of `drawing` is noted; as it is now it counts as saved.
    explicit CUndoHistory(OdDbDatabasePtr drawing);

    /// Makes one step of all that was changed since the last one; false if nothing was, and no step is made.
    /// What was undone can't be redone any more then.
    bool Commit(const OdString& name);
    /// Takes back all that was changed since the last step.
    void Rollback();

    bool CanUndo() const { return m_done > 0; }
    bool CanRedo() const { return m_done < m_steps.size(); }
    /// Name of the step that would be undone or redone; empty if there is none.
    OdString UndoName() const { return CanUndo() ? m_steps[m_done - 1].name : OdString(); }
    OdString RedoName() const { return CanRedo() ? m_steps[m_done].name : OdString(); }
    /// Undoes or redoes one step; false if there is none. What was changed without a step since then becomes
    /// one without a name first.
    bool Undo();
    bool Redo();

    /// The file now holds the drawing as it is: it counts as modified except in this state.
    void MarkSaved();

private:
    struct Step {
        OdString name;
        std::unique_ptr<OdDbChange> change;
    };
    void dropOldest();
    void showModified() { m_drawing->setModified(m_saved != m_done); }

    OdDbDatabasePtr m_drawing;
    OdDbChangeRecorder m_recorder;
    std::vector<Step> m_steps;
    std::size_t m_done = 0;  ///< count of the steps that aren't undone
    std::optional<std::size_t> m_saved =
        0;  ///< count of the steps in the file; nothing if it can't be reached
};

/// One change of a drawing: all of it once it is kept, and else nothing, also when an exception passes.
class CDrawingChange {
public:
    explicit CDrawingChange(CUndoHistory& history) : m_history(history) {}
    ~CDrawingChange() {
        if (!m_isKept) m_history.Rollback();
    }
    CDrawingChange(const CDrawingChange&) = delete;
    CDrawingChange& operator=(const CDrawingChange&) = delete;

    /// Makes a step of it; false if nothing was changed.
    bool Keep(const OdString& name) {
        m_isKept = true;
        return m_history.Commit(name);
    }

private:
    CUndoHistory& m_history;
    bool m_isKept = false;
};
