#include <filesystem>
#include <string>

#include "probe.h"
#include "ui_test.h"

namespace {

namespace fs = std::filesystem;

/// A folder with the probe and the libraries, but without the resource library.
class BareFolder {
public:
    BareFolder() : m_folder(fs::temp_directory_path() / L"ktui-without-resources") {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
        const fs::path binaries = fs::path(ui_test::program_path().GetString()).parent_path();
        for (const fs::directory_entry& entry : fs::directory_iterator(binaries)) {
            const bool wanted = entry.path().extension() == L".dll" || entry.path().filename() == kProbe;
            if (wanted && entry.path().filename() != L"ktdsres.dll")
                fs::copy_file(entry.path(), m_folder / entry.path().filename());
        }
    }
    ~BareFolder() {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    /// Runs the probe and answers its exit code.
    DWORD runProbe() const { return ui_test::run_probe((m_folder / kProbe).wstring(), m_folder.wstring()); }

private:
    static constexpr const wchar_t* kProbe = L"without_resources_probe.exe";
    fs::path m_folder;
};

}  // namespace

TEST(MissingResourceLibrary, LeavesTheToolkitAtWorkWithItsDefaultTexts) {
    EXPECT_EQ(BareFolder().runProbe(), 0u);
}
