// Counts what a process holds, so that a test can show that opening and closing something leaves nothing
// behind.
#pragma once

#include <cstddef>

/// What the calling process and thread hold at one moment.
struct HeldObjects {
    int gdiObjects = 0;         ///< pens, brushes, fonts, bitmaps, regions, device contexts
    int windows = 0;            ///< of this thread, children included
    int kernelHandles = 0;      ///< events, keys, files and the like
    std::size_t heapBytes = 0;  ///< in use in all heaps of the process
    std::size_t heapBlocks = 0;
};

/// Counts now. Takes some milliseconds.
HeldObjects count_held_objects();
