// How a DXF file is read, and what was put right in it.
#pragma once

#include <cstddef>
#include <vector>
#include "od_string.h"

/// One place in a file that was put right while it was read.
struct OdDxfMend {
    int line = 0;          ///< counted from 1; 0 in binary files
    std::size_t byte = 0;  ///< in a binary file, where the group begins, counted from 0
    OdString text;         ///< one sentence in English: what was wrong, and what stands for it now
};

/// The caller's wish, and the answer.
struct OdDxfReading {
    /// Refuse a file at the first thing that would have to be mended.
    bool strict = false;
    /// What was mended, in the order of the file; the first kMostMends of it.
    std::vector<OdDxfMend> mends;
    /// How many places were mended, listed or not.
    std::size_t mendCount = 0;

    static constexpr std::size_t kMostMends = 1000;
};
