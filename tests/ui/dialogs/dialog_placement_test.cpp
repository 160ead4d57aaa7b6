// Where a dialog comes up: centred, or where it stood when the user last confirmed it.
#include <cstdlib>

#include "dialog_fixture.h"
#include "sent_messages.h"

namespace {

using ui_test::later;
using ui_test::SentMessages;

class DialogPlacement : public DialogTest {
protected:
    DialogPlacement() {
        ::GetWindowRect(::GetDesktopWindow(), &desktop);
        for (const UINT id : {UINT{IDD_ELASTIC}, UINT{IDD_FIXED}}) {
            OpenDialog plain(id, &parent);
            plain.SetDialogName(L"plain");
            plain.Create(id, &parent);
            (id == IDD_ELASTIC ? elastic : fixed) = plain.windowRect();
        }
    }
    /// Where a modeless dialog of template `id` comes up with `rect` stored.
    CRect shownFor(UINT id, const CRect& rect) {
        store(L"placed", rect);
        OpenDialog dialog(id, &parent);
        dialog.SetDialogName(L"placed");
        dialog.Create(id, &parent);
        return dialog.windowRect();
    }
    CRect desktop, elastic, fixed;
};

TEST_F(DialogPlacement, APixelOnTheDesktopIsEnoughAndAnEdgeIsNot) {
    const CSize size(500, 300);
    const CPoint touching[] = {
        {1 - size.cx, 10}, {desktop.right - 1, 10}, {10, 1 - size.cy}, {10, desktop.bottom - 1}};
    const CPoint beside[] = {{-size.cx, 10}, {desktop.right, 10}, {10, -size.cy}, {10, desktop.bottom}};
    for (const CPoint& at : touching) {
        EXPECT_EQ(shownFor(IDD_ELASTIC, CRect(at, size)), CRect(at, size)) << at.x << " " << at.y;
        EXPECT_EQ(shownFor(IDD_FIXED, CRect(at, size)), CRect(at, fixed.Size())) << at.x << " " << at.y;
    }
    for (const CPoint& at : beside) {
        EXPECT_EQ(shownFor(IDD_ELASTIC, CRect(at, size)), elastic) << at.x << " " << at.y;
        EXPECT_EQ(shownFor(IDD_FIXED, CRect(at, size)), fixed) << at.x << " " << at.y;
    }
}

TEST_F(DialogPlacement, APlacementThatIsNotWholeIsNotTaken) {
    for (const UINT id : {UINT{IDD_ELASTIC}, UINT{IDD_FIXED}}) {
        clean();
        OpenDialog writer;
        writer.SetDialogName(L"part");
        writer.SetDialogData(L"X", 300UL);
        writer.SetDialogData(L"Y", 300UL);
        writer.SetDialogData(L"Width", 400UL);
        OpenDialog dialog(id, &parent);
        dialog.SetDialogName(L"part");
        dialog.Create(id, &parent);
        EXPECT_EQ(dialog.windowRect(), id == IDD_ELASTIC ? elastic : fixed);
    }
}

TEST_F(DialogPlacement, ASubclassThatOnlyChangedTheSizeWinsToo) {
    store(L"own size", CRect(200, 100, 900, 700));
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"own size");
    dialog.onInit = [](OpenDialog& d) { d.grow(1, 0); };
    dialog.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(dialog.windowRect().Size(), elastic.Size() + CSize(1, 0));
    OpenDialog moved(IDD_FIXED, &parent);
    moved.SetDialogName(L"own size");
    moved.onInit = [](OpenDialog& d) { d.grow(1, 0); };
    moved.Create(IDD_FIXED, &parent);
    EXPECT_EQ(moved.windowRect(), CRect(CPoint(200, 100), fixed.Size() + CSize(1, 0)))
        << "a fixed dialog goes to its stored position all the same, in the size it has now";
}

TEST_F(DialogPlacement, OnlyAModalDialogIsCentredFixedOrNot) {
    CRect owner;
    parent.GetWindowRect(&owner);
    parent.SetWindowPos(nullptr, 200, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    parent.GetWindowRect(&owner);
    for (const UINT id : {UINT{IDD_ELASTIC}, UINT{IDD_FIXED}}) {
        OpenDialog modal(id, &parent);
        modal.SetDialogName(L"centred");
        CRect shown, atInit;
        modal.onInit = [&](OpenDialog& d) { atInit = d.windowRect(); };
        later([&] {
            shown = modal.windowRect();
            modal.EndDialog(IDCANCEL);
        });
        modal.DoModal();
        EXPECT_NEAR(shown.CenterPoint().x, owner.CenterPoint().x, 1);
        EXPECT_NEAR(shown.CenterPoint().y, owner.CenterPoint().y, 1);
        EXPECT_EQ(atInit, shown);
        OpenDialog modeless(id, &parent);
        modeless.SetDialogName(L"centred");
        modeless.Create(id, &parent);
        EXPECT_GT(std::abs(modeless.windowRect().CenterPoint().x - owner.CenterPoint().x), 20);
    }
}

TEST_F(DialogPlacement, TheDialogIsMovedToItsPlaceWithRepaint) {
    for (const UINT id : {UINT{IDD_ELASTIC}, UINT{IDD_FIXED}}) {
        store(L"repaint", CRect(77, 88, 777, 688));
        OpenDialog dialog(id, &parent);
        dialog.SetDialogName(L"repaint");
        std::vector<UINT> redraw;
        SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.hwnd == dialog.m_hWnd && message.message == WM_WINDOWPOSCHANGING &&
                reinterpret_cast<const WINDOWPOS*>(message.lParam)->x == 77)
                redraw.push_back(ui_test::position_flags(message) & SWP_NOREDRAW);
        });
        dialog.Create(id, &parent);
        EXPECT_EQ(redraw, (std::vector<UINT>{0}));
    }
}

TEST_F(DialogPlacement, ConfirmingStoresAndEndsWithOk) {
    OpenDialog dialog(IDD_FIXED, &parent);
    dialog.SetDialogName(L"confirmed");
    CRect shown;
    later([&] {
        shown = dialog.windowRect();
        dialog.SendMessage(WM_COMMAND, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(stored(L"confirmed", L"X"), shown.left);
    EXPECT_EQ(stored(L"confirmed", L"Y"), shown.top);
    EXPECT_EQ(stored(L"confirmed", L"Width"), shown.Width());
    EXPECT_EQ(stored(L"confirmed", L"Height"), shown.Height());
}

TEST_F(DialogPlacement, ClosingAndDestroyingStoreNothing) {
    OpenDialog closed(IDD_ELASTIC, &parent), destroyed(IDD_ELASTIC, &parent);
    closed.SetDialogName(L"closed");
    later([&] { closed.SendMessage(WM_SYSCOMMAND, SC_CLOSE); });
    EXPECT_EQ(closed.DoModal(), IDCANCEL);
    destroyed.SetDialogName(L"destroyed");
    destroyed.Create(IDD_ELASTIC, &parent);
    destroyed.DestroyWindow();
    EXPECT_EQ(stored(L"closed", L"X"), -1);
    EXPECT_EQ(stored(L"destroyed", L"X"), -1);
}

}  // namespace
