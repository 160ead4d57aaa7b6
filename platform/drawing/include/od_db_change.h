// What a program changed in a drawing, noted while it happens, so that it can be taken back and done again.
//
//     OdDbChangeRecorder recorder(drawing);
//     ... the drawing is edited ...
//     auto change = recorder.take();
//     change->exchange();  // the drawing is as it was
//     change->exchange();  // and as it became
//
// Objects that were made meanwhile are erased when a change is taken back, and erased ones come back under
// the id that they had. Changes must be exchanged in the order of a stack: the last one that was taken first.
#pragma once

#include <memory>
#include "od_db_database.h"

struct OdDbChangeNotes;

/// One change. It keeps its drawing alive.
class ODRT_API OdDbChange {
public:
    ~OdDbChange();
    OdDbChange(const OdDbChange&) = delete;
    OdDbChange& operator=(const OdDbChange&) = delete;

    /// Whether nothing is otherwise than before: what was set to the value that it had doesn't count.
    bool isEmpty() const;
    /// Takes the change back, or does it again if it is taken back. No recorder notes this; the drawing
    /// counts as modified. Nothing happens if the drawing was read anew meanwhile.
    void exchange();

private:
    friend class OdDbChangeRecorder;
    explicit OdDbChange(std::unique_ptr<OdDbChangeNotes> notes);
    std::unique_ptr<OdDbChangeNotes> m_notes;
};

/// Notes what is changed in a drawing for as long as it lives; one at a time for a drawing. A drawing that is
/// read anew is no longer noted.
class ODRT_API OdDbChangeRecorder {
public:
    explicit OdDbChangeRecorder(const OdDbDatabasePtr& drawing);
    ~OdDbChangeRecorder();
    OdDbChangeRecorder(const OdDbChangeRecorder&) = delete;
    OdDbChangeRecorder& operator=(const OdDbChangeRecorder&) = delete;

    /// What was changed since the recorder was made or asked last; never null.
    std::unique_ptr<OdDbChange> take();

private:
    OdDbDatabasePtr m_drawing;
    std::unique_ptr<OdDbChangeNotes> m_notes;
};
