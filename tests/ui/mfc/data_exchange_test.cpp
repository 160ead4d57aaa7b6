// Dialog data exchange: values to controls and back, what is refused and how the user is told.
#include <afxcmn.h>
#include <afxext.h>

#include <cmath>
#include <functional>
#include <limits>

#include "ui_test.h"

namespace {

constexpr int kEdit = 1001, kOtherEdit = 1002, kCheck = 1003, kRadio = 1004, kCombo = 1007, kList = 1008;

/// A modeless dialog that exchanges what the test says.
class ExchangeDialog : public CDialog {
public:
    std::function<void(CDataExchange*)> exchange;

    BOOL Save(std::function<void(CDataExchange*)> what) {
        exchange = std::move(what);
        return UpdateData(TRUE);
    }
    BOOL Show(std::function<void(CDataExchange*)> what) {
        exchange = std::move(what);
        return UpdateData(FALSE);
    }
    CString Text(int id) {
        CString text;
        GetDlgItemText(id, text);
        return text;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        if (exchange) exchange(pDX);
    }
};

class DataExchange : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dialog.Create(400, &parent));
        dialog.ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    void TearDown() override { dialog.DestroyWindow(); }

    /// Closes the message box that is about to come, and keeps its text.
    void expect_message() {
        ui_test::when_dialog(AfxGetAppName(), [this](HWND box) {
            message = ui_test::text_of(::GetDlgItem(box, 0xFFFF));
            ++messages;
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
    }
    template <class T>
    bool refuses(const wchar_t* text, T value) {
        const T before = value;
        dialog.SetDlgItemText(kEdit, text);
        dialog.GetDlgItem(kOtherEdit)->SetFocus();
        const int heard = messages;
        expect_message();
        const BOOL saved = dialog.Save([&](CDataExchange* dx) { DDX_Text(dx, kEdit, value); });
        return !saved && messages == heard + 1 && value == before &&
               ::GetFocus() == dialog.GetDlgItem(kEdit)->m_hWnd;
    }
    template <class T>
    T round_trip(T value) {
        EXPECT_TRUE(dialog.Show([&](CDataExchange* dx) { DDX_Text(dx, kEdit, value); }));
        T back = {};
        EXPECT_TRUE(dialog.Save([&](CDataExchange* dx) { DDX_Text(dx, kEdit, back); }));
        return back;
    }

    ui_test::ParentWindow parent;
    ExchangeDialog dialog;
    CString message;
    int messages = 0;
};

}  // namespace

TEST_F(DataExchange, NumbersAndTextsComeBackAsTheyWent) {
    EXPECT_EQ(round_trip<int>(-2147483647 - 1), -2147483647 - 1);
    EXPECT_EQ(round_trip<UINT>(4294967295u), 4294967295u);
    EXPECT_EQ(round_trip<BYTE>(255), 255);
    EXPECT_EQ(round_trip<short>(-32768), -32768);
    EXPECT_DOUBLE_EQ(round_trip<double>(-0.125), -0.125);
    EXPECT_DOUBLE_EQ(round_trip<double>(1e300), 1e300);
    EXPECT_FLOAT_EQ(round_trip<float>(2.5f), 2.5f);
    EXPECT_EQ(round_trip<CString>(L"Ж layer 图层"), L"Ж layer 图层");
}

TEST_F(DataExchange, BlanksAroundANumberAreNoMatter) {
    int value = 0;
    dialog.SetDlgItemText(kEdit, L"  42  ");
    EXPECT_TRUE(dialog.Save([&](CDataExchange* dx) { DDX_Text(dx, kEdit, value); }));
    EXPECT_EQ(value, 42);
}

TEST_F(DataExchange, TextThatIsNoNumberIsRefused) {
    EXPECT_TRUE(refuses(L"twelve", 3));
    EXPECT_EQ(message, L"Enter a whole number.");
    EXPECT_TRUE(refuses(L"", 3));
    EXPECT_TRUE(refuses(L"12x", 3));
    EXPECT_TRUE(refuses(L"1.5.2", 3.0));
    EXPECT_EQ(message, L"Enter a number.");
}

TEST_F(DataExchange, ANumberThatDoesNotFitIsRefused) {
    EXPECT_TRUE(refuses(L"2147483648", 3));
    EXPECT_TRUE(refuses(L"-1", 3u));
    EXPECT_EQ(message, L"Enter a whole number of 0 or more.");
    EXPECT_TRUE(refuses<BYTE>(L"256", 3));
    EXPECT_TRUE(refuses<short>(L"32768", 3));
    EXPECT_TRUE(refuses(L"99999999999999999999", 3));
    EXPECT_TRUE(refuses(L"1e999", 3.0));
    EXPECT_TRUE(refuses(L"1e39", 3.0f));
    EXPECT_TRUE(refuses(L"nan", 3.0));
}

TEST_F(DataExchange, ANumberOutsideItsRangeIsRefusedWithTheRange) {
    int value = 11;
    dialog.SetDlgItemText(kEdit, L"11");
    expect_message();
    EXPECT_FALSE(dialog.Save([&](CDataExchange* dx) {
        DDX_Text(dx, kEdit, value);
        DDV_MinMaxInt(dx, value, 1, 10);
    }));
    EXPECT_EQ(message, L"Enter a whole number from 1 to 10.");
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(kEdit)->m_hWnd);
    DWORD selected = static_cast<DWORD>(dialog.SendDlgItemMessage(kEdit, EM_GETSEL));
    EXPECT_EQ(selected, static_cast<DWORD>(MAKELONG(0, 2))) << "all of it, ready to be typed over";
    EXPECT_TRUE(dialog.Show([&](CDataExchange* dx) { DDV_MinMaxInt(dx, value, 1, 10); }));
    double real = 0.5;
    dialog.SetDlgItemText(kEdit, L"0.5");
    expect_message();
    EXPECT_FALSE(dialog.Save([&](CDataExchange* dx) {
        DDX_Text(dx, kEdit, real);
        DDV_MinMaxDouble(dx, real, 1, 2.5);
    }));
    EXPECT_EQ(message, L"Enter a number from 1 to 2.5.");
}

TEST_F(DataExchange, ATextOfTooManyCharactersIsRefused) {
    CString value;
    EXPECT_TRUE(dialog.Show([&](CDataExchange* dx) {
        DDX_Text(dx, kEdit, value);
        DDV_MaxChars(dx, value, 4);
    }));
    EXPECT_EQ(dialog.SendDlgItemMessage(kEdit, EM_GETLIMITTEXT), 4);
    dialog.SetDlgItemText(kEdit, L"abcdef");
    expect_message();
    EXPECT_FALSE(dialog.Save([&](CDataExchange* dx) {
        DDX_Text(dx, kEdit, value);
        DDV_MaxChars(dx, value, 4);
    }));
    EXPECT_EQ(message, L"Enter no more than 4 characters.");
}

TEST_F(DataExchange, ButtonsKeepTheirState) {
    int check = BST_CHECKED, radio = 2;
    const auto all = [&](CDataExchange* dx) {
        DDX_Check(dx, kCheck, check);
        DDX_Radio(dx, kRadio, radio);
    };
    dialog.Show(all);
    EXPECT_TRUE(dialog.IsDlgButtonChecked(kCheck));
    EXPECT_EQ(dialog.GetCheckedRadioButton(kRadio, kRadio + 2), kRadio + 2);
    dialog.CheckRadioButton(kRadio, kRadio + 2, kRadio + 1);
    dialog.CheckDlgButton(kCheck, BST_UNCHECKED);
    dialog.Save(all);
    EXPECT_EQ(check, BST_UNCHECKED);
    EXPECT_EQ(radio, 1);
    radio = -1;
    dialog.Show(all);
    dialog.Save(all);
    EXPECT_EQ(radio, -1);
}

TEST_F(DataExchange, ListsKeepTheirSelection) {
    int index = 1;
    CString combo = L"first", list = L"red";
    dialog.Show([&](CDataExchange* dx) { DDX_CBIndex(dx, kCombo, index); });
    EXPECT_EQ(dialog.Text(kCombo), L"second");
    dialog.Show([&](CDataExchange* dx) {
        DDX_CBString(dx, kCombo, combo);
        DDX_LBString(dx, kList, list);
    });
    dialog.Save([&](CDataExchange* dx) { DDX_CBIndex(dx, kCombo, index); });
    EXPECT_EQ(index, 0);
    dialog.SetDlgItemText(kCombo, L"typed");
    list.Empty();
    dialog.Save([&](CDataExchange* dx) {
        DDX_CBString(dx, kCombo, combo);
        DDX_LBString(dx, kList, list);
    });
    EXPECT_EQ(combo, L"typed");
    EXPECT_EQ(list, L"red");
    dialog.SendDlgItemMessage(kList, LB_SETCURSEL, static_cast<WPARAM>(-1));
    dialog.Save([&](CDataExchange* dx) { DDX_LBString(dx, kList, list); });
    EXPECT_EQ(list, L"") << "nothing is selected";
}

TEST_F(DataExchange, AControlIsTakenOverOnce) {
    CEdit edit;
    const auto take = [&](CDataExchange* dx) { DDX_Control(dx, kEdit, edit); };
    EXPECT_TRUE(dialog.Show(take));
    EXPECT_EQ(dialog.GetDlgItem(kEdit), &edit);
    EXPECT_TRUE(dialog.Save(take));
    edit.ReplaceSel(L"still an edit control");
    EXPECT_EQ(dialog.Text(kEdit), L"still an edit control");
    dialog.DestroyWindow();
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

TEST_F(DataExchange, AMissingControlIsReportedAndNeverThrowsOut) {
    int value = 1;
    expect_message();
    EXPECT_NO_THROW(EXPECT_FALSE(dialog.Save([&](CDataExchange* dx) { DDX_Text(dx, 4711, value); })));
    EXPECT_EQ(messages, 1);
    EXPECT_EQ(value, 1);
}
