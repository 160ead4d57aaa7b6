#include "system_file.h"

#ifdef _WIN32

namespace kmfc::system_file {
namespace {

DWORD access_of(UINT flags) {
    switch (flags & 3) {
        case CFile::modeWrite: return GENERIC_WRITE;
        case CFile::modeReadWrite: return GENERIC_READ | GENERIC_WRITE;
        default: return GENERIC_READ;
    }
}

DWORD sharing_of(UINT flags) {
    switch (flags & 0x70) {
        case CFile::shareDenyWrite: return FILE_SHARE_READ;
        case CFile::shareDenyRead: return FILE_SHARE_WRITE;
        case CFile::shareDenyNone: return FILE_SHARE_READ | FILE_SHARE_WRITE;
        default: return 0;
    }
}

DWORD creation_of(UINT flags) {
    if (!(flags & CFile::modeCreate)) return OPEN_EXISTING;
    return flags & CFile::modeNoTruncate ? OPEN_ALWAYS : CREATE_ALWAYS;
}

}  // namespace

void* open(LPCTSTR path, UINT flags) {
    SECURITY_ATTRIBUTES security = {sizeof security, nullptr, !(flags & CFile::modeNoInherit)};
    HANDLE file = ::CreateFileW(path, access_of(flags), sharing_of(flags), &security, creation_of(flags),
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    return file == INVALID_HANDLE_VALUE ? nullptr : file;
}

std::optional<UINT> read(void* file, void* data, UINT size) {
    DWORD count = 0;
    if (!::ReadFile(file, data, size, &count, nullptr)) return std::nullopt;
    return count;
}

bool write(void* file, const void* data, UINT size) {
    DWORD count = 0;
    return ::WriteFile(file, data, size, &count, nullptr) && count == size;
}

std::optional<ULONGLONG> seek(void* file, LONGLONG offset, UINT from) {
    LARGE_INTEGER distance, position;
    distance.QuadPart = offset;
    if (!::SetFilePointerEx(file, distance, &position, from)) return std::nullopt;
    return static_cast<ULONGLONG>(position.QuadPart);
}

std::optional<ULONGLONG> length(void* file) {
    LARGE_INTEGER size;
    if (!::GetFileSizeEx(file, &size)) return std::nullopt;
    return static_cast<ULONGLONG>(size.QuadPart);
}

bool truncate(void* file, ULONGLONG length) {
    return seek(file, static_cast<LONGLONG>(length), FILE_BEGIN) && ::SetEndOfFile(file);
}

bool flush(void* file) { return ::FlushFileBuffers(file); }
bool close(void* file) { return ::CloseHandle(file); }
bool rename(LPCTSTR from, LPCTSTR to) { return ::MoveFileW(from, to); }
bool remove(LPCTSTR path) { return ::DeleteFileW(path); }
LONG last_error() { return static_cast<LONG>(::GetLastError()); }

CString full_path(LPCTSTR path) {
    CString full;
    const DWORD needed = ::GetFullPathNameW(path, 0, nullptr, nullptr);
    if (needed == 0) return path;
    ::GetFullPathNameW(path, needed, full.GetBuffer(static_cast<int>(needed)), nullptr);
    full.ReleaseBuffer();
    return full;
}

}  // namespace kmfc::system_file

int PASCAL CFileException::OsErrorToException(LONG lOsError) {
    switch (lOsError) {
        case ERROR_SUCCESS: return none;
        case ERROR_FILE_NOT_FOUND: return fileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_INVALID_DRIVE: return badPath;
        case ERROR_TOO_MANY_OPEN_FILES: return tooManyOpenFiles;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS: return accessDenied;
        case ERROR_INVALID_HANDLE: return invalidFile;
        case ERROR_CURRENT_DIRECTORY: return removeCurrentDir;
        case ERROR_NEGATIVE_SEEK:
        case ERROR_SEEK: return badSeek;
        case ERROR_SHARING_VIOLATION: return sharingViolation;
        case ERROR_LOCK_VIOLATION: return lockViolation;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return diskFull;
        case ERROR_HANDLE_EOF: return endOfFile;
        case ERROR_CRC:
        case ERROR_NOT_READY:
        case ERROR_READ_FAULT:
        case ERROR_WRITE_FAULT: return hardIO;
        default: return genericException;
    }
}

#else

#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "kmfc/text_conversion.h"

namespace kmfc::system_file {
namespace {

std::FILE* as_file(void* file) { return static_cast<std::FILE*>(file); }

const char* mode_of(UINT flags) {
    const bool fresh = (flags & CFile::modeCreate) && !(flags & CFile::modeNoTruncate);
    if (fresh) return "w+b";
    return (flags & 3) == CFile::modeRead ? "rb" : "r+b";
}

}  // namespace

void* open(LPCTSTR path, UINT flags) {
    const std::string name = narrow(path);
    std::FILE* file = std::fopen(name.c_str(), mode_of(flags));
    if (!file && errno == ENOENT && (flags & CFile::modeCreate)) file = std::fopen(name.c_str(), "w+b");
    return file;
}

std::optional<UINT> read(void* file, void* data, UINT size) {
    const size_t count = std::fread(data, 1, size, as_file(file));
    if (std::ferror(as_file(file))) return std::nullopt;
    return static_cast<UINT>(count);
}

bool write(void* file, const void* data, UINT size) {
    return std::fwrite(data, 1, size, as_file(file)) == size;
}

std::optional<ULONGLONG> seek(void* file, LONGLONG offset, UINT from) {
    constexpr int kOrigins[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    if (from > 2 || std::fseek(as_file(file), static_cast<long>(offset), kOrigins[from]) != 0)
        return std::nullopt;
    return static_cast<ULONGLONG>(std::ftell(as_file(file)));
}

std::optional<ULONGLONG> length(void* file) {
    const long at = std::ftell(as_file(file));
    const auto size = seek(file, 0, CFile::end);
    if (at < 0 || !seek(file, at, CFile::begin)) return std::nullopt;
    return size;
}

bool truncate(void* file, ULONGLONG length) {
    return flush(file) && ::ftruncate(fileno(as_file(file)), static_cast<off_t>(length)) == 0 &&
           seek(file, static_cast<LONGLONG>(length), CFile::begin);
}

bool flush(void* file) { return std::fflush(as_file(file)) == 0; }
bool close(void* file) { return std::fclose(as_file(file)) == 0; }
bool rename(LPCTSTR from, LPCTSTR to) { return std::rename(narrow(from).c_str(), narrow(to).c_str()) == 0; }
bool remove(LPCTSTR path) { return std::remove(narrow(path).c_str()) == 0; }
LONG last_error() { return errno; }
CString full_path(LPCTSTR path) { return path; }

}  // namespace kmfc::system_file

int PASCAL CFileException::OsErrorToException(LONG lOsError) {
    switch (lOsError) {
        case 0: return none;
        case ENOENT: return fileNotFound;
        case ENOTDIR:
        case ENAMETOOLONG: return badPath;
        case EMFILE:
        case ENFILE: return tooManyOpenFiles;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR: return accessDenied;
        case EBADF: return invalidFile;
        case EINVAL: return badSeek;
        case ENOSPC: return diskFull;
        case EIO: return hardIO;
        default: return genericException;
    }
}

#endif
