#include <ktui/pickers/plot_style_names_combo_box.h>

#include <kh_plot_style.h>
#include <ktdb.h>
#include <ktut.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using ui_test::InHolder;
using ui_test::WorkingDrawing;

namespace {

using Texts = std::vector<std::wstring>;

/// A service that knows the styles a test gives it.
class StyleSheets final : public CKhPlotStyle {
public:
    OdArray<OdString> styles;
    bool answer = true;
    Texts askedSheets;

    bool getStyleNames(const OdString& sheet, OdArray<OdString>& names) override {
        askedSheets.emplace_back(sheet.c_str());
        names = styles;
        return answer;
    }
};

class Picker : public CKtUiPlotStyleNamesComboBox {
public:
    unsigned flags() const { return m_mruFlags; }
    int otherMode() const { return m_otherMode; }
    int colorDependent() const { return m_colorDependent; }
    int lastSelection() const { return m_lastSelection; }
};

void addStyle(OdDbDatabase* drawing, const wchar_t* name) {
    OdDbDictionaryPtr names;
    ASSERT_EQ(drawing->getPlotStyleNameDictionary(names, OdDb::kForWrite), kOdOk);
    ASSERT_EQ(names->setAt(name, new OdDbPlaceHolder), kOdOk);
}

/// A drawing with the styles "Normal", "Thick" and "Thin", whose layout in use has the table "house.stb".
struct StyledDrawing : WorkingDrawing {
    StyledDrawing() {
        addStyle(database(), L"Thick");
        addStyle(database(), L"Thin");
        layout()->setCurrentStyleSheet(L"house.stb");
    }
    OdDbLayoutPtr layout() { return database()->currentLayoutId().open<OdDbLayout>(OdDb::kForWrite); }
};

/// A picker over such a drawing, filled anew once the service is there.
struct PickerInHolder {
    StyledDrawing drawing;
    StyleSheets sheets;
    InHolder<Picker> in;
    Picker& picker = in.picker;

    void refill() {
        picker.ResetContent();
        picker.AddItems();
    }
    void offerSheets() { in.host.services[kKhPlotStyleService] = &sheets; }
};

std::wstring normalText() { return ktdbGetReservedString(kKtdbNormal, true).c_str(); }

}  // namespace

TEST(PlotStyleNames, StartsInNamedModeWithOptionAndOtherItems) {
    const Picker picker;
    EXPECT_EQ(picker.flags(), 2u | 4u | 8u);
    EXPECT_EQ(picker.otherMode(), -1);
    EXPECT_EQ(picker.colorDependent(), 0);
    EXPECT_EQ(picker.GetCargoOption1(), -104);
    EXPECT_EQ(picker.GetCargoOption2(), -105);
}

TEST(PlotStyleNames, OtherModeIsStoredForTheOwner) {
    Picker picker;
    picker.OtherRunsSelectPlotStyle();
    EXPECT_EQ(picker.otherMode(), 0);
    picker.OtherRunsCurrentPlotStyle();
    EXPECT_EQ(picker.otherMode(), 1);
    picker.OtherRunsDefault();
    EXPECT_EQ(picker.otherMode(), -1);
}

TEST(PlotStyleNames, WithoutTheServiceEveryNameIsListed) {
    PickerInHolder of;
    EXPECT_EQ(of.in.texts(), (Texts{L"ByLayer", L"ByBlock", normalText(), L"Thick", L"Thin"}));
    EXPECT_EQ(of.in.cargos(), (std::vector<__int64>{-104, -105, 0, 0, 0}));
    EXPECT_TRUE(of.picker.IsWindowEnabled());
}

TEST(PlotStyleNames, TableOfTheLayoutDecidesWhichNamesAreListed) {
    PickerInHolder of;
    addStyle(of.drawing.database(), L"byLAYER");
    addStyle(of.drawing.database(), L"ByBlock");
    of.sheets.styles = {L"THIN"};
    of.offerSheets();
    of.refill();
    EXPECT_EQ(of.sheets.askedSheets, Texts{L"house.stb"});
    EXPECT_EQ(of.in.texts(), (Texts{L"ByLayer", L"ByBlock", normalText(), L"Thin", L"byLAYER", L"ByBlock"}))
        << "case doesn't count, and three names always stay";
}

TEST(PlotStyleNames, LayoutOfTheSpaceInUseIsAsked) {
    PickerInHolder of;
    of.offerSheets();
    of.drawing.database()->setTILEMODE(0);
    of.drawing.layout()->setCurrentStyleSheet(L"paper.stb");
    of.refill();
    EXPECT_EQ(of.sheets.askedSheets, Texts{L"paper.stb"});
}

TEST(PlotStyleNames, UnreadableTableFiltersNothing) {
    PickerInHolder of;
    of.sheets.answer = false;
    of.offerSheets();
    of.refill();
    EXPECT_EQ(of.picker.GetCount(), 5);
}

TEST(PlotStyleNames, MissingLayoutFiltersNothing) {
    PickerInHolder of;
    of.offerSheets();
    of.drawing.layout()->erase();
    of.refill();
    EXPECT_TRUE(of.sheets.askedSheets.empty());
    EXPECT_EQ(of.picker.GetCount(), 5);
}

TEST(PlotStyleNames, NormalIsListedInTheLanguageInForceAndSelected) {
    const KtutLanguage former = ktutLanguage();
    for (const KtutLanguage language : {KtutLanguage::kEnglish, KtutLanguage::kChinese}) {
        ktutSetLanguage(language);
        PickerInHolder of;
        const std::wstring text = language == KtutLanguage::kChinese ? L"\x666E\x901A" : L"Normal";
        EXPECT_EQ(of.in.texts()[2], text);
        EXPECT_EQ(of.picker.GetCurSel(), 2);
    }
    ktutSetLanguage(former);
}

TEST(PlotStyleNames, WithoutNormalTheFirstItemIsSelected) {
    PickerInHolder of;
    OdDbDictionaryPtr names;
    of.drawing.database()->getPlotStyleNameDictionary(names, OdDb::kForWrite);
    names->remove(L"Normal");
    of.refill();
    EXPECT_EQ(of.in.texts(), (Texts{L"ByLayer", L"ByBlock", L"Thick", L"Thin"}));
    EXPECT_EQ(of.picker.GetCurSel(), 0);
}

TEST(PlotStyleNames, SortStyleOfTheControlOrdersTheNames) {
    StyledDrawing drawing;
    addStyle(drawing.database(), L"Able");
    InHolder<Picker> in(InHolder<Picker>::kByCreate, ui_test::kPickerStyle | CBS_SORT);
    EXPECT_EQ(in.texts()[0], L"Able");
    EXPECT_EQ(in.texts()[static_cast<std::size_t>(in.picker.GetCurSel())], normalText());
}

TEST(PlotStyleNames, WithoutADrawingTheListHoldsTheOptionsOnlyAndIsEnabled) {
    InHolder<Picker> in;
    EXPECT_EQ(in.texts(), (Texts{L"ByLayer", L"ByBlock"}));
    EXPECT_EQ(in.picker.GetCurSel(), -1);
    in.picker.ResetContent();
    in.picker.EnableWindow(FALSE);
    in.picker.SetNamedMode();
    EXPECT_EQ(in.picker.GetCount(), 0);
    EXPECT_TRUE(in.picker.IsWindowEnabled());
}

TEST(PlotStyleNames, WithoutTheDictionaryTheControlIsEnabledAndEmpty) {
    PickerInHolder of;
    OdDbDictionaryPtr root;
    of.drawing.database()->getNamedObjectsDictionary(root, OdDb::kForWrite);
    root->remove(L"ACAD_PLOTSTYLENAME");
    of.picker.ResetContent();
    of.picker.EnableWindow(FALSE);
    of.picker.SetNamedMode();
    EXPECT_EQ(of.picker.GetCount(), 0);
    EXPECT_TRUE(of.picker.IsWindowEnabled());
}

TEST(PlotStyleNames, WithoutAWindowOnlyTheModeChanges) {
    StyledDrawing drawing;
    Picker picker;
    picker.SetColorDependentMode();
    EXPECT_EQ(picker.flags(), 0u);
    EXPECT_EQ(picker.colorDependent(), 1);
    picker.SetNamedMode();
    EXPECT_EQ(picker.flags(), 2u | 4u | 8u);
    EXPECT_EQ(picker.colorDependent(), 0);
}

TEST(PlotStyleNames, ColorDependentModeSelectsByColorInAnEmptyList) {
    PickerInHolder of;
    of.picker.ResetContent();
    of.picker.SetColorDependentMode();
    EXPECT_EQ(of.in.texts(), Texts{L"ByColor"});
    EXPECT_EQ(of.in.cargos(), std::vector<__int64>{0});
    EXPECT_EQ(of.picker.GetCurSel(), 0);
    EXPECT_FALSE(of.picker.IsWindowEnabled());
    of.picker.SetColorDependentMode();
    EXPECT_EQ(of.picker.GetCount(), 1) << "ByColor is known by its cargo";
}

TEST(PlotStyleNames, ColorDependentModeOnAFilledListSelectsTheFirstNameNotByColor) {
    PickerInHolder of;
    of.picker.SetCurSel(4);
    of.picker.SetColorDependentMode();
    EXPECT_EQ(of.picker.GetCurSel(), 2);
    EXPECT_EQ(of.picker.GetCount(), 5);
    EXPECT_EQ(of.picker.FindStringExact(-1, L"ByColor"), CB_ERR);
    EXPECT_FALSE(of.picker.IsWindowEnabled());
}

TEST(PlotStyleNames, ColorDependentModeOffersNoOther) {
    PickerInHolder of;
    of.picker.SetColorDependentMode();
    of.in.dropDown();
    of.in.closeUp();
    EXPECT_EQ(of.picker.FindItemByCargo(kCargoOther), -1);
}

TEST(PlotStyleNames, LeavingColorDependentModeKeepsByColorAndAppendsTheNames) {
    PickerInHolder of;
    of.picker.ResetContent();
    of.picker.SetColorDependentMode();
    of.picker.SetNamedMode();
    EXPECT_EQ(of.in.texts(), (Texts{L"ByColor", normalText(), L"Thick", L"Thin"}));
    EXPECT_EQ(of.picker.GetCurSel(), 1);
    EXPECT_TRUE(of.picker.IsWindowEnabled());
}

TEST(PlotStyleNames, NamedModeTwiceListsTheNamesTwice) {
    PickerInHolder of;
    of.picker.SetNamedMode();
    EXPECT_EQ(of.picker.GetCount(), 8);
    EXPECT_EQ(of.picker.GetCurSel(), 2) << "the first of two";
}

TEST(PlotStyleNames, ThereIsNoImageColumn) {
    PickerInHolder of;
    EXPECT_GT(of.picker.ItemHeight(), 0);
    EXPECT_EQ(of.picker.ImageWidth(), 0);
    EXPECT_EQ(of.picker.ExtraWidth(), 0);
}

TEST(PlotStyleNamesOther, ChosenNameIsSelectedIfItIsListed) {
    PickerInHolder of;
    std::wstring asked;
    bool allowed = false;
    of.in.host.onPlotStyleDialog = [&](const std::wstring& current, bool allow, std::wstring& chosen) {
        asked = current;
        allowed = allow;
        chosen = L"Thin";
        return true;
    };
    of.picker.SetCurSel(3);
    of.in.choose(5);
    EXPECT_EQ(asked, L"Thick");
    EXPECT_TRUE(allowed);
    EXPECT_EQ(of.picker.GetCurSel(), 4);
    EXPECT_EQ(of.picker.lastSelection(), 4);
    EXPECT_EQ(of.picker.GetCount(), 6) << "with Other";
}

TEST(PlotStyleNamesOther, UnknownNameIsAppended) {
    PickerInHolder of;
    of.in.host.onPlotStyleDialog = [](const std::wstring&, bool, std::wstring& chosen) {
        chosen = L"Dotted";
        return true;
    };
    int index = -7;
    EXPECT_EQ(of.picker.OnSelectOther(0, 2, index), 1);
    EXPECT_EQ(index, 5);
    EXPECT_EQ(of.in.texts()[5], L"Dotted");
    EXPECT_EQ(of.picker.GetItemCargo(5), 0);
    EXPECT_EQ(of.picker.GetCurSel(), 5);
}

TEST(PlotStyleNamesOther, CancelAndNoNameKeepTheSelection) {
    PickerInHolder of;
    int index = -7;
    EXPECT_EQ(of.picker.OnSelectOther(0, 2, index), 0) << "cancelled";
    of.in.host.onPlotStyleDialog = [](const std::wstring&, bool, std::wstring&) { return true; };
    of.in.host.plotStyleDialogNamesNone = true;
    EXPECT_EQ(of.picker.OnSelectOther(0, 2, index), 0) << "accepted without a name";
    of.in.host.hasUiHost = false;
    EXPECT_EQ(of.picker.OnSelectOther(0, 2, index), 0) << "shutting down";
    EXPECT_EQ(index, -7);
    EXPECT_EQ(of.picker.GetCurSel(), 2);
    EXPECT_EQ(of.picker.GetCount(), 5);
}

TEST(PlotStyleNamesOther, NeitherWhichNorModeMakesADifference) {
    PickerInHolder of;
    Texts asked;
    std::vector<bool> allowed;
    of.in.host.onPlotStyleDialog = [&](const std::wstring& current, bool allow, std::wstring&) {
        asked.push_back(current);
        allowed.push_back(allow);
        return false;
    };
    int index = -1;
    of.picker.OnSelectOther(1, 99, index);
    of.picker.SetAllowByLayerByBlock(0);
    of.picker.OtherRunsCurrentPlotStyle();
    of.picker.OnSelectOther(7, 3, index);
    of.picker.SetAllowByLayerByBlock(-1);
    of.picker.OnSelectOther(0, -1, index);
    EXPECT_EQ(asked, (Texts{L"", L"Thick", L""}));
    EXPECT_EQ(allowed, (std::vector<bool>{true, false, true}));
}

TEST(PlotStyleNames, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        PickerInHolder of;
        of.offerSheets();
        of.refill();
        of.in.dropDown();
        of.in.closeUp();
        of.picker.SetColorDependentMode();
    };
    ui_test::expectNothingLeft(openAndClose);
}

TEST(PlotStyleNames, TheFirstNormalIsSelectedHoweverOftenItIsListed) {
    PickerInHolder of;
    of.picker.SetUseByLayer(0);
    of.picker.SetUseByBlock(0);
    of.picker.ResetContent();
    of.picker.AddItems();
    of.picker.AddItems();
    EXPECT_EQ(of.in.texts(), (Texts{normalText(), L"Thick", L"Thin", normalText(), L"Thick", L"Thin"}));
    EXPECT_EQ(of.picker.GetCurSel(), 0);
}
