// The plot style dialog: what it lists under the style sheet of the layout, and what it says about the sheet.
#include <ktut.h>

#include "plot_style_fixture.h"

namespace {

using ui_test::Texts;

constexpr const wchar_t* kTitle = L"Select Plot Style";

class PlotStyleDialog : public ui_test::PlotStyleTest {
protected:
    PlotStyleDialog() { folder.write(L"house.stb", tableOf({L"Normal", L"heavy", L"Half tone", L"Other"})); }

    /// Shows the dialog and runs `script` in it; the script has to close it.
    bool show(const wchar_t* current, bool allowMeta, const std::function<void(HWND)>& script) {
        ui_test::when_dialog(kTitle, script);
        return host.uiHost()->showPlotStyleDialog(current, allowMeta, chosen);
    }
    /// What the dialog shows; it is cancelled.
    void look(const wchar_t* current = L"", bool allowMeta = false) {
        EXPECT_FALSE(show(current, allowMeta, [&](HWND dialog) {
            const HWND list = ::GetDlgItem(dialog, IDC_PLOT_STYLE_LIST);
            names.clear();
            selected.clear();
            const auto count = static_cast<int>(::SendMessageW(list, LB_GETCOUNT, 0, 0));
            for (int i = 0; i < count; ++i) {
                wchar_t text[256] = {};
                ::SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
                names.emplace_back(text);
                if (::SendMessageW(list, LB_GETCURSEL, 0, 0) == i) selected = text;
            }
            sheet = textOf(dialog, IDC_PLOT_STYLE_SHEET);
            note = textOf(dialog, IDC_PLOT_STYLE_NOTE);
            EXPECT_EQ(::GetFocus(), list);
            click(dialog, IDCANCEL);
        }));
        EXPECT_EQ(chosen, nullptr);
    }

    const wchar_t* chosen = nullptr;
    Texts names;
    std::wstring selected;
    CString sheet, note;
    const Texts all{L"Normal", L"Heavy", L"Half tone", L"Planting"};
};

}  // namespace

TEST_F(PlotStyleDialog, ListsWhatTheSheetHasAndNamesIt) {
    look(L"half TONE");
    EXPECT_EQ(names, (Texts{L"Normal", L"Heavy", L"Half tone"}));
    EXPECT_EQ(selected, L"Half tone");
    EXPECT_EQ(sheet, L"Active plot style table: house.stb");
    EXPECT_EQ(note, L"");
}

TEST_F(PlotStyleDialog, OffersByLayerAndByBlockWhenAllowed) {
    look(L"ByBlock", true);
    EXPECT_EQ(names, (Texts{L"ByLayer", L"ByBlock", L"Normal", L"Heavy", L"Half tone"}));
    EXPECT_EQ(selected, L"ByBlock");
    look(L"ByBlock", false);
    EXPECT_EQ(selected, L"");
}

TEST_F(PlotStyleDialog, KeepsTheCurrentStyleAndMarksThatTheSheetLacksIt) {
    look(L"Planting");
    EXPECT_EQ(names.back(), L"Planting (not in the table)");
    EXPECT_EQ(selected, names.back());
    EXPECT_TRUE(show(L"Planting", false, [&](HWND) { pressKey(VK_RETURN); }));
    EXPECT_STREQ(chosen, L"Planting") << "without the mark";
}

TEST_F(PlotStyleDialog, KeysAloneChoose) {
    EXPECT_TRUE(show(L"Normal", true, [&](HWND) {
        pressKey(VK_DOWN);
        pressKey(VK_RETURN);
    }));
    EXPECT_STREQ(chosen, L"Heavy");
    chosen = nullptr;
    EXPECT_FALSE(show(L"Normal", true, [&](HWND) {
        pressKey(VK_DOWN);
        pressKey(VK_ESCAPE);
    }));
    EXPECT_EQ(chosen, nullptr);
}

TEST_F(PlotStyleDialog, ADoubleClickChooses) {
    EXPECT_TRUE(show(L"Heavy", true, [&](HWND dialog) {
        ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_PLOT_STYLE_LIST, LBN_DBLCLK),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog, IDC_PLOT_STYLE_LIST)));
    }));
    EXPECT_STREQ(chosen, L"Heavy");
}

TEST_F(PlotStyleDialog, WithNothingSelectedItAsks) {
    EXPECT_FALSE(show(L"", false, [&](HWND dialog) {
        EXPECT_EQ(messageOf([&] { click(dialog, IDOK); }), L"Select a plot style.");
        click(dialog, IDCANCEL);
    }));
}

TEST_F(PlotStyleDialog, SaysThatTheSheetIsMissingAndListsAll) {
    setSheet(L"gone.stb");
    look();
    EXPECT_EQ(names, all);
    EXPECT_EQ(sheet, L"Active plot style table: gone.stb");
    EXPECT_GE(note.Find(L"was not found in the plot style folders"), 0) << note.GetString();
}

TEST_F(PlotStyleDialog, SaysThatTheSheetIsDamagedAndListsAll) {
    folder.write(L"bad.stb", "nonsense");
    setSheet(L"bad.stb");
    look();
    EXPECT_EQ(names, all);
    EXPECT_GE(note.Find(L"can't be read"), 0);
}

TEST_F(PlotStyleDialog, SaysThatThereIsNoSheetAndListsAll) {
    setSheet(L"");
    look();
    EXPECT_EQ(names, all);
    EXPECT_EQ(sheet, L"Active plot style table: None");
    EXPECT_GE(note.Find(L"has no plot style table"), 0);
}

TEST_F(PlotStyleDialog, SaysThatAColorTableHasNoNamedStyles) {
    folder.write(L"mono.ctb", tableOf({L"Color_1"}, true));
    setSheet(L"mono.ctb");
    look();
    EXPECT_EQ(names, Texts{L"Normal"});
    EXPECT_GE(note.Find(L"gives plot styles to colors"), 0);
}

TEST_F(PlotStyleDialog, FollowsTheLayoutOfTheCurrentSpace) {
    folder.write(L"paper.stb", tableOf({L"Planting"}));
    drawing->setTILEMODE(0);
    setSheet(L"paper.stb");
    look();
    EXPECT_EQ(names, (Texts{L"Normal", L"Planting"}));
    drawing->setTILEMODE(1);
    look();
    EXPECT_EQ(names, (Texts{L"Normal", L"Heavy", L"Half tone"}));
}

TEST_F(PlotStyleDialog, NormalStandsUnderItsNameInTheLanguage) {
    ktutSetLanguage(KtutLanguage::kChinese);
    look(L"\x666E\x901A");
    ktutSetLanguage(KtutLanguage::kEnglish);
    EXPECT_NE(names[0], L"Normal");
    EXPECT_EQ(names[1], L"Heavy");
}

TEST_F(PlotStyleDialog, WithoutADrawingItHasLittleToOffer) {
    oddbHostApplicationServices()->setWorkingDatabase(nullptr);
    look(L"ByLayer", true);
    EXPECT_EQ(names, (Texts{L"ByLayer", L"ByBlock"}));
    EXPECT_EQ(note, L"There is no drawing.");
}
