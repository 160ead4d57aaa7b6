// The folder of plot style tables is missing, empty or spoiled while a draughtsman picks plot styles, and
// comes back. A folder that may not be read is left out: permissions of folders are those of the system below
// Wine, which lets an administrator read everything; a table that another program holds stands for it.
#include <windows.h>

#include "../../platform/standin/resource.h"
#include "journey_fixture.h"
#include "own_program.h"

using namespace journey;

namespace {

/// The site plan, whose tables are velmora.stb and planting.stb, in a program of the test's own.
class StyleSheets : public Journey {
protected:
    StyleSheets() : sheets(program.file(L"Plot Styles")), aside(program.file(L"Aside")) {
        open(scratchCopy(L"site_plan.dxf"), program.folder());
    }
    ~StyleSheets() override { drafter.reset(); }

    std::filesystem::path sheet() const { return sheets / L"velmora.stb"; }

    /// What Properties and the plot style dialog behind it show.
    struct Shown {
        int names = 0;       ///< in the picker
        int styles = 0;      ///< in the dialog
        std::wstring sheet;  ///< line of the dialog
        std::wstring note;
    };
    Shown show(const char* name) {
        Shown shown;
        HWND dialog = drafter->openProperties();
        if (dialog == nullptr) return shown;
        shown.names = entryCount(item(dialog, IDC_PLOT_STYLE));
        EXPECT_GE(entryOf(item(dialog, IDC_PLOT_STYLE), L"Heavy"), 0) << name;
        drafter->pickLast(item(dialog, IDC_PLOT_STYLE));
        HWND styles = drafter->waitForDialogOf(dialog);
        if (styles == nullptr) return shown;
        shown.styles = static_cast<int>(::SendMessageW(item(styles, IDC_PLOT_STYLE_LIST), LB_GETCOUNT, 0, 0));
        shown.sheet = textOf(item(styles, IDC_PLOT_STYLE_SHEET));
        shown.note = textOf(item(styles, IDC_PLOT_STYLE_NOTE));
        picture(std::string("journey-sheet-") + name);
        cancel(styles);
        cancel(dialog);
        return shown;
    }
    /// What is shown while the table is there.
    void expectSheet(const char* name) {
        const Shown shown = show(name);
        EXPECT_EQ(shown.note, L"") << name;
        EXPECT_NE(shown.sheet.find(L"velmora.stb"), std::wstring::npos) << name;
        EXPECT_LT(shown.names, kAll) << name << ": the picker leaves out what the table lacks";
    }
    /// What is shown while it can't be used; `words` are part of the note.
    void expectAllNames(const char* name, const wchar_t* words) {
        const Shown shown = show(name);
        EXPECT_NE(shown.note.find(words), std::wstring::npos) << name;
        EXPECT_NE(shown.sheet.find(L"velmora.stb"), std::wstring::npos) << name;
        EXPECT_EQ(shown.names, kAll) << name;
        EXPECT_EQ(shown.styles, kAll) << name;
    }

    static constexpr int kAll = 7;
    const OwnProgram program;
    const std::filesystem::path sheets, aside;
};

TEST_F(StyleSheets, AFolderThatIsMissingOrEmptyOrAFileListsAllNamesUntilItIsBack) {
    expectSheet("there");
    std::filesystem::rename(sheets, aside);
    expectAllNames("missing", L"not found");
    std::filesystem::create_directories(sheets);
    expectAllNames("empty", L"not found");
    std::filesystem::remove(sheets);
    writeFile(sheets, "a file where the folder should be");
    expectAllNames("file", L"not found");
    std::filesystem::remove(sheets);
    std::filesystem::rename(aside, sheets);
    expectSheet("back");
}

TEST_F(StyleSheets, ATableThatIsDamagedOrNoneOrHeldListsAllNamesUntilItIsMended) {
    std::filesystem::copy_file(sheet(), aside);
    const auto size = std::filesystem::file_size(sheet());
    std::filesystem::resize_file(sheet(), size / 2);
    expectAllNames("damaged", L"damaged");
    writeFile(sheet(), "");
    expectAllNames("blank", L"damaged");
    std::filesystem::remove(sheet());
    std::filesystem::copy_file(aside, sheet());
    expectSheet("mended");
    // Another time, so that what was read before doesn't serve.
    std::filesystem::last_write_time(sheet(), std::filesystem::file_time_type::clock::now());
    const HANDLE held =
        ::CreateFileW(sheet().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    expectAllNames("held", L"can't be read");
    ::CloseHandle(held);
}

TEST_F(StyleSheets, AStyleIsPickedAndStoredWithoutTheTable) {
    std::filesystem::remove_all(sheets);
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    drafter->pickByMouse(item(dialog, IDC_PLOT_STYLE), L"Heavy");
    ok(dialog);
    EXPECT_EQ(firstOf(*saved())->plotStyleName(), L"Heavy");
}

}  // namespace
