// The help of the stand-in host, found and not found, and its security dialog, a thousand times each.
#include <filesystem>
#include <fstream>

#include <kh_security.h>

#include "../../../platform/standin/resource.h"
#include "leak_fixture.h"
#include "system_dialogs.h"

namespace {

namespace fs = std::filesystem;

/// A folder of files that goes with the object.
struct Folder {
    const fs::path path = fs::temp_directory_path() / L"ktui_host_services_leaks";

    Folder() { fs::create_directories(path / L"en"); }
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
};

class HostServiceLeaks : public leaks::Leaks {
protected:
    HostServiceLeaks() {
        host.SetHelpFolder(folder.path.c_str());
        host.SetHelpOpener([this](const CString&) { return ++pages > 0; });
    }
    /// A saved drawing, read again, so that it has a file and no changes.
    void useSavedDrawing() {
        const fs::path plan = folder.path / L"plan.dxf";
        ASSERT_EQ(drawing->writeDxf(plan.c_str()), kOdOk);
        OdDbDatabasePtr saved(new OdDbDatabase);
        ASSERT_EQ(saved->readDxf(plan.c_str()), kOdOk);
        drawing = saved;
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
    }
    void openBareSecurityDialog() {
        const HWND dialog = ::CreateDialogParamW(
            ::GetModuleHandleW(L"ktstandin.dll"), MAKEINTRESOURCEW(IDD_SECURITY), parent,
            [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
        ::DestroyWindow(dialog);
    }
    /// Shows the dialog; it seals the drawing and takes the seal away in turn.
    void openSecurity() {
        const bool seals = ++opened % 2 == 1;
        ui_test::when_dialog(L"Security Options", [&](HWND dialog) {
            ::SetDlgItemTextW(dialog, IDC_SEAL_SIGNER, L"Ann");
            ::SendDlgItemMessageW(dialog, seals ? IDC_SEAL : IDC_SEAL_REMOVE, BM_CLICK, 0, 0);
            changed += fs::exists(folder.path / L"plan.dxf.seal") == seals;
            ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        static_cast<CKhSecurity*>(host.serviceManager()->getService(kKhSecurityService))
            ->showSecurityOptions();
    }
    Folder folder;
    int pages = 0, opened = 0, changed = 0;
};

}  // namespace

TEST_F(HostServiceLeaks, AThousandHelpPagesLeaveNothing) {
    std::ofstream(folder.path / L"en" / L"Measure.html") << "<p>page</p>";
    const size_t growth = leaks::heap_growth([&] { openBareSecurityDialog(); });
    // A topic by name, and that of the dialog at hand, which is looked for from its window outwards.
    host.SetHelpTopic(31, L"Measure");
    leaks::expect_no_growth(
        [&] {
            host.uiHost()->showHelp(L"Measure");
            CWnd field;
            field.Create(L"BUTTON", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &parent, 9);
            ::SetWindowContextHelpId(field, 31);
            field.SetFocus();
            host.uiHost()->showHelp(nullptr);
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(pages, 2 * (leaks::kTimes + leaks::kWarmUp));
}

TEST_F(HostServiceLeaks, AThousandMissingHelpPagesLeaveNothing) {
    const size_t growth = leaks::heap_growth([&] { leaks::open_bare_message(parent, 1, IDOK); });
    int told = 0;
    leaks::expect_no_growth(
        [&] {
            ui_test::when_dialog(L"", [&](HWND message) {
                ++told;
                ::PostMessageW(message, TDM_CLICK_BUTTON, IDOK, 0);
            });
            host.uiHost()->showHelp(L"Nowhere");
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(told, leaks::kTimes + leaks::kWarmUp);
    EXPECT_EQ(pages, 0);
}

TEST_F(HostServiceLeaks, AThousandSecurityDialogsLeaveNothing) {
    useSavedDrawing();
    const size_t growth = leaks::heap_growth([&] { openBareSecurityDialog(); });
    leaks::expect_no_growth([&] { openSecurity(); }, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(changed, leaks::kTimes + leaks::kWarmUp);
}
