// Folders with plot style tables, as the scan of the tables picker finds them; gone again after the test.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace ui_test {

class StyleTableFolders {
public:
    StyleTableFolders() = default;
    ~StyleTableFolders() {
        for (const std::wstring& file : m_files) ::DeleteFileW(file.c_str());
        for (auto folder = m_folders.rbegin(); folder != m_folders.rend(); ++folder)
            ::RemoveDirectoryW(folder->c_str());
    }
    StyleTableFolders(const StyleTableFolders&) = delete;
    StyleTableFolders& operator=(const StyleTableFolders&) = delete;

    /// Makes a folder; answers its path.
    std::wstring addFolder(const std::wstring& path) {
        ::CreateDirectoryW(path.c_str(), nullptr);
        m_folders.push_back(path);
        return path;
    }
    /// Makes a folder among the temporary ones.
    std::wstring addTemporaryFolder(const wchar_t* name) {
        wchar_t place[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, place);
        return addFolder(std::wstring(place) + name + std::to_wstring(::GetCurrentProcessId()));
    }
    /// Makes an empty file.
    void addFile(const std::wstring& path) {
        const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE) return;
        ::CloseHandle(file);
        m_files.push_back(path);
    }
    /// Folder of the program, with a backslash at the end.
    static std::wstring programFolder() {
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring file = path;
        return file.substr(0, file.rfind(L'\\') + 1);
    }

private:
    std::vector<std::wstring> m_files;
    std::vector<std::wstring> m_folders;
};

/// Makes `folder` the current one for as long as the object lives.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::wstring& folder) {
        ::GetCurrentDirectoryW(MAX_PATH, m_former);
        ::SetCurrentDirectoryW(folder.c_str());
    }
    ~CurrentFolder() { ::SetCurrentDirectoryW(m_former); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    wchar_t m_former[MAX_PATH] = {};
};

}  // namespace ui_test
