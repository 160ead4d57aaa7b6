// CDrawingLock: tells other programs that a drawing is being edited, and learns it from them, by a small file
// beside the drawing. It is held open while the lock is, so that one that a crash has left behind holds
// nobody.
#pragma once

#include <afxwin.h>

#include <utility>

class CDrawingLock {
public:
    enum class Result {
        kHeld,        ///< the lock is ours
        kInUse,       ///< another program holds it
        kImpossible,  ///< there can be no lock here, as in a folder that can't be written
    };

    CDrawingLock() = default;
    ~CDrawingLock() { Release(); }
    CDrawingLock(CDrawingLock&& other) noexcept { *this = std::move(other); }
    CDrawingLock& operator=(CDrawingLock&& other) noexcept;
    CDrawingLock(const CDrawingLock&) = delete;
    CDrawingLock& operator=(const CDrawingLock&) = delete;

    /// Locks the drawing at `path` in place of what is locked now; if it is in use, `holder` says by whom.
    Result Take(const CString& path, CString& holder);
    void Release();
    /// Whether this is the lock of that drawing.
    bool Holds(const CString& path) const {
        return m_file != INVALID_HANDLE_VALUE && m_path.CompareNoCase(path) == 0;
    }

private:
    HANDLE m_file = INVALID_HANDLE_VALUE;  // goes away with the handle
    CString m_path;                        ///< of the drawing
};
