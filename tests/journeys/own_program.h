// A copy of the drafter in a folder of the test's own, with the files that lie beside it, so that a test can
// spoil them and nobody else notices.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "drafter_driver.h"

namespace journey {

class OwnProgram {
public:
    OwnProgram() : m_folder(scratchPath(L"drafter of a journey")) {
        namespace fs = std::filesystem;
        const fs::path from = programFolder();
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
        fs::copy_file(from / L"drafter.exe", m_folder / L"drafter.exe");
        for (const wchar_t* each : {L"extensions", L"fonts", L"support", L"Plot Styles"})
            fs::copy(from / each, m_folder / each, fs::copy_options::recursive);
        // The libraries stay where they are.
        wchar_t path[8192] = {};
        ::GetEnvironmentVariableW(L"PATH", path, 8192);
        if (std::wstring(path).find(from.wstring()) == std::wstring::npos)
            ::SetEnvironmentVariableW(L"PATH", (from.wstring() + L";" + path).c_str());
    }
    ~OwnProgram() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    OwnProgram(const OwnProgram&) = delete;
    OwnProgram& operator=(const OwnProgram&) = delete;

    /// With a backslash at the end, as Drafter takes it.
    std::wstring folder() const { return m_folder.wstring() + L"\\"; }
    std::filesystem::path file(const wchar_t* name) const { return m_folder / name; }

private:
    std::filesystem::path m_folder;
};

/// Writes a file, anew if it is there.
inline void writeFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

}  // namespace journey
