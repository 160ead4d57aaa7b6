#include "drawing_lock.h"

namespace {

constexpr const wchar_t* kExtension = L".lock";
constexpr DWORD kLongestHolder = 512;  // bytes

/// User and computer, as the lock shows them to others.
CString ownName() {
    wchar_t user[257] = {}, computer[257] = {};
    DWORD userLength = 257, computerLength = 257;
    if (!::GetUserNameW(user, &userLength)) user[0] = 0;
    if (!::GetComputerNameW(computer, &computerLength)) computer[0] = 0;
    CString name;
    name.Format(L"%s (%s)", user, computer);
    return name;
}

CString holderOf(const CString& lock) {
    const HANDLE file =
        ::CreateFileW(lock, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    char bytes[kLongestHolder + 1] = {};
    DWORD count = 0;
    if (!::ReadFile(file, bytes, kLongestHolder, &count, nullptr)) count = 0;
    ::CloseHandle(file);
    wchar_t text[kLongestHolder + 1] = {};
    ::MultiByteToWideChar(CP_UTF8, 0, bytes, static_cast<int>(count), text, kLongestHolder);
    return text;
}

void writeHolder(HANDLE file) {
    char bytes[kLongestHolder] = {};
    const CString name = ownName();
    const int count =
        ::WideCharToMultiByte(CP_UTF8, 0, name, name.GetLength(), bytes, kLongestHolder, nullptr, nullptr);
    DWORD written = 0;
    // What a crash has left behind may be longer.
    ::SetEndOfFile(file);
    if (count > 0) ::WriteFile(file, bytes, static_cast<DWORD>(count), &written, nullptr);
    ::FlushFileBuffers(file);
}

}  // namespace

CDrawingLock& CDrawingLock::operator=(CDrawingLock&& other) noexcept {
    if (this == &other) return *this;
    Release();
    m_file = std::exchange(other.m_file, INVALID_HANDLE_VALUE);
    m_path = std::exchange(other.m_path, CString());
    return *this;
}

CDrawingLock::Result CDrawingLock::Take(const CString& path, CString& holder) {
    if (Holds(path)) return Result::kHeld;
    const CString lock = path + kExtension;
    const HANDLE file = ::CreateFileW(lock, GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        if (::GetLastError() != ERROR_SHARING_VIOLATION) return Result::kImpossible;
        holder = holderOf(lock);
        return Result::kInUse;
    }
    Release();
    m_file = file;
    m_path = path;
    writeHolder(file);
    return Result::kHeld;
}

void CDrawingLock::Release() {
    if (m_file != INVALID_HANDLE_VALUE) ::CloseHandle(m_file);
    m_file = INVALID_HANDLE_VALUE;
    m_path.Empty();
}
