// The sheet of save options, opened and closed a thousand times with both of its pages.
#include <kt_ap_document.h>
#include <od_db.h>
#include <od_host_services.h>

#include <ktui/nav/save_option_sheet.h>

#include "empty_page.h"
#include "leak_growth.h"
#include "test_host.h"

namespace {

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
