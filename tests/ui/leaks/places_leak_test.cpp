// The Places list, the dialog of a place and the save options, opened, used and closed a thousand times.
#include <kt_ap_document.h>
#include <od_db.h>
#include <od_host_services.h>

#include <ktui/nav/place_dlg.h>
#include <ktui/nav/save_option_sheet.h>

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

/// A document without variables.
class PlainDocument final : public KtApDocument, public CKhVariableStore {
public:
    explicit PlainDocument(OdDbDatabase& drawing) : m_drawing(drawing) {}
    OdDbDatabase* database() override { return &m_drawing; }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return this; }
    bool getInt(const wchar_t*, int&) override { return false; }
    bool setInt(const wchar_t*, int) override { return false; }
    bool getBool(const wchar_t*, bool&) override { return false; }
    bool setBool(const wchar_t*, bool) override { return false; }

private:
    OdDbDatabase& m_drawing;
};

TEST(SaveOptionLeaks, AThousandSheetsLeaveNothing) {
    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    OdDbHostAppServices services;
    OdDbHostAppServices* const former = oddbHostApplicationServices();
    oddbSetHostApplicationServices(&services);
    const OdDbDatabasePtr drawing(new OdDbDatabase);
    services.setWorkingDatabase(drawing.get());
    PlainDocument document(*drawing);
    host.document = &document;
    int shown = 0;
    const size_t growth = leaks::heap_growth([&parent] { leaks::open_bare_sheet(parent, 0); });
    leaks::expect_no_growth(
        [&] {
            CSaveOptionSheet sheet(&parent);
            ui_test::when_dialog(L"Save As Options", [&shown](HWND window) {
                ::SendMessageW(window, PSM_SETCURSEL, 1, 0);
                ::PostMessageW(window, WM_COMMAND, ++shown % 2 ? IDOK : IDCANCEL, 0);
            });
            const INT_PTR result = sheet.DoModal();
            EXPECT_EQ(result, shown % 2 ? IDOK : IDCANCEL);
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(shown, leaks::kTimes + leaks::kWarmUp);
    oddbSetHostApplicationServices(former);
}

}  // namespace
