// The font pickers over real files.
#include <ktui/pickers/font_combo_box.h>
#include <ktui/pickers/shx_font_list.h>

#include "font_folder.h"
#include "recording_holder.h"

using ui_test::FontFolder;
using ui_test::FontHost;

namespace {

using Texts = std::vector<std::wstring>;

/// A folder with every kind of font, and the pickers over it.
class FontPickers : public ::testing::Test {
protected:
    FontPickers() : of({folder.path()}) {
        folder.writeOutline(L"beta.ttf", "Beta", "Regular");
        folder.writeOutline(L"betabd.ttf", "Beta", "Bold", 700);
        folder.writeOutline(L"copy.ttf", "Beta", "Bold", 700);
        folder.writeShx(L"plan.shx");
        folder.writeBig(L"asia.shx");
        const DWORD style = WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
        picker.Create(style, CRect(10, 10, 210, 220), &holder, 61);
        buddy.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(10, 250, 210, 380), &holder, 62);
        picker.setBuddy(&buddy, true);
    }

    Texts texts(CComboBox& box) {
        Texts all;
        for (int i = 0; i < box.GetCount(); ++i) {
            CString text;
            box.GetLBText(i, text);
            all.emplace_back(text.GetString());
        }
        return all;
    }
    /// Selects the font of that name, as a user does.
    void pick(const wchar_t* name) {
        picker.SetCurSel(picker.FindStringExact(-1, name));
        holder.SendMessage(WM_COMMAND, MAKEWPARAM(61, CBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(picker.m_hWnd));
    }
    std::wstring current() {
        CString name = L"untouched";
        picker.getCurrentFont(name);
        return name.GetString();
    }

    const FontFolder folder{L"pickers"};
    FontHost of;
    ui_test::RecordingHolder holder;
    CKtUiFontComboBox picker;
    CComboBox buddy;
};

}  // namespace

TEST_F(FontPickers, ComboListsAllButBigFonts) { EXPECT_EQ(texts(picker), (Texts{L"Beta", L"plan.shx"})); }

TEST_F(FontPickers, AnOutlineFontFillsTheBuddy) {
    pick(L"Beta");
    EXPECT_TRUE(buddy.IsWindowEnabled());
    EXPECT_EQ(texts(buddy), (Texts{L"Regular", L"Bold"})) << "the copy is flagged and hidden";
    EXPECT_EQ(current(), L"beta.ttf");
    buddy.SetCurSel(1);
    EXPECT_EQ(current(), L"betabd.ttf");
}

TEST_F(FontPickers, FlaggedStylesAreShownOnDemand) {
    picker.setBuddy(&buddy, false);
    pick(L"Beta");
    EXPECT_EQ(texts(buddy), (Texts{L"Regular", L"Bold", L"Bold"}));
}

TEST_F(FontPickers, AShapeFontDisablesTheBuddyAndIsItsOwnFile) {
    pick(L"Beta");
    pick(L"plan.shx");
    EXPECT_FALSE(buddy.IsWindowEnabled());
    EXPECT_EQ(buddy.GetCount(), 0);
    EXPECT_EQ(current(), L"plan.shx");
}

TEST_F(FontPickers, AFileSelectsFontAndStyle) {
    picker.setCurrentFont(L"D:\\elsewhere\\BETABD.TTF");
    EXPECT_EQ(current(), L"betabd.ttf");
    picker.setCurrentFont(L"plan");
    EXPECT_EQ(current(), L"plan.shx");
    picker.setCurrentFont(L"unknown.ttf");
    EXPECT_EQ(current(), L"plan.shx");
    picker.setCurrentFont(L"asia.shx");
    EXPECT_EQ(picker.GetCurSel(), -1) << "a big font isn't in the list";
}

TEST_F(FontPickers, AListedFontThatIsGoneCanStillBeAsked) {
    pick(L"Beta");
    folder.remove(L"beta.ttf");
    folder.remove(L"betabd.ttf");
    folder.remove(L"copy.ttf");
    ASSERT_TRUE(ui_test::pump_until([&] { return of.list()->count() == 2; }));
    EXPECT_EQ(current(), L"beta.ttf");
    pick(L"plan.shx");
    pick(L"Beta");
    EXPECT_EQ(texts(buddy), (Texts{L"Regular", L"Bold"}));
    picker.ResetContent();
    picker.AddItems();
    EXPECT_EQ(texts(picker), Texts{L"plan.shx"});
}

TEST_F(FontPickers, ListBoxTellsShapeFontsFromBigFonts) {
    CKtUiShxFontList list;
    list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(220, 10, 400, 200),
                &holder, 63);
    const auto listed = [&list] {
        Texts all;
        for (int i = 0; i < list.GetCount(); ++i) {
            CString text;
            list.GetText(i, text);
            all.emplace_back(text.GetString());
        }
        return all;
    };
    list.FillList(true);
    EXPECT_EQ(listed(), Texts{L"asia.shx"});
    list.FillList(false);
    EXPECT_EQ(listed(), (Texts{L"asia.shx", L"plan.shx"}));
}

TEST_F(FontPickers, WithoutFontsTheyAreEmpty) {
    of.host.SetFontFolders({});
    picker.ResetContent();
    picker.AddItems();
    EXPECT_EQ(picker.GetCount(), 0);
    picker.setCurrentFont(L"beta.ttf");
    EXPECT_EQ(picker.GetCurSel(), -1);
}
