// Looks through folders for fonts, with the help of a cache.
#pragma once

#include <atomic>
#include <string>
#include <vector>

#include "font_cache.h"
#include "font_catalogue.h"

/// Where fonts are looked for.
struct FontSources {
    std::vector<std::wstring> folders;  ///< earlier ones win where a style is there twice
    std::vector<std::wstring> files;    ///< single files by their whole paths, behind all folders

    bool operator==(const FontSources&) const = default;
};

/// Puts the font files of `sources` into `found`, in the order of folders and names. Files that `cache` knows
/// as they are now aren't opened; what is read goes into it, and what is gone leaves it. A file that can't be
/// opened now isn't kept, so that it is tried again. False, with both unfinished, if `stop` became true.
STANDIN_API bool scanFonts(const FontSources& sources, FontCache& cache, const std::atomic<bool>& stop,
                           std::vector<FoundFont>& found);
