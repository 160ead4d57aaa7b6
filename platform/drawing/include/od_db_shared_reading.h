// Reading a drawing on a thread of its own while the user-interface thread goes on.
//
// Drawings are edited on the user-interface thread, and read there at any time. Another thread may read one
// too (open objects, walk through blocks and tables, ask for groups and variables) for as long as nothing is
// changed. So that nothing is, whoever has such a thread says how it is ended: that is called before any
// change, by whomever.
//
//     OdDbSharedReading reading(*drawing, [&] { thread.request_stop(); thread.join(); });
#pragma once

#include <functional>
#include <memory>

#include "odrt_api.h"

class OdDbDatabase;

/// As long as it lives, a drawing tells before it changes. Made and destroyed on the user-interface thread,
/// before the drawing goes.
class ODRT_API OdDbSharedReading {
public:
    /// `end` is called on the user-interface thread before anything in the drawing changes: before each
    /// single change, so also when nobody reads any more. When it returns, no other thread may read. It must
    /// not change the drawing, nor make or destroy an object of this class.
    OdDbSharedReading(OdDbDatabase& drawing, std::function<void()> end);
    ~OdDbSharedReading();
    OdDbSharedReading(const OdDbSharedReading&) = delete;
    OdDbSharedReading& operator=(const OdDbSharedReading&) = delete;

private:
    OdDbDatabase& m_drawing;
    std::unique_ptr<std::function<void()>> m_end;
};
