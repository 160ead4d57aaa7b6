// The pickers of the toolkit on the stand-in host as it is: its linetype manager, its plot style service, its
// folders of style sheets.
#include <ktui/pickers/line_type_combo_box.h>
#include <ktui/pickers/plot_style_names_combo_box.h>
#include <ktui/pickers/plot_style_tables_combo_box.h>

#include "linetype_fixture.h"
#include "plot_style_fixture.h"

namespace {

using ui_test::Texts;

constexpr UINT kPickerId = 77;
constexpr DWORD kPickerStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;

Texts textsOf(CComboBox& combo) {
    Texts texts;
    for (int i = 0; i < combo.GetCount(); ++i) {
        CString text;
        combo.GetLBText(i, text);
        texts.emplace_back(text.GetString());
    }
    return texts;
}

/// A picker in a window, filled.
template <class Picker>
class Shown : public Picker {
public:
    explicit Shown(CWnd& parent) {
        this->Create(kPickerStyle, CRect(10, 10, 300, 300), &parent, kPickerId);
        ui_test::pump();
    }
};

class PlotStylePickers : public ui_test::PlotStyleTest {};
class LinetypePicker : public ui_test::LinetypeDialogTest {};

}  // namespace

TEST_F(PlotStylePickers, NamesAreFilteredByTheSheetOnDisk) {
    folder.write(L"house.stb", tableOf({L"Heavy", L"half tone", L"Unused"}));
    Shown<CKtUiPlotStyleNamesComboBox> picker(parent);
    picker.ResetContent();
    picker.OnAddItems();
    EXPECT_EQ(textsOf(picker), (Texts{L"Normal", L"Heavy", L"Half tone"}));
    setSheet(L"gone.stb");
    picker.ResetContent();
    picker.OnAddItems();
    EXPECT_EQ(textsOf(picker), (Texts{L"Normal", L"Heavy", L"Half tone", L"Planting"}));
}

TEST_F(PlotStylePickers, OtherLeadsToTheDialogAndItsChoiceJoinsTheList) {
    folder.write(L"house.stb", tableOf({L"Heavy", L"Half tone"}));
    Shown<CKtUiPlotStyleNamesComboBox> picker(parent);
    picker.ResetContent();
    picker.OnAddItems();
    setSheet(L"");
    ui_test::when_dialog(L"Select Plot Style", [&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_PLOT_STYLE_LIST);
        ::SendMessageW(list, LB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(L"Planting"));
        click(dialog, IDOK);
    });
    int index = -1;
    EXPECT_EQ(picker.OnSelectOther(0, 0, index), 1);
    EXPECT_EQ(textsOf(picker)[static_cast<std::size_t>(index)], L"Planting");
    EXPECT_EQ(picker.GetCurSel(), index);
}

TEST_F(PlotStylePickers, TheTablesPickerListsTheFolder) {
    folder.write(L"house.stb", tableOf({L"Heavy"}));
    folder.write(L"mono.ctb", tableOf({L"Color_1"}, true));
    folder.write(L"notes.txt", "");
    Shown<CKtUiPlotStyleTablesComboBox> picker(parent);
    Texts texts = textsOf(picker);
    ASSERT_EQ(texts.size(), 3u);
    std::sort(texts.begin() + 1, texts.end());
    EXPECT_EQ(texts[1], L"house.stb");
    EXPECT_EQ(texts[2], L"mono.ctb");
}

TEST_F(LinetypePicker, OtherLeadsToTheManagerAndWhatItDeletesLeavesTheList) {
    Shown<CKtUiLineTypeComboBox> picker(parent);
    const Texts before = textsOf(picker);
    EXPECT_EQ(std::count(before.begin(), before.end(), L"Dot2"), 1);
    const int selected = picker.FindStringExact(-1, L"Dot2");
    ui_test::when_dialog(ui_test::kManagerTitle, [&](HWND manager) {
        EXPECT_EQ(selectedIn(manager), Texts{L"Dot2"});
        click(manager, IDC_LINETYPE_DELETE);
        select(manager, {L"ZIGZAG"});
        click(manager, IDOK);
    });
    int index = -1;
    EXPECT_EQ(picker.OnSelectOther(0, selected, index), 1);
    EXPECT_EQ(picker.FindStringExact(-1, L"Dot2"), CB_ERR);
    EXPECT_EQ(textsOf(picker)[static_cast<std::size_t>(index)], L"ZIGZAG");
}

TEST_F(LinetypePicker, OtherLoadsFromAFile) {
    Shown<CKtUiLineTypeComboBox> picker(parent);
    const std::wstring path = folder.write(L"house.lin", "*BEAM,Beams\nA,8,-2\n");
    ui_test::when_dialog(ui_test::kManagerTitle, [&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            listFile(load, path);
            click(load, IDOK);
        });
        click(manager, IDOK);
    });
    int index = -1;
    EXPECT_EQ(picker.OnSelectOther(0, 0, index), 1);
    EXPECT_EQ(textsOf(picker)[static_cast<std::size_t>(index)], L"BEAM");
}
