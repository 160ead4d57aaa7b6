#include "pictures/picture_store.h"

#include <afxwin.h>

#include <iterator>

#include "file_bytes.h"
#include "pictures/picture_decoder.h"
#include "pictures/picture_places.h"

namespace {

constexpr std::size_t kMostShared = sizeof(void*) > 4 ? 512u << 20 : 128u << 20;
constexpr std::size_t kLargestFile = 256u << 20;

std::uint64_t whole(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

}  // namespace

PictureStore& PictureStore::Shared() {
    static PictureStore store(kMostShared);
    return store;
}

/// False for what is no file.
bool PictureStore::stateOf(const std::wstring& path, FileState& state) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return false;
    if ((data.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0) return false;
    state.size = whole(data.nFileSizeHigh, data.nFileSizeLow);
    state.written = whole(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
    return true;
}

std::size_t PictureStore::bytesKept() const {
    std::size_t bytes = 0;
    for (const Kept& each : m_kept)
        if (each.picture) bytes += each.picture->bytes();
    return bytes;
}

std::size_t PictureStore::bytes() {
    const std::lock_guard lock(m_mutex);
    return bytesKept();
}

bool PictureStore::find(const std::wstring& path, const FileState& state, FoundPicture& found) {
    const std::lock_guard lock(m_mutex);
    for (auto each = m_kept.begin(); each != m_kept.end(); ++each) {
        if (each->path != path || !(each->state == state)) continue;
        m_kept.splice(m_kept.begin(), m_kept, each);
        found = {m_kept.front().picture, false};
        return true;
    }
    return false;
}

/// What scenes show counts as long as they show it; the rest goes where room is needed, the oldest first.
FoundPicture PictureStore::keep(Kept kept) {
    constexpr std::size_t kMostFiles = 1000;
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_kept, [&](const Kept& each) {
        return each.path == kept.path && (!each.picture || each.picture.use_count() == 1);
    });
    const std::size_t more = kept.picture ? kept.picture->bytes() : 0;
    for (auto each = m_kept.end(); each != m_kept.begin();) {
        if (bytesKept() + more <= m_mostBytes && m_kept.size() < kMostFiles) break;
        --each;
        if (!each->picture || each->picture.use_count() == 1) each = m_kept.erase(each);
    }
    if (bytesKept() + more > m_mostBytes) return {};
    m_kept.push_front(std::move(kept));
    return {m_kept.front().picture, false};
}

FoundPicture PictureStore::picture(const std::wstring& path, PictureReading reading) {
    FileState state;
    FoundPicture found;
    if (!stateOf(path, state) || find(path, state, found)) return found;
    if (reading == PictureReading::kUnpacked) return {nullptr, true};
    std::string bytes;
    Kept kept{path, state, nullptr};
    if (ReadFileBytes(path.c_str(), kLargestFile, bytes)) kept.picture = DecodePicture(bytes);
    return keep(std::move(kept));
}

ScenePictureFile PictureStore::source(const std::wstring& folder, PictureReading reading) {
    return [this, folder, reading](const OdString& name) {
        for (const std::wstring& path : PicturePlaces(name.view(), folder)) {
            FileState state;
            if (stateOf(path, state)) return picture(path, reading);
        }
        return FoundPicture{};
    };
}
