// The layouts of a drawing by their tabs: what is seen, what is remembered, what is undone, and where new
// objects go.
#include <filesystem>
#include <fstream>

#include <oleacc.h>

#include "drafter_fixture.h"
#include "heavy_drawing.h"
#include "in_language.h"
#include "measuring_gate.h"
#include "sheets.h"
#include "test_desk.h"

namespace {

using namespace ui_test;

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kPaper = RGB(255, 255, 255),
                   kDesk = RGB(128, 128, 128);

class Layouts : public DrafterTest {
protected:
    Layouts() : frame(new CMDIFrameWndEx), desk(host, *frame) {
        EXPECT_TRUE(
            frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 820, 620)));
        open(sheetsFile());
    }
    ~Layouts() override { frame->DestroyWindow(); }

    void open(const std::string& file) {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        const std::wstring path =
            std::wstring(folder) + L"layouts " + std::to_wstring(::GetCurrentProcessId()) + L".dxf";
        std::ofstream(std::filesystem::path(path), std::ios::binary) << file;
        auto document = std::make_unique<CDraftDocument>();
        OdDbDxfError error;
        EXPECT_TRUE(document->Open(path.c_str(), error)) << odUtf8(error.text.view());
        std::filesystem::remove(path);
        window = new CDrawingWindow(desk, std::move(document), 1);
        EXPECT_TRUE(window->Open(*frame));
        pump();
    }
    CTabCtrl& tabs() const { return *static_cast<CTabCtrl*>(window->GetDlgItem(1)); }
    std::vector<std::wstring> labels() const {
        std::vector<std::wstring> all;
        for (int i = 0; i < tabs().GetItemCount(); ++i) {
            wchar_t text[300] = {};
            TCITEMW item = {};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            item.cchTextMax = 300;
            tabs().GetItem(i, &item);
            all.emplace_back(text);
        }
        return all;
    }
    void click(int tab) {
        CRect place;
        ASSERT_TRUE(tabs().GetItemRect(tab, &place));
        const CPoint at = place.CenterPoint();
        tabs().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        tabs().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        pump();
    }
    void command(UINT id) { window->SendMessage(WM_COMMAND, id); }
    int count(COLORREF color) const {
        window->view().UpdateWindow();
        CClientDC dc(&window->view());
        CRect client;
        window->view().GetClientRect(&client);
        int found = 0;
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x) found += dc.GetPixel(x, y) == color;
        return found;
    }
    COLORREF at(double x, double y, int right = 0, int down = 0) const {
        window->view().UpdateWindow();
        CClientDC dc(&window->view());
        const CPoint pixel = window->view().ToPixel({x, y});
        return dc.GetPixel(pixel.x + right, pixel.y + down);
    }
    /// Whether a pixel of this color is at a place or beside it.
    bool isNear(COLORREF color, double x, double y) const {
        for (int right = -1; right <= 1; ++right)
            for (int down = -1; down <= 1; ++down)
                if (at(x, y, right, down) == color) return true;
        return false;
    }
    std::wstring current() const {
        return std::wstring(window->drawing().currentLayoutId().open<OdDbLayout>()->getLayoutName().view());
    }

    CMDIFrameWndEx* frame;
    TestDesk desk;
    CDrawingWindow* window = nullptr;
};

TEST_F(Layouts, TabsStandInTheirOrderBelowTheView) {
    EXPECT_EQ(labels(), (std::vector<std::wstring>{L"Model", L"Plan", L"Detail"}));
    EXPECT_EQ(tabs().GetCurSel(), 0);
    CRect view, row;
    window->view().GetWindowRect(&view);
    tabs().GetWindowRect(&row);
    EXPECT_EQ(row.top, view.bottom);
    EXPECT_EQ(row.left, view.left);
    EXPECT_EQ(row.right, view.right);
    EXPECT_GT(row.Height(), 12);
    CRect last;
    tabs().GetItemRect(2, &last);
    EXPECT_LE(last.bottom, row.Height());
}

TEST_F(Layouts, TabsShowTheirNamesInTheColorsOfTheSystem) {
    const auto colorsOf = [this](int tab) {
        tabs().UpdateWindow();
        CRect place;
        tabs().GetItemRect(tab, &place);
        CClientDC dc(&tabs());
        std::map<COLORREF, int> counts;
        for (int y = place.top + 2; y < place.bottom - 3; ++y)
            for (int x = place.left + 2; x < place.right - 2; ++x) ++counts[dc.GetPixel(x, y)];
        return counts;
    };
    for (const int inFront : {0, 2, 1}) {
        click(inFront);
        for (int tab = 0; tab < 3; ++tab) {
            std::map<COLORREF, int> colors = colorsOf(tab);
            const int face = tab == inFront ? COLOR_WINDOW : COLOR_BTNFACE;
            EXPECT_GT(colors[::GetSysColor(face)], 100) << tab;
            EXPECT_GT(colors.size(), 1u) << "letters on tab " << tab;
            EXPECT_EQ(colors[::GetSysColor(COLOR_WINDOW + COLOR_BTNFACE - face)], 0) << tab;
        }
    }
}

TEST_F(Layouts, AClickShowsTheSheetOnItsPaper) {
    EXPECT_GT(count(kRed), 100);
    EXPECT_EQ(count(kDesk), 0);
    click(2);
    EXPECT_EQ(current(), L"Detail");
    EXPECT_EQ(tabs().GetCurSel(), 2);
    EXPECT_GT(count(kGreen), 100);
    EXPECT_EQ(count(kRed), 0);
    // The paper goes from -10, -10 to 190, 90; its margins leave 180 by 80.
    EXPECT_EQ(at(-10, -10, 3, -3), kPaper);
    EXPECT_EQ(at(190, 90, -3, 3), kPaper);
    EXPECT_EQ(at(-10, 90, -3, 3), kDesk);
    EXPECT_EQ(at(190, -10), RGB(0, 0, 0)) << "its edge";
    EXPECT_EQ(at(190, -10, 2, 2), RGB(80, 80, 80)) << "its shadow";
    EXPECT_EQ(at(-10, 90, 2, -2), kDesk) << "no shadow above";
    int dashes = 0;
    for (int i = 0; i < 60; ++i) dashes += at(60, 0, i) != kPaper;
    EXPECT_GT(dashes, 20) << "the margin";
    EXPECT_LT(dashes, 60);
    click(0);
    EXPECT_EQ(current(), L"Model");
    EXPECT_GT(count(kRed), 100);
    EXPECT_EQ(count(kDesk), 0);
}

TEST_F(Layouts, AViewportShowsModelSpaceWithinItsFrame) {
    click(1);
    EXPECT_EQ(current(), L"Plan");
    EXPECT_GT(count(kRed), 30);
    EXPECT_EQ(count(kGreen), 0);
    // The window goes from 50, 20 to 130, 60; what is at 300, 100 there lies at 70, 30 here.
    EXPECT_TRUE(isNear(kRed, 70, 30));
    EXPECT_TRUE(isNear(kRed, 110, 50));
    EXPECT_FALSE(isNear(kRed, 66, 28)) << "where the line has ended";
    EXPECT_TRUE(isNear(RGB(0, 0, 0), 50, 40)) << "its frame, in the color that stands out from paper";
    // Its objects are those of the sheet.
    const CPoint place = window->view().ToPixel({90, 40});
    window->view().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.x, place.y));
    window->view().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(place.x, place.y));
    ASSERT_EQ(window->SelectedObjects().size(), 1u);
    EXPECT_STREQ(window->SelectedObjects()[0].openObject()->dxfName(), "VIEWPORT");
    click(0);
    EXPECT_TRUE(window->SelectedObjects().empty()) << "they are none of model space";
}

TEST_F(Layouts, EachRemembersWhereTheUserWas) {
    window->view().Zoom(2);
    const OdGePoint2d model = window->view().FromPixel({10, 10});
    click(2);
    const OdGePoint2d whole = window->view().FromPixel({10, 10});
    window->view().Zoom(3);
    const OdGePoint2d enlarged = window->view().FromPixel({10, 10});
    EXPECT_NE(enlarged.x, whole.x);
    click(0);
    EXPECT_EQ(window->view().FromPixel({10, 10}).x, model.x);
    EXPECT_EQ(window->view().FromPixel({10, 10}).y, model.y);
    click(2);
    EXPECT_EQ(window->view().FromPixel({10, 10}).x, enlarged.x);
    command(ID_VIEW_EXTENTS);
    click(1);
    CRect former;
    window->GetWindowRect(&former);
    window->MoveWindow(0, 0, former.Width() * 2 / 3, former.Height() * 2 / 3);
    pump();
    click(2);
    CRect client;
    window->view().GetClientRect(&client);
    for (const OdGePoint2d corner : {OdGePoint2d{-10, -10}, {190, 90}})
        EXPECT_TRUE(client.PtInRect(window->view().ToPixel(corner))) << "all of it, in another window too";
}

TEST_F(Layouts, KeysAndMenuGoThroughThemAndStopAtTheEnds) {
    command(ID_VIEW_NEXT_SHEET);
    EXPECT_EQ(current(), L"Plan");
    command(ID_VIEW_NEXT_SHEET);
    command(ID_VIEW_NEXT_SHEET);
    EXPECT_EQ(current(), L"Detail");
    EXPECT_EQ(tabs().GetCurSel(), 2);
    command(ID_VIEW_PREVIOUS_SHEET);
    EXPECT_EQ(current(), L"Plan");
    command(ID_VIEW_SHEET_FIRST);
    command(ID_VIEW_PREVIOUS_SHEET);
    EXPECT_EQ(current(), L"Model");
    command(ID_VIEW_SHEET_FIRST + 2);
    EXPECT_EQ(current(), L"Detail");
    command(ID_VIEW_SHEET_FIRST + 3);
    EXPECT_EQ(current(), L"Detail") << "there is no fourth";
}

TEST_F(Layouts, TheMenuListsThemWithTheCurrentOneChecked) {
    click(1);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_VIEW_SHEET_FIRST, L"(none)");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_VIEW_NEXT_SHEET, L"next");
    for (int round = 0; round < 2; ++round) {
        CCmdUI item;
        item.m_pMenu = &menu;
        item.m_nIndexMax = static_cast<UINT>(menu.GetMenuItemCount());
        item.m_nID = ID_VIEW_SHEET_FIRST;
        item.DoUpdate(window, FALSE);
        ASSERT_EQ(menu.GetMenuItemCount(), 5);
        CString text;
        menu.GetMenuString(2, text, MF_BYPOSITION);
        EXPECT_EQ(text, L"&3 Detail");
        EXPECT_EQ(menu.GetMenuItemID(2), static_cast<UINT>(ID_VIEW_SHEET_FIRST + 2));
        for (UINT i = 0; i < 3; ++i)
            EXPECT_EQ((menu.GetMenuState(i, MF_BYPOSITION) & MF_CHECKED) != 0, i == 1);
    }
}

TEST_F(Layouts, GoingToOneIsNoChangeAndNothingToUndo) {
    click(2);
    EXPECT_FALSE(window->drawing().isModified());
    EXPECT_FALSE(window->document().history().CanUndo());
    window->document().history().Commit(L"nothing");
    EXPECT_FALSE(window->document().history().CanUndo());
    // What is undone was done in another one.
    window->drawing().setLTSCALE(4);
    window->FinishChange(L"Scale");
    click(1);
    command(ID_EDIT_UNDO);
    EXPECT_EQ(window->drawing().getLTSCALE(), 1);
    EXPECT_EQ(current(), L"Plan");
    EXPECT_EQ(tabs().GetCurSel(), 1);
}

TEST_F(Layouts, NewObjectsGoToTheOneThatShows) {
    OdDbBlockTablePtr blocks;
    window->drawing().getBlockTable(blocks, OdDb::kForWrite);
    const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
    block->setName(L"SIGN");
    blocks->add(OdDbSymbolTableRecordPtr(block.get()));
    block->appendOdDbEntity(OdDbEntityPtr(newLine(0, 0, 20, 0)));
    window->FinishChange(L"Block");
    click(2);
    window->InsertBlockAt(block->objectId(), {30, 40});
    const auto inserted = window->SelectedObjects();
    ASSERT_EQ(inserted.size(), 1u);
    EXPECT_EQ(inserted[0].openObject()->ownerId(), window->drawing().currentSpaceId());
    EXPECT_NE(inserted[0].openObject()->ownerId(), window->drawing().modelSpaceId());
    command(ID_EDIT_SELECT_ALL);
    EXPECT_EQ(window->SelectedObjects().size(), 2u) << "the line and the reference";
}

TEST_F(Layouts, AreLeftAloneWhileSomethingIsPicked) {
    click(1);
    bool isEnded = false;
    window->view().PickPlaces(2, [&](bool) { isEnded = true; });
    click(2);
    EXPECT_EQ(current(), L"Plan");
    EXPECT_EQ(tabs().GetCurSel(), 1);
    command(ID_VIEW_NEXT_SHEET);
    EXPECT_EQ(current(), L"Plan");
    EXPECT_FALSE(isEnded);
    window->GiveUpPicking();
    click(2);
    EXPECT_EQ(current(), L"Detail");
}

TEST_F(Layouts, ADrawingWithoutSheetsShowsModelAlone) {
    OdDbDictionaryPtr layouts;
    window->drawing().getLayoutDictionary(layouts, OdDb::kForWrite);
    layouts->remove(L"Plan");
    layouts->getAt(L"Detail").openObject(OdDb::kForWrite)->erase();
    window->FinishChange(L"Layouts");
    EXPECT_EQ(labels(), (std::vector<std::wstring>{L"Model"}));
    command(ID_EDIT_UNDO);
    EXPECT_EQ(labels().size(), 3u);
}

TEST_F(Layouts, ALayoutWithoutABlockHasNoTab) {
    OdDbDictionaryPtr layouts;
    window->drawing().getLayoutDictionary(layouts);
    const auto plan = layouts->getAt(L"Plan").open<OdDbLayout>();
    plan->getBlockTableRecordId().openObject(OdDb::kForWrite)->erase();
    window->FinishChange(L"Block");
    EXPECT_EQ(labels(), (std::vector<std::wstring>{L"Model", L"Detail"}));
    command(ID_VIEW_NEXT_SHEET);
    EXPECT_EQ(current(), L"Detail");
}

TEST_F(Layouts, NamesAreShownAsTheyAre) {
    const std::string longName(60, 'N');
    open(sheetsFile({"Top & Bottom", longName}));
    ASSERT_EQ(labels().size(), 5u);
    EXPECT_EQ(labels()[3], L"Top && Bottom") << "no letter is underlined";
    EXPECT_EQ(labels()[4], std::wstring(39, L'N') + L"\u2026");
}

TEST_F(Layouts, ModelAndTheRowAreNamedInTheLanguageOfTheUser) {
    const InLanguage user(kChinese);
    open(sheetsFile());
    EXPECT_EQ(labels(), (std::vector<std::wstring>{L"\u6A21\u578B", L"Plan", L"Detail"}));
    EXPECT_EQ(text_of(tabs()), L"\u56FE\u5F62\u7684\u5E03\u5C40");
}

TEST_F(Layouts, AHundredSheetsAreAllReached) {
    std::vector<std::string> names;
    for (int i = 0; i < 97; ++i) names.push_back("Sheet " + std::to_string(i));
    open(sheetsFile(names));
    ASSERT_EQ(tabs().GetItemCount(), 100);
    for (int i = 0; i < 120; ++i) command(ID_VIEW_NEXT_SHEET);
    EXPECT_EQ(current(), L"Sheet 96");
    CRect last, row;
    tabs().GetItemRect(99, &last);
    tabs().GetClientRect(&row);
    EXPECT_LE(last.right, row.right) << "the row has scrolled";
}

TEST_F(Layouts, AHeavySheetIsDrawnByAThreadAndLeftAtOnce) {
    MeasuringGate gate;
    desk.sceneOptions = [&](bool) { return gate.options(); };
    click(2);
    OdDbBlockTablePtr blocks;
    fillWithoutEnd(window->drawing());
    window->FinishChange(L"Heavy");
    EXPECT_FALSE(window->IsBuilding()) << "model space is not shown";
    gate.shut();
    click(0);
    ASSERT_TRUE(window->IsBuilding());
    ASSERT_TRUE(pump_until([&] { return gate.holds(1); }));
    gate.open();
    click(2);
    EXPECT_FALSE(window->IsBuilding());
    EXPECT_EQ(current(), L"Detail");
    EXPECT_GT(count(kGreen), 100);
    EXPECT_EQ(desk.notice, L"");
}

TEST_F(Layouts, TheRowHasANameForAssistivePrograms) {
    IAccessible* row = nullptr;
    ASSERT_EQ(::AccessibleObjectFromWindow(tabs(), static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&row)),
              S_OK);
    VARIANT self = {};
    self.vt = VT_I4;
    BSTR name = nullptr;
    EXPECT_EQ(row->get_accName(self, &name), S_OK);
    EXPECT_EQ(CString(name), L"Layouts of the drawing");
    ::SysFreeString(name);
    row->Release();
}

}  // namespace
