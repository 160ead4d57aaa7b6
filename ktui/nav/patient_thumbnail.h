// What a pane shows of its file while it must not wait: nothing, words, the preview, words again. Private to
// the library.
#pragma once

#include <memory>

#include <ktui/nav/thumbnail_reading.h>

class PatientThumbnail {
public:
    /// `pane` outlives this object and is repainted when there is something new to show.
    explicit PatientThumbnail(CWnd& pane);

    /// Paints what there is of the file at `path` into the pane's area at the origin of `dc`, and has it read
    /// within `limit` milliseconds if that has not been asked for.
    void Paint(CDC& dc, SIZE area, const CString& path, unsigned limit);

private:
    enum class State { kReading, kReadingSlowly, kRead, kGivenUp };
    void ask(const CString& path, SIZE area, unsigned limit);
    void hear(BackgroundReading& reading, ReadingEvent event);
    void say(CDC& dc, SIZE area, const CString& words) const;

    CWnd& m_pane;
    CString m_path;  ///< of the file asked for, and the room that its preview has
    CSize m_room{-1, -1};
    std::shared_ptr<ThumbnailReading> m_reading;  ///< of that file; null where it was given up
    State m_state = State::kReading;
    CBackgroundReader m_reader;
};
