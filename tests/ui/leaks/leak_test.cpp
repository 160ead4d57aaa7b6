// Opening and closing a thousand times leaves nothing behind: no window, no GDI object, no registry key, no
// heap block.
#include <functional>

#include <kh_system.h>
#include <standin_host.h>

#include "../../../samples/drafter/properties_dialog.h"
#include "../../../samples/drafter/resource.h"
#include "leak_count.h"
#include "ui_test.h"

namespace {

constexpr int kTimes = 1000;
constexpr int kWarmUp = 30;
// Caches of the system's libraries (fonts, cursors, message pools) may still take a few; a leak of one a time
// would be a thousand.
constexpr int kGdiSlack = 4;
// This Wine still holds drawing surfaces (three objects each) of some of the windows that were shown last.
constexpr int kShownGdiSlack = 200;
constexpr size_t kHeapSlack = 300;

const wchar_t* const kDialogsKey = L"Software\\ktui leak test";

/// Keys and values below the settings of these tests.
int settings() {
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, (CString(kDialogsKey) + L"\\Properties").GetString(), 0, KEY_READ,
                        &key) != ERROR_SUCCESS)
        return 0;
    DWORD keys = 0, values = 0;
    ::RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                       nullptr, nullptr);
    ::RegCloseKey(key);
    return static_cast<int>(keys + values);
}

/// What is held once the thread has idled, which ends temporary objects.
HeldObjects held_when_idle() {
    ui_test::pump();
    for (LONG count = 0; AfxGetApp()->OnIdle(count); ++count) {
    }
    return count_held_objects();
}

/// Heap blocks by which `once` grows the process over a thousand times.
size_t heap_growth(const std::function<void()>& once) {
    for (int i = 0; i < kWarmUp; ++i) once();
    const size_t before = held_when_idle().heapBlocks;
    for (int i = 0; i < kTimes; ++i) once();
    const size_t after = held_when_idle().heapBlocks;
    return after > before ? after - before : 0;
}

/// `systemGrowth` is what the system's own windows leave when the same is done without the toolkit.
void expect_no_growth(const std::function<void()>& once, size_t systemGrowth = 0, int gdiSlack = kGdiSlack) {
    for (int i = 0; i < kWarmUp; ++i) once();
    const HeldObjects before = held_when_idle();
    const int settings_before = settings();
    for (int i = 0; i < kTimes; ++i) once();
    const HeldObjects after = held_when_idle();
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + gdiSlack);
    EXPECT_LE(after.kernelHandles, before.kernelHandles + kGdiSlack);
    EXPECT_LE(after.heapBlocks, before.heapBlocks + systemGrowth + kHeapSlack);
    EXPECT_EQ(settings(), settings_before);
}

/// The same template and the windows of its tips, by the system alone. This Wine keeps a small block for each
/// window of some classes.
void open_bare_dialog(HWND parent) {
    HINSTANCE module = AfxGetInstanceHandle();
    HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(IDD_PROPERTIES), RT_DIALOG);
    auto* dialog_template = static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(module, resource)));
    HWND dialog = ::CreateDialogIndirectParamW(
        module, dialog_template, parent, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
    ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, dialog, nullptr,
                      nullptr, nullptr);
    ::DestroyWindow(dialog);
}

/// The sample's dialog with its settings apart from the user's.
class Properties : public CPropertiesDialog {
public:
    Properties(OdDbDatabase& drawing, CWnd* parent) : CPropertiesDialog(drawing, {}, parent) {
        SetAppRootKey((CString(kDialogsKey) + L"\\").GetString());
    }
};

class Leaks : public ::testing::Test {
protected:
    Leaks() : host(*AfxGetApp()), drawing(new OdDbDatabase) {
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
        AfxGetApp()->m_pMainWnd = &parent;
    }
    ~Leaks() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kDialogsKey);
    }

    CStandinHost host;
    OdDbDatabasePtr drawing;
    ui_test::ParentWindow parent;
};

TEST_F(Leaks, AThousandPropertiesDialogsLeaveNothing) {
    int opened = 0;
    const size_t systemGrowth = heap_growth([&] { open_bare_dialog(parent.m_hWnd); });
    const auto open_once = [&] {
        Properties dialog(*drawing, &parent);
        // In turn confirmed and cancelled.
        const int answer = ++opened % 2 ? IDOK : IDCANCEL;
        ui_test::later([&] { dialog.PostMessage(WM_COMMAND, static_cast<WPARAM>(answer)); });
        ASSERT_EQ(dialog.DoModal(), answer);
    };
    expect_no_growth(open_once, systemGrowth, kShownGdiSlack);
    EXPECT_EQ(opened, kTimes + kWarmUp);
}

TEST_F(Leaks, AThousandTipsLeaveNothing) {
    Properties dialog(*drawing, &parent);
    dialog.Create(IDD_PROPERTIES, &parent);
    dialog.ShowWindow(SW_SHOW);
    CWnd* field = dialog.GetDlgItem(IDC_ELEVATION);
    field->SetWindowText(L"a text that is much wider than the field that holds it, so that a tip comes up");
    dialog.GetDlgItem(IDOK)->SetFocus();
    CRect rect;
    field->GetWindowRect(&rect);
    ASSERT_TRUE(ui_test::move_cursor(rect.CenterPoint()));
    const auto tip_shows = [&] {
        HWND tip = nullptr;
        while ((tip = ::FindWindowExW(nullptr, tip, L"CKbUiTipWindow", nullptr)) != nullptr)
            if (::IsWindowVisible(tip)) return tip;
        return tip;
    };
    int shown = 0;
    expect_no_growth([&] {
        KbUiNotify(dialog, 0, kKbUiNotifyUpdateTip, reinterpret_cast<unsigned __int64>(field));
        if (HWND tip = tip_shows()) {
            ++shown;
            ::UpdateWindow(tip);
            ::SendMessageW(tip, WM_LBUTTONDOWN, 0, 0);
            dialog.GetDlgItem(IDOK)->SetFocus();
        }
    });
    EXPECT_EQ(shown, kTimes + kWarmUp);
    dialog.DestroyWindow();
}

TEST_F(Leaks, AThousandDropDownsLeaveNothing) {
    Properties dialog(*drawing, &parent);
    dialog.Create(IDD_PROPERTIES, &parent);
    dialog.ShowWindow(SW_SHOW);
    CWnd* picker = dialog.GetDlgItem(IDC_TRUE_COLOR);
    expect_no_growth([&] {
        picker->SendMessage(CB_SHOWDROPDOWN, TRUE);
        picker->UpdateWindow();
        EXPECT_TRUE(picker->SendMessage(CB_GETDROPPEDSTATE));
        picker->SendMessage(CB_SHOWDROPDOWN, FALSE);
        ui_test::pump();
    });
    dialog.DestroyWindow();
}

}  // namespace
