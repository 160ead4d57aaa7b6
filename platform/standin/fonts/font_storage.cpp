#include "font_storage.h"

#include <od_string.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
fs::path toPath(const std::wstring& text) { return text; }
std::FILE* createFile(const fs::path& path) { return _wfopen(path.c_str(), L"wb"); }
unsigned long processId() { return ::GetCurrentProcessId(); }
bool moveOver(const fs::path& from, const fs::path& to) {
    return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

std::int64_t numberOf(const FILETIME& time) {
    return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}
std::uint64_t sizeOf(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

/// Closes a search when it goes.
struct Search {
    HANDLE handle;
    explicit Search(HANDLE found) : handle(found) {}
    ~Search() {
        if (handle != INVALID_HANDLE_VALUE) ::FindClose(handle);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;
};

/// Every font file of `folder` (which ends in a separator); the listing brings the stamps with it.
std::vector<FontFileStamp> listFiles(const std::wstring& folder) {
    std::vector<FontFileStamp> files;
    WIN32_FIND_DATAW entry = {};
    const std::wstring pattern = folder + L"*";
    const Search search(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch,
                                           nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (search.handle == INVALID_HANDLE_VALUE) return files;
    do {
        if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY || !isFontFileName(entry.cFileName)) continue;
        files.push_back({folder + entry.cFileName, sizeOf(entry.nFileSizeHigh, entry.nFileSizeLow),
                         numberOf(entry.ftLastWriteTime)});
    } while (::FindNextFileW(search.handle, &entry));
    return files;
}

constexpr wchar_t kSeparator = L'\\';
#else
fs::path toPath(const std::wstring& text) { return odUtf8(text); }
std::FILE* createFile(const fs::path& path) { return std::fopen(path.c_str(), "wb"); }
unsigned long processId() { return 0; }
bool moveOver(const fs::path& from, const fs::path& to) {
    std::error_code problem;
    fs::rename(from, to, problem);
    return !problem;
}

std::vector<FontFileStamp> listFiles(const std::wstring& folder) {
    std::vector<FontFileStamp> files;
    std::error_code problem;
    for (fs::directory_iterator entry(toPath(folder), problem), end; !problem && entry != end;
         entry.increment(problem)) {
        FontFileStamp stamp;
        const std::wstring name(odWide(entry->path().filename().string()).view());
        if (isFontFileName(name) && stampOfFile(folder + name, stamp)) files.push_back(std::move(stamp));
    }
    return files;
}

constexpr wchar_t kSeparator = L'/';
#endif

}  // namespace

std::vector<FontFileStamp> listFontFolder(const std::wstring& folder) {
    if (folder.empty()) return {};
    std::wstring whole = folder;
    if (whole.back() != L'\\' && whole.back() != L'/') whole += kSeparator;
    std::vector<FontFileStamp> files = listFiles(whole);
    std::sort(files.begin(), files.end(), [](const FontFileStamp& a, const FontFileStamp& b) {
        const int order = odCompareFolded(a.path, b.path);
        return order != 0 ? order < 0 : a.path < b.path;
    });
    return files;
}

#ifdef _WIN32

bool stampOfFile(const std::wstring& path, FontFileStamp& stamp) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
        data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
        return false;
    stamp = {path, sizeOf(data.nFileSizeHigh, data.nFileSizeLow), numberOf(data.ftLastWriteTime)};
    return true;
}

std::int64_t timeOfFolder(const std::wstring& folder) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    const bool found = ::GetFileAttributesExW(folder.c_str(), GetFileExInfoStandard, &data) &&
                       data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    return found ? numberOf(data.ftLastWriteTime) : 0;
}

#else

bool stampOfFile(const std::wstring& path, FontFileStamp& stamp) {
    std::error_code problem;
    const fs::path file = toPath(path);
    if (!fs::is_regular_file(file, problem)) return false;
    const auto size = fs::file_size(file, problem);
    const auto time = fs::last_write_time(file, problem);
    if (problem) return false;
    stamp = {path, size, time.time_since_epoch().count()};
    return true;
}

std::int64_t timeOfFolder(const std::wstring& folder) {
    std::error_code problem;
    const fs::path path = toPath(folder);
    if (!fs::is_directory(path, problem)) return 0;
    const auto time = fs::last_write_time(path, problem);
    return problem ? 0 : time.time_since_epoch().count();
}

#endif

bool replaceFile(const std::wstring& path, std::string_view bytes) {
    if (path.empty()) return false;
    const fs::path target = toPath(path);
    std::error_code problem;
    fs::create_directories(target.parent_path(), problem);
    // Two programs may save at once: each has a file of its own, and the last one wins.
    fs::path beside = target;
    beside += ".new" + std::to_string(processId());
    std::FILE* file = createFile(beside);
    if (!file) return false;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const bool closed = std::fclose(file) == 0;
    if (written && closed && moveOver(beside, target)) return true;
    fs::remove(beside, problem);
    return false;
}
