// The sample's properties dialog, its tips and drop-downs, a thousand times each.
#include <kh_system.h>

#include "../../../samples/drafter/properties_dialog.h"
#include "../../../samples/drafter/resource.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

using PropertiesLeaks = leaks::Leaks;

/// The sample's dialog with its settings apart from the user's.
class Properties : public CPropertiesDialog {
public:
    Properties(OdDbDatabase& drawing, CWnd* parent) : CPropertiesDialog(drawing, {}, parent) {
        SetAppRootKey((CString(kDialogsKey) + L"\\").GetString());
    }
};

TEST_F(PropertiesLeaks, AThousandPropertiesDialogsLeaveNothing) {
    int opened = 0;
    const size_t systemGrowth = heap_growth([&] { open_bare_dialog(parent.m_hWnd, IDD_PROPERTIES); });
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

TEST_F(PropertiesLeaks, AThousandTipsLeaveNothing) {
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

TEST_F(PropertiesLeaks, AThousandDropDownsLeaveNothing) {
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
