// The Places list and the dialog of a place, opened, used and closed a thousand times.
#include <ktui/nav/place_dlg.h>

#include <ktut.h>

#include "../nav/place_fixture.h"
#include "empty_page.h"
#include "leak_growth.h"

namespace {

class PlaceLeaks : public PlacesTest {
protected:
    PlaceLeaks() { ktutSetProfileFileName(leaks::kDialogsKey); }
    ~PlaceLeaks() override {
        ktutSetProfileFileName(nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, leaks::kDialogsKey);
    }
    /// The control and its tip by the system alone.
    void makeBareList() {
        const HWND box = makeControl();
        ::MakeDragList(box);
        ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP, 0, 0, 0, 0, box, nullptr, nullptr, nullptr);
        ::DestroyWindow(box);
    }
    HWND makeControl() {
        return ::CreateWindowW(L"LISTBOX", L"",
                               WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS, 0, 0, 110, 300,
                               child, reinterpret_cast<HMENU>(57016), nullptr, nullptr);
    }
    /// Takes the control, has the user do each thing once, and stores.
    void useList(bool isFreed) {
        const HWND box = makeControl();
        {
            list = std::make_unique<CPlaceList>(&fileDialog(), kTestRoot, L"C:\\recent");
            list->SubclassWindow(box);
            list->SyncSelection();
            pointAt(in(1));
            send(WM_MOUSEHOVER, in(1));
            list->UpdateWindow();
            drag(2, in(0));
            drop({folder(L"one"), folder(L"file.dwg")});
            click(1);
            list->SendMessage(WM_COMMAND, 1126);
            list->SendMessage(WM_COMMAND, 1129);
            EXPECT_EQ(list->SavePlaces(1), 1);
            ::RegDeleteTreeW(HKEY_CURRENT_USER, placesKey());
            if (isFreed) list->FreePlaces();
            list.reset();
        }
        ::DestroyWindow(box);
        messages().clear();
        trackedMouse().clear();
        platform.asked.clear();
        platform.visited.clear();
        dialog.folderChanges.clear();
    }
};

TEST_F(PlaceLeaks, AThousandListsLeaveNothing) {
    const size_t growth = leaks::heap_growth([this] { makeBareList(); });
    bool isFreed = false;
    leaks::expect_no_growth([&] { useList(isFreed = !isFreed); }, growth, leaks::kShownGdiSlack);
}

TEST_F(PlaceLeaks, AThousandPlaceDialogsLeaveNothing) {
    ui_test::ParentWindow parent;
    int opened = 0;
    leaks::expect_no_growth(
        [&] {
            CPlaceDlg box(&parent, L"one", folder(L"one"));
            ui_test::when_dialog(L"Places Item Properties", [&opened](HWND window) {
                ::SetDlgItemTextW(window, 57027, L"C:\\gone");
                ::SendMessageW(window, WM_COMMAND, IDOK, 0);
                ::SetDlgItemTextW(window, 57027, L"C:\\");
                ::PostMessageW(window, WM_COMMAND, ++opened % 2 ? IDOK : IDCANCEL, 0);
            });
            const INT_PTR result = box.DoModal();
            EXPECT_EQ(result, opened % 2 ? IDOK : IDCANCEL);
            messages().clear();
        },
        leaks::heap_growth([&parent] {
            ::DestroyWindow(::CreateDialogIndirectParamW(
                nullptr, reinterpret_cast<LPCDLGTEMPLATE>(leaks::page_template()), parent, nullptr, 0));
        }),
        leaks::kShownGdiSlack);
    EXPECT_EQ(opened, leaks::kTimes + leaks::kWarmUp);
}

}  // namespace
