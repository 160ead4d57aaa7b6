// PictureStore: the pictures of the drawings that are open, each unpacked once and kept within a limit.
//
//     PictureStore::Shared().source(folder, PictureReading::kAll)     for SceneOptions::picture
#pragma once

#include <cstdint>
#include <list>
#include <mutex>
#include <string>

#include "pictures/scene_picture.h"
#include "scene_options.h"
#include "standin_api.h"

/// What is read when a scene asks for a picture.
enum class PictureReading {
    kAll,       ///< files, for scenes that another thread builds, and where a picture may take its time
    kUnpacked,  ///< nothing: what isn't unpacked yet comes later
};

/// May be used by any thread.
class STANDIN_API PictureStore {
public:
    /// A store that keeps so many bytes of pixels at most.
    explicit PictureStore(std::size_t mostBytes) : m_mostBytes(mostBytes) {}
    PictureStore(const PictureStore&) = delete;
    PictureStore& operator=(const PictureStore&) = delete;
    static PictureStore& Shared();

    /// The picture in a file, as the file is now; null if there is none, or no room for it beside those that
    /// scenes show. Its present size and time of writing are asked for each time.
    FoundPicture picture(const std::wstring& path, PictureReading reading);
    /// The pictures that a drawing in `folder` names, by PicturePlaces. The store outlives the source.
    ScenePictureFile source(const std::wstring& folder, PictureReading reading);
    /// What the kept pictures take up.
    std::size_t bytes();

private:
    struct FileState {
        std::uint64_t size = 0, written = 0;
        friend bool operator==(const FileState&, const FileState&) = default;
    };
    struct Kept {
        std::wstring path;
        FileState state;
        std::shared_ptr<const ScenePicture> picture;  ///< null for a file that is no picture
    };
    static bool stateOf(const std::wstring& path, FileState& state);
    bool find(const std::wstring& path, const FileState& state, FoundPicture& found);
    FoundPicture keep(Kept kept);
    std::size_t bytesKept() const;

    std::mutex m_mutex;
    std::size_t m_mostBytes;
    std::list<Kept> m_kept;  ///< the one that was asked for last is the first
};
