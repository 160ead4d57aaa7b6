// What assistive programs learn of the command links of a task dialog.
#include "task_dialog_fixture.h"

#include "accessible_object.h"

using namespace ui_test;

namespace {

class LinkAccessible : public OwnTaskDialog {
protected:
    LinkAccessible() {
        ::CoInitialize(nullptr);
        dialog.SetOptions(0x10);
        dialog.AddCommandControl(101, L"Save && &close");
        dialog.SetCommandControlExtend(101, L"Overwrites the drawing on disk.");
        dialog.AddCommandControl(102, L"Discard");
        dialog.SetCommonButtons(8);
    }
    ~LinkAccessible() override { ::CoUninitialize(); }
};

}  // namespace

TEST_F(LinkAccessible, ALinkIsNamedByItsTitleAndDescribedByItsSecondText) {
    Run([](HWND box) {
        {
            const AccessibleObject first(::GetDlgItem(box, 101)), second(::GetDlgItem(box, 102));
            EXPECT_EQ(first.name(), L"Save & close");
            EXPECT_EQ(second.name(), L"Discard");
            BSTR text = nullptr;
            EXPECT_EQ(first->get_accDescription(AccessibleObject::of(0), &text), S_OK);
            EXPECT_STREQ(text, L"Overwrites the drawing on disk.");
            ::SysFreeString(text);
            text = nullptr;
            EXPECT_EQ(second->get_accDescription(AccessibleObject::of(0), &text), S_FALSE);
            EXPECT_EQ(text, nullptr);
        }
        press(box, IDCANCEL);
    });
}

TEST_F(LinkAccessible, ALinkIsAPushButtonWithAnAction) {
    Run([](HWND box) {
        {
            const AccessibleObject link(::GetDlgItem(box, 101));
            EXPECT_EQ(link.role(), ROLE_SYSTEM_PUSHBUTTON);
            EXPECT_TRUE(link.action() == L"Press" || link.action() == L"按下");
            EXPECT_EQ(link.value(), L"");
            EXPECT_TRUE(link.state() & STATE_SYSTEM_FOCUSABLE);
            EXPECT_TRUE(link.state() & STATE_SYSTEM_FOCUSED);
            const AccessibleObject other(::GetDlgItem(box, 102));
            EXPECT_FALSE(other.state() & STATE_SYSTEM_FOCUSED);
            CRect window;
            ::GetWindowRect(::GetDlgItem(box, 102), &window);
            EXPECT_EQ(other.place(), window);
        }
        press(box, IDCANCEL);
    });
}

TEST_F(LinkAccessible, ItsActionEndsTheDialogAsAClickDoes) {
    bool stood = false;
    EXPECT_EQ(Run([&](HWND box) {
                  const AccessibleObject link(::GetDlgItem(box, 102));
                  EXPECT_EQ(link.act(), S_OK);
                  stood = ::IsWindow(box) != FALSE;
              }),
              102);
    EXPECT_TRUE(stood) << "a caller does not wait for what the click does";
}

TEST_F(LinkAccessible, ADisabledLinkCannotBePressed) {
    Run([](HWND box) {
        {
            ::EnableWindow(::GetDlgItem(box, 102), FALSE);
            const AccessibleObject link(::GetDlgItem(box, 102));
            EXPECT_TRUE(link.state() & STATE_SYSTEM_UNAVAILABLE);
            EXPECT_NE(link.act(), S_OK);
        }
        press(box, IDCANCEL);
    });
}

TEST_F(LinkAccessible, OtherButtonsAreDescribedByTheSystem) {
    Run([](HWND box) {
        {
            const AccessibleObject cancel(::GetDlgItem(box, IDCANCEL));
            EXPECT_EQ(cancel.name(), L"Cancel");
        }
        press(box, IDCANCEL);
    });
}
