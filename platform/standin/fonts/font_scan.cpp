#include "font_scan.h"

#include "font_storage.h"

namespace {

std::vector<FontFileStamp> listSources(const FontSources& sources, const std::atomic<bool>& stop) {
    std::vector<FontFileStamp> listed;
    for (const std::wstring& folder : sources.folders) {
        if (stop) return listed;
        std::vector<FontFileStamp> files = listFontFolder(folder);
        listed.insert(listed.end(), std::make_move_iterator(files.begin()),
                      std::make_move_iterator(files.end()));
    }
    for (const std::wstring& path : sources.files) {
        FontFileStamp stamp;
        if (isFontFileName(path) && stampOfFile(path, stamp)) listed.push_back(std::move(stamp));
    }
    return listed;
}

}  // namespace

bool scanFonts(const FontSources& sources, FontCache& cache, const std::atomic<bool>& stop,
               std::vector<FoundFont>& found) {
    const std::vector<FontFileStamp> listed = listSources(sources, stop);
    found.reserve(found.size() + listed.size());
    for (const FontFileStamp& stamp : listed) {
        if (stop) return false;
        const FontFile* known = cache.find(stamp);
        FontFile file = known ? *known : readFontFile(stamp.path);
        const bool wasRead =
            file.problem != FontProblem::kMissing && file.problem != FontProblem::kUnreadable;
        if (!known && wasRead) cache.put(stamp, file);
        if (file.kind != FontKind::kNone) found.push_back({stamp.path, std::move(file)});
    }
    if (stop) return false;
    cache.forgetMissing(sources.folders, listed);
    return true;
}
