// What comes from the system: its version, the user's folder for the product's files, the work area.
#include <gtest/gtest.h>

#include <ktut.h>

#include <cstdlib>
#include <filesystem>

#ifdef _WIN32
#include <windows.h>

#include <shlobj.h>
#endif

namespace {

namespace fs = std::filesystem;

}  // namespace

#ifdef _WIN32

TEST(System, HasItsTrueVersion) {
    OSVERSIONINFOW info = {};
    info.dwOSVersionInfoSize = sizeof info;
    using Question = LONG(WINAPI*)(OSVERSIONINFOW*);
    const auto ask =
        reinterpret_cast<Question>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion"));
    ASSERT_EQ(ask(&info), 0);
    ASSERT_GE(info.dwMajorVersion, 6u);
    EXPECT_EQ(static_cast<DWORD>(ktutOSVersion()) / 100, info.dwMajorVersion);
    EXPECT_EQ(static_cast<DWORD>(ktutOSVersion()) % 100, info.dwMinorVersion);
}

TEST(System, FilesOfTheUserLieBelowTheApplicationData) {
    wchar_t data[MAX_PATH] = L"";
    ASSERT_EQ(::SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, data), S_OK);
    const std::wstring wanted = std::wstring(data) + L"\\Velmora\\ktui";
    std::error_code problem;
    fs::remove_all(fs::path(data) / L"Velmora", problem);
    OdString folder;
    ASSERT_TRUE(ktutGetAppDataDir(folder));
    EXPECT_EQ(folder, wanted.c_str());
    EXPECT_TRUE(fs::is_directory(wanted)) << "it is made if it is missing";
    EXPECT_TRUE(ktutGetAppDataDir(folder)) << "and may be there";
}

TEST(System, FolderOfTheProgramEndsInASeparator) {
    wchar_t file[MAX_PATH] = L"";
    ASSERT_NE(::GetModuleFileNameW(nullptr, file, MAX_PATH), 0u);
    const std::wstring whole(file);
    const OdString folder = ktutProgramFolder();
    EXPECT_EQ(folder, whole.substr(0, whole.rfind(L'\\') + 1).c_str());
    EXPECT_TRUE(fs::is_directory(folder.c_str()));
}

TEST(System, TheWorkAreaIsThatOfTheMonitor) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    const HMONITOR primary = ::MonitorFromPoint(POINT{0, 0}, MONITOR_DEFAULTTOPRIMARY);
    ASSERT_TRUE(::GetMonitorInfoW(primary, &info));
    RECT area = {1, 2, 3, 4};
    ASSERT_TRUE(ktutGetWorkArea(&area));
    EXPECT_TRUE(::EqualRect(&area, &info.rcWork));
    // A window that no monitor shows belongs to the nearest.
    const HWND window = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, -30000, -30000, 10, 10, nullptr,
                                          nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    area = {1, 2, 3, 4};
    EXPECT_TRUE(ktutGetWorkArea(&area, window));
    EXPECT_TRUE(::EqualRect(&area, &info.rcWork));
    ::DestroyWindow(window);
    EXPECT_FALSE(ktutGetWorkArea(nullptr));
}

#else

TEST(System, WithoutSuchANumberHasNone) { EXPECT_EQ(ktutOSVersion(), 0); }

TEST(System, FilesOfTheUserLieWhereTheSystemWantsThem) {
    const fs::path base = fs::temp_directory_path() / "ktut_system_test";
    fs::remove_all(base);
    ASSERT_EQ(::setenv("XDG_DATA_HOME", (base / "data").c_str(), 1), 0);
    OdString folder;
    ASSERT_TRUE(ktutGetAppDataDir(folder));
    EXPECT_EQ(odUtf8(folder.c_str()), (base / "data" / "Velmora" / "ktui").string());
    EXPECT_TRUE(fs::is_directory(base / "data" / "Velmora" / "ktui"));
    ::setenv("XDG_DATA_HOME", "", 1);
    ::setenv("HOME", (base / "home").c_str(), 1);
    ASSERT_TRUE(ktutGetAppDataDir(folder)) << "an empty setting counts as none";
    EXPECT_EQ(odUtf8(folder.c_str()), (base / "home" / ".local" / "share" / "Velmora" / "ktui").string());
    ::unsetenv("XDG_DATA_HOME");
    ::setenv("HOME", "", 1);
    folder = L"as it was";
    EXPECT_FALSE(ktutGetAppDataDir(folder));
    EXPECT_EQ(folder, L"as it was");
    ::setenv("HOME", "/dev/null", 1);
    EXPECT_FALSE(ktutGetAppDataDir(folder)) << "no folder can be made there";
    fs::remove_all(base);
}

#endif
