// Moving the platform's dialog: what is pressed, refreshed and given back, and what happens where a control
// of the platform's is missing.
#include "shown_fixture.h"

namespace {

constexpr UINT kAskForBrowser = WM_USER + 7;
constexpr int kMissing = 9999;

/// The controls of a number in the platform's dialog, which can't be found for as long as it lives.
class MissingControl {
public:
    MissingControl(HWND window, int id) : m_id(id) {
        while (const HWND control = ::GetDlgItem(window, id)) {
            m_controls.push_back(control);
            ::SetWindowLongPtrW(control, GWLP_ID, kMissing);
        }
        EXPECT_FALSE(m_controls.empty());
    }
    ~MissingControl() {
        for (const HWND control : m_controls) ::SetWindowLongPtrW(control, GWLP_ID, m_id);
    }
    MissingControl(const MissingControl&) = delete;
    MissingControl& operator=(const MissingControl&) = delete;

private:
    std::vector<HWND> m_controls;
    int m_id;
};

class FileDialogNavigation : public ShownTest {
protected:
    void look(std::function<void(HWND)> at) {
        run([&](HWND window) {
            at(window);
            press(window, IDCANCEL);
        });
    }
    /// How often the view is asked for while the dialog goes to a folder.
    int viewsAskedFor(HWND window) {
        int asked = 0;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            asked += message.message == kAskForBrowser && message.hwnd == window;
        });
        EXPECT_EQ(dialog.NavigateToFolder(folder + L"templates"), 1);
        return asked;
    }
};

TEST_F(FileDialogNavigation, TheViewIsRefreshedOnLaterSystemsOnly) {
    look([&](HWND window) {
        {
            const SystemOfMajor system(5);
            EXPECT_EQ(viewsAskedFor(window), 0);
        }
        for (const DWORD major : {6, 10}) {
            const SystemOfMajor system(major);
            EXPECT_EQ(viewsAskedFor(window), 1) << major;
        }
    });
}

TEST_F(FileDialogNavigation, TheNameBoxHasTheFocusAndTheFolderAtThePress) {
    look([&](HWND window) {
        const HWND box = ::GetDlgItem(window, kNameBox);
        ::SetFocus(::GetDlgItem(window, IDCANCEL));
        CString typedThen;
        std::vector<UINT> pressed;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.hwnd != ::GetDlgItem(window, IDOK)) return;
            if (message.message != WM_LBUTTONDOWN && message.message != WM_LBUTTONUP) return;
            if (pressed.empty()) {
                typedThen = typed(window);
                EXPECT_TRUE(::GetFocus() == box || ::IsChild(box, ::GetFocus()));
            }
            pressed.push_back(message.message);
        });
        dialog.NavigateToFolder(folder + L"templates\\");
        EXPECT_EQ(typedThen, folder + L"templates\\");
        EXPECT_EQ(pressed, (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONUP}));
    });
}

TEST_F(FileDialogNavigation, WithoutTheNameBoxItGoesNowhere) {
    look([&](HWND window) {
        const MissingControl missing(window, kNameBox);
        EXPECT_EQ(dialog.NavigateToFolder(folder + L"templates\\"), 0);
        EXPECT_EQ(dialog.NavigateToFolder(folder), 1) << "the folder shown";
        EXPECT_EQ(folderOf(window) + L"\\", folder);
    });
}

TEST_F(FileDialogNavigation, WithoutTheButtonTheNameComesBack) {
    look([&](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"typed");
        const MissingControl missing(window, IDOK);
        EXPECT_EQ(dialog.NavigateToFolder(folder + L"templates\\"), 0);
        EXPECT_EQ(typed(window), L"typed");
        EXPECT_EQ(folderOf(window) + L"\\", folder);
    });
}

TEST_F(FileDialogNavigation, WithoutTheBoxOfTypesNoneIsSelected) {
    look([&](HWND window) {
        const MissingControl missing(window, kTypeBox);
        int told = 0;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            told +=
                message.message == CB_SETCURSEL || (message.hwnd == window && message.message == WM_COMMAND);
        });
        dialog.SetFilterIndex(1);
        EXPECT_EQ(told, 0);
        EXPECT_EQ(dialog.GetFilterIndex(), 0);
    });
}

/// What the dialog is told of its box of types, and what the box is told, in order.
struct TypeSteps {
    explicit TypeSteps(HWND window, std::function<void(WORD)> then = {})
        : watch([this, window, then = std::move(then)](const CWPSTRUCT& message) {
              if (message.message == CB_SETCURSEL && message.hwnd == ::GetDlgItem(window, kTypeBox))
                  steps.push_back("select " + std::to_string(static_cast<int>(message.wParam)));
              if (message.hwnd != window || message.message != WM_COMMAND ||
                  LOWORD(message.wParam) != kTypeBox)
                  return;
              EXPECT_EQ(reinterpret_cast<HWND>(message.lParam), ::GetDlgItem(window, kTypeBox));
              steps.push_back("code " + std::to_string(HIWORD(message.wParam)));
              if (then) then(HIWORD(message.wParam));
          }) {}
    std::vector<std::string> steps;
    ui_test::SentMessages watch;
};

const std::string kDropDown = "code " + std::to_string(CBN_DROPDOWN);
const std::string kCloseUp = "code " + std::to_string(CBN_CLOSEUP);
const std::string kSelectionEnd = "code " + std::to_string(CBN_SELENDOK);

TEST_F(FileDialogNavigation, ATypeTakenWhenTheListClosesNeedsNothingMore) {
    look([&](HWND window) {
        const TypeSteps told(window, [&](WORD code) {
            if (code == CBN_CLOSEUP) dialog.GetImpObject()->m_fileDialog->GetOFN().nFilterIndex = 3;
        });
        dialog.SetFilterIndex(2);
        EXPECT_EQ(told.steps, (std::vector<std::string>{kDropDown, "select 2", kCloseUp}));
        EXPECT_EQ(::SendDlgItemMessageW(window, kTypeBox, CB_GETCURSEL, 0, 0), 2);
    });
}

TEST_F(FileDialogNavigation, ATypeNotTakenThenIsTakenAtTheSelectionsEnd) {
    look([&](HWND window) {
        const TypeSteps told(window);
        dialog.SetFilterIndex(2);
        EXPECT_EQ(dialog.GetFilterIndex(), 2);
        ASSERT_GE(told.steps.size(), 4u);
        EXPECT_EQ(std::vector<std::string>(told.steps.begin(), told.steps.begin() + 4),
                  (std::vector<std::string>{kDropDown, "select 2", kCloseUp, kSelectionEnd}));
        EXPECT_EQ(std::count(told.steps.begin(), told.steps.end(), kSelectionEnd), 1);
    });
}

TEST_F(FileDialogNavigation, NoTypeEndsNoSelection) {
    look([&](HWND window) {
        const TypeSteps told(window);
        dialog.SetFilterIndex(-1);
        EXPECT_EQ(told.steps, (std::vector<std::string>{kDropDown, "select -1", kCloseUp}));
        EXPECT_EQ(::SendDlgItemMessageW(window, kTypeBox, CB_GETCURSEL, 0, 0), CB_ERR);
    });
}

TEST_F(FileDialogNavigation, WithoutTheNameBoxTheViewHasTheFocusAtTheStart) {
    HWND asked = nullptr;
    static std::vector<int> focused;
    focused.clear();
    using SetFocusCall = HWND WINAPI(HWND);
    SetFocusCall* const record = [](HWND window) -> HWND {
        focused.push_back(window != nullptr ? ::GetDlgCtrlID(window) : 0);
        return ::SetFocus(window);
    };
    const ui_test::ReplacedImport focuses(toolkit(), "SetFocus", record);
    HWND box = nullptr;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message != WM_SETICON || asked != nullptr) return;
        asked = message.hwnd;
        box = ::GetDlgItem(asked, kNameBox);
        ::SetWindowLongPtrW(box, GWLP_ID, kMissing);
    });
    look([&](HWND) {
        ::SetWindowLongPtrW(box, GWLP_ID, kNameBox);
        EXPECT_EQ(focused, std::vector<int>{1121});
    });
}

}  // namespace
