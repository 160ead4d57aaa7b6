// A folder of a test's own with files in it; gone again with the object.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace ui_test {

class TemporaryFolder {
public:
    TemporaryFolder() {
        wchar_t place[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, place);
        static int number = 0;
        m_path = std::wstring(place) + L"standin " + std::to_wstring(::GetCurrentProcessId()) + L" " +
                 std::to_wstring(++number);
        ::CreateDirectoryW(m_path.c_str(), nullptr);
    }
    ~TemporaryFolder() {
        for (const std::wstring& file : m_files) ::DeleteFileW(file.c_str());
        ::RemoveDirectoryW(m_path.c_str());
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::wstring& path() const { return m_path; }
    /// Writes a file, anew if it is there; answers its path.
    std::wstring write(const wchar_t* name, std::string_view bytes) {
        const std::wstring path = m_path + L"\\" + name;
        const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        DWORD written = 0;
        ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        ::CloseHandle(file);
        m_files.push_back(path);
        return path;
    }

private:
    std::wstring m_path;
    std::vector<std::wstring> m_files;
};

}  // namespace ui_test
