// What the navigation file dialog does with its places at OK and at Cancel.
#include <ktdsres/places_ids.h>

#include "shown_fixture.h"

namespace {

constexpr const wchar_t* kPlaces = L"Software\\ktui test\\Dialogs\\AllAnavDialogs";

class FileDialogPlaces : public ShownTest {
protected:
    FileDialogPlaces() {
        dialog.SetForceInitialFolder(folder);
        store(L"PlacesOrder0", L"Desktop");
        store(L"PlacesOrder0Display", L"Desktop");
        store(L"PlacesOrder1", L"");
    }
    static void store(const wchar_t* value, const CString& text) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, kPlaces, value, REG_SZ, text.GetString(),
                          static_cast<DWORD>((text.GetLength() + 1) * static_cast<int>(sizeof(wchar_t))));
    }
    /// How many places are stored.
    static int stored() {
        int count = 0;
        for (;; ++count) {
            CString value;
            value.Format(L"PlacesOrder%d", count);
            wchar_t text[MAX_PATH] = {};
            DWORD size = sizeof text;
            if (::RegGetValueW(HKEY_CURRENT_USER, kPlaces, value, RRF_RT_REG_SZ, nullptr, text, &size) ||
                *text == L'\0')
                return count;
        }
    }
    /// Adds the four standard folders that aren't there.
    static void change(HWND window) {
        ::SendMessageW(own(window, 57015), WM_COMMAND, IDM_PLACE_RESTORE, 0);
        EXPECT_EQ(::SendMessageW(own(window, 57015), LB_GETCOUNT, 0, 0), 5);
    }
    /// Answers the next message box, after `seen`.
    void answer(int button, std::function<void()> seen = {}) {
        when_dialog(L"Test Caption", [this, button, seen = std::move(seen)](HWND box) {
            messages.push_back(ui_test::message_text(box));
            if (seen) seen();
            ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
    }
    static std::wstring question() {
        wchar_t text[200] = {};
        ::LoadStringW(::GetModuleHandleW(L"ktdsres.dll"), 54509, text, 200);
        return text;
    }
};

TEST_F(FileDialogPlaces, AtOkTheyAreStoredWithoutAQuestionBeforeAnyoneIsAsked) {
    dialog.refusals = 1;
    EXPECT_EQ(run([&](HWND window) {
                  change(window);
                  ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
                  EXPECT_EQ(stored(), 1);
                  ::SendMessageW(window, WM_COMMAND, IDOK, 0);
                  EXPECT_EQ(dialog.count("ok"), 1);
                  EXPECT_EQ(stored(), 5);
                  press(window, IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_TRUE(messages.empty()) << "there is nothing more to ask about";
}

TEST_F(FileDialogPlaces, AnAddressThatIsRefusedComesAfterTheStoring) {
    dialog.SetNoURLsAllowed(1);
    run([&](HWND window) {
        change(window);
        ::SetDlgItemTextW(window, kNameBox, L"ftp.x");
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(::IsWindowVisible(window));
        EXPECT_EQ(stored(), 5);
        press(window, IDCANCEL);
    });
    EXPECT_EQ(data.GetCount(), 0);
    EXPECT_EQ(dialog.count("ok"), 0);
}

TEST_F(FileDialogPlaces, AtCancelTheUserIsAskedWithTheViewKeptBefore) {
    const SystemOfMajor system(5);
    unsigned long mode = 0;
    EXPECT_EQ(dialog.GetDialogData(L"ViewMode", mode), 0);
    EXPECT_EQ(run([&](HWND window) {
                  change(window);
                  answer(IDYES, [&, window] {
                      EXPECT_EQ(dialog.GetDialogData(L"ViewMode", mode), 1);
                      EXPECT_EQ(stored(), 1);
                      EXPECT_TRUE(::IsWindow(window));
                  });
                  press(window, IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(messages, std::vector<std::wstring>{question()});
    EXPECT_EQ(stored(), 5);
}

TEST_F(FileDialogPlaces, NoAtCancelLeavesThemAsTheyWere) {
    run([&](HWND window) {
        change(window);
        answer(IDNO);
        press(window, IDCANCEL);
    });
    EXPECT_EQ(messages, std::vector<std::wstring>{question()});
    EXPECT_EQ(stored(), 1);
}

TEST_F(FileDialogPlaces, UnchangedTheyAreNotAskedAbout) {
    EXPECT_EQ(run([&](HWND window) { press(window, IDCANCEL); }), IDCANCEL);
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(stored(), 1);
}

}  // namespace
