// The sheet of save options: what its pages show, what OK stores, and what Cancel leaves.
#include <ktui/nav/save_option_sheet.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "in_language.h"
#include "open_drawing.h"
#include "ui_test.h"
#include "without_strings.h"

namespace {

constexpr const wchar_t* kFormatSetting = L"General/DefaultFormatForSave";

class SaveOptions : public ::testing::Test {
protected:
    /// Runs the sheet; `act` gets its window and must end it.
    INT_PTR run(std::function<void(HWND)> act, const wchar_t* title = L"Save As Options") {
        CSaveOptionSheet sheet(&parent);
        ui_test::when_dialog(title, std::move(act));
        return sheet.DoModal();
    }
    static void press(HWND sheet, int button) {
        ::PostMessageW(sheet, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }
    static HWND page(HWND sheet) {
        return reinterpret_cast<HWND>(::SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
    }
    static HWND showDxf(HWND sheet) {
        ::SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
        return page(sheet);
    }
    static HWND control(HWND page, int id) { return ::GetDlgItem(page, id); }
    static LRESULT ask(HWND page, int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendDlgItemMessageW(page, id, message, wParam, lParam);
    }
    static std::wstring rowOf(HWND page, int id, int row) {
        wchar_t text[200] = {};
        ask(page, id, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
        return text;
    }
    static bool isChecked(HWND page, int id) { return ::IsDlgButtonChecked(page, id) == BST_CHECKED; }
    static void click(HWND page, int id) { ask(page, id, BM_CLICK); }

    ui_test::TestHost host;
    ui_test::OpenDrawing open{host};
    OdDbDatabase& drawing = open.drawing();
    ui_test::TestDocument& document = open.document;
    ui_test::ParentWindow parent;
};

TEST_F(SaveOptions, HasTwoPagesAndHelpAndNoApply) {
    EXPECT_EQ(run([](HWND sheet) {
                  EXPECT_EQ(ui_test::text_of(sheet), L"Save As Options")
                      << "without the system's word for properties";
                  const HWND tabs = reinterpret_cast<HWND>(::SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
                  ASSERT_EQ(::SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0), 2);
                  std::wstring names;
                  for (WPARAM i = 0; i < 2; ++i) {
                      wchar_t text[50] = {};
                      TCITEMW item = {};
                      item.mask = TCIF_TEXT;
                      item.pszText = text;
                      item.cchTextMax = 50;
                      ::SendMessageW(tabs, TCM_GETITEMW, i, reinterpret_cast<LPARAM>(&item));
                      names += std::wstring(text) + L"|";
                  }
                  EXPECT_EQ(names, L"Drawings|DXF files|");
                  EXPECT_NE(control(page(sheet), 57081), nullptr) << "drawings come first";
                  EXPECT_FALSE(::IsWindowVisible(control(sheet, 0x3021)));
                  EXPECT_TRUE(::IsWindowVisible(control(sheet, 9)));
                  EXPECT_TRUE(::IsWindowEnabled(control(sheet, 9)));
                  EXPECT_NE(control(showDxf(sheet), 57096), nullptr);
                  EXPECT_TRUE(::IsWindowEnabled(control(sheet, 9)));
                  press(sheet, IDCANCEL);
              }),
              IDCANCEL);
}

TEST_F(SaveOptions, ItsHeadersHaveTheirFlags) {
    CSaveOptionSheet sheet;
    EXPECT_EQ(sheet.m_psh.dwFlags & 0x281, 0x280u);
    ASSERT_EQ(sheet.GetPageCount(), 2);
    EXPECT_TRUE(sheet.GetPage(0)->m_psp.dwFlags & 0x20);
    EXPECT_TRUE(sheet.GetPage(1)->m_psp.dwFlags & 0x20);
    EXPECT_EQ(LOWORD(sheet.GetPage(0)->m_psp.pszTemplate), 57080);
    EXPECT_EQ(LOWORD(sheet.GetPage(1)->m_psp.pszTemplate), 57090);
}

TEST_F(SaveOptions, HelpOpensTheHosts) {
    run([this](HWND sheet) {
        ::SendMessageW(sheet, WM_COMMAND, 57670, 0);
        EXPECT_EQ(host.helpCalls, 1);
        ::SendMessageW(sheet, WM_COMMAND, 9, 0);
        EXPECT_EQ(host.helpCalls, 2) << "the button";
        showDxf(sheet);
        ::SendMessageW(sheet, WM_COMMAND, 9, 0);
        EXPECT_EQ(host.helpCalls, 3);
        host.hasUiHost = false;
        ::SendMessageW(sheet, WM_COMMAND, 57670, 0);
        host.hasUiHost = true;
        EXPECT_EQ(host.helpCalls, 3);
        press(sheet, IDCANCEL);
    });
}

TEST_F(SaveOptions, F1InAFieldOpensTheHostsHelpOnce) {
    run([this](HWND sheet) {
        const auto askIn = [this](HWND field) {
            host.helpCalls = 0;
            HELPINFO info = {sizeof info, HELPINFO_WINDOW, ::GetDlgCtrlID(field), field, 0, {}};
            ::SendMessageW(field, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
            EXPECT_EQ(host.helpCalls, 1) << info.iCtrlId;
        };
        askIn(control(page(sheet), 57082));
        askIn(control(showDxf(sheet), 57096));
        press(sheet, IDCANCEL);
    });
}

TEST_F(SaveOptions, ADrawingsSettingsAreShown) {
    for (const int proxies : {0, 1})
        for (int index = 0; index < 4; ++index) {
            drawing.setPROXYGRAPHICS(proxies);
            drawing.setINDEXCTL(index);
            run([=](HWND sheet) {
                EXPECT_EQ(isChecked(page(sheet), 57081), proxies == 1);
                EXPECT_EQ(ask(page(sheet), 57082, CB_GETCURSEL), index);
                press(sheet, IDCANCEL);
            });
        }
}

TEST_F(SaveOptions, AnIndexIsOneOfFour) {
    run([](HWND sheet) {
        ASSERT_EQ(ask(page(sheet), 57082, CB_GETCOUNT), 4);
        EXPECT_EQ(rowOf(page(sheet), 57082, 0), L"None");
        EXPECT_EQ(rowOf(page(sheet), 57082, 1), L"Layers");
        EXPECT_EQ(rowOf(page(sheet), 57082, 2), L"Spaces");
        EXPECT_EQ(rowOf(page(sheet), 57082, 3), L"Layers and spaces");
        press(sheet, IDCANCEL);
    });
}

TEST_F(SaveOptions, TheTextsAreBuiltInWhereTheLibraryHasNone) {
    const ui_test::WithoutStrings strings;
    run(
        [](HWND sheet) {
            const wchar_t* const indexes[] = {L"无", L"图层", L"空间", L"图层和空间"};
            for (int i = 0; i < 4; ++i) EXPECT_EQ(rowOf(page(sheet), 57082, i), indexes[i]);
            press(sheet, IDCANCEL);
        },
        L"另存为选项");
}

TEST_F(SaveOptions, TheFormatsAreListedWithTheirExtensions) {
    host.saveFormats = {{1060, L"Own drawing"}};
    run([](HWND sheet) {
        ASSERT_EQ(ask(page(sheet), 57083, CB_GETCOUNT), 15);
        EXPECT_EQ(rowOf(page(sheet), 57083, 0), L"Own drawing (*.dwg)");
        EXPECT_EQ(ask(page(sheet), 57083, CB_GETITEMDATA, 0), 1060);
        EXPECT_EQ(rowOf(page(sheet), 57083, 1), L"AutoCAD 2013 Drawing (*.dwg)");
        EXPECT_EQ(ask(page(sheet), 57083, CB_GETITEMDATA, 1), 60);
        EXPECT_EQ(rowOf(page(sheet), 57083, 7), L"AutoCAD Drawing Standards (*.dws)");
        EXPECT_EQ(rowOf(page(sheet), 57083, 8), L"AutoCAD Drawing Template (*.dwt)");
        EXPECT_EQ(rowOf(page(sheet), 57083, 14), L"AutoCAD R12(LT2) DXF (*.dxf)");
        EXPECT_EQ(ask(page(sheet), 57083, CB_GETITEMDATA, 14), 1);
        press(sheet, IDCANCEL);
    });
}

TEST_F(SaveOptions, WithoutASettingThe2013DrawingIsSelected) {
    host.saveFormats = {{1060, L"Own drawing"}};
    run([](HWND sheet) {
        EXPECT_EQ(ask(page(sheet), 57083, CB_GETCURSEL), 1);
        press(sheet, IDCANCEL);
    });
}

TEST_F(SaveOptions, TheFormatOfTheSettingIsSelectedOrNone) {
    const auto selected = [this](int format) {
        host.profileInts[kFormatSetting] = format;
        LRESULT row = -2;
        run([&row](HWND sheet) {
            row = ask(page(sheet), 57083, CB_GETCURSEL);
            press(sheet, IDCANCEL);
        });
        return static_cast<int>(row);
    };
    EXPECT_EQ(selected(60), 0);
    EXPECT_EQ(selected(24), 3);
    EXPECT_EQ(selected(1), 13);
    EXPECT_EQ(selected(4), -1) << "known, but not offered";
}

TEST_F(SaveOptions, AFormatWithoutARowShiftsTheSelectionToANeighbour) {
    host.saveFormats = {{1002, L"of no base"}, {1060, L"Own drawing"}};
    host.profileInts[kFormatSetting] = 1060;
    run([](HWND sheet) {
        EXPECT_EQ(ask(page(sheet), 57083, CB_GETCOUNT), 15);
        EXPECT_EQ(rowOf(page(sheet), 57083, 0), L"Own drawing (*.dwg)");
        EXPECT_EQ(ask(page(sheet), 57083, CB_GETCURSEL), 1) << "its place in the list";
        press(sheet, IDCANCEL);
    });
}

TEST_F(SaveOptions, OkStoresWhatWasSetForDrawings) {
    drawing.setPROXYGRAPHICS(0);
    drawing.setINDEXCTL(0);
    EXPECT_EQ(run([](HWND sheet) {
                  click(page(sheet), 57081);
                  ask(page(sheet), 57082, CB_SETCURSEL, 3);
                  ask(page(sheet), 57083, CB_SETCURSEL, 2);
                  press(sheet, IDOK);
              }),
              IDOK);
    EXPECT_EQ(drawing.getPROXYGRAPHICS(), 1);
    EXPECT_EQ(drawing.getINDEXCTL(), 3);
    EXPECT_EQ(host.profileInts[kFormatSetting], 36);
    EXPECT_TRUE(document.calls.empty()) << "the other page was never shown";
    EXPECT_EQ(run([](HWND sheet) {
                  click(page(sheet), 57081);
                  press(sheet, IDOK);
              }),
              IDOK);
    EXPECT_EQ(drawing.getPROXYGRAPHICS(), 0);
}

TEST_F(SaveOptions, WithNoFormatSelectedTheSettingStays) {
    host.profileInts[kFormatSetting] = 4;
    EXPECT_EQ(run([](HWND sheet) { press(sheet, IDOK); }), IDOK);
    EXPECT_EQ(host.profileInts[kFormatSetting], 4);
}

TEST_F(SaveOptions, CancelChangesNothing) {
    drawing.setPROXYGRAPHICS(1);
    drawing.setINDEXCTL(2);
    drawing.setModified(false);
    EXPECT_EQ(run([](HWND sheet) {
                  click(page(sheet), 57081);
                  ask(page(sheet), 57082, CB_SETCURSEL, 0);
                  ask(page(sheet), 57083, CB_SETCURSEL, 5);
                  click(showDxf(sheet), 57092);
                  press(sheet, IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(drawing.getPROXYGRAPHICS(), 1);
    EXPECT_EQ(drawing.getINDEXCTL(), 2);
    EXPECT_FALSE(drawing.isModified());
    EXPECT_EQ(host.profileInts.count(kFormatSetting), 0u);
    EXPECT_TRUE(document.calls.empty());
}

struct DxfShown {
    bool text, binary, object, precisionEnabled, previewEnabled;
    std::wstring precision;
    bool operator==(const DxfShown&) const = default;
};

class DxfOptions : public SaveOptions {
protected:
    static DxfShown shown(HWND page) {
        return {isChecked(page, 57091),
                isChecked(page, 57092),
                isChecked(page, 57095),
                ::IsWindowEnabled(control(page, 57096)) != FALSE,
                ::IsWindowEnabled(control(page, 57094)) != FALSE,
                ui_test::text_of(control(page, 57096)).GetString()};
    }
    DxfShown shownAtFirst() {
        DxfShown result = {};
        run([&result](HWND sheet) {
            result = shown(showDxf(sheet));
            press(sheet, IDCANCEL);
        });
        return result;
    }
};

TEST_F(DxfOptions, WithoutVariablesItIsATextOfSixteenDecimals) {
    EXPECT_EQ(shownAtFirst(), (DxfShown{true, false, false, true, false, L"16"}));
}

TEST_F(DxfOptions, TheVariablesAreShown) {
    document.numbers[L"DXFSAVEPRECISION"] = 7;
    document.switches[L"DXFSAVEOBJECT"] = true;
    EXPECT_EQ(shownAtFirst(), (DxfShown{true, false, true, true, false, L"7"}));
    document.switches[L"DXFSAVEBINARY"] = true;
    document.switches[L"DXFSAVEOBJECT"] = false;
    EXPECT_EQ(shownAtFirst(), (DxfShown{false, true, false, false, false, L"7"}));
}

TEST_F(DxfOptions, EachRunOfASheetBeginsWithSixteenDecimals) {
    CSaveOptionSheet sheet(&parent);
    const auto shownBy = [&] {
        DxfShown result = {};
        ui_test::when_dialog(L"Save As Options", [&result](HWND window) {
            result = shown(showDxf(window));
            press(window, IDCANCEL);
        });
        sheet.DoModal();
        return result;
    };
    document.numbers[L"DXFSAVEPRECISION"] = 7;
    EXPECT_EQ(shownBy(), (DxfShown{true, false, false, true, false, L"7"}));
    document.numbers.clear();
    EXPECT_EQ(shownBy(), (DxfShown{true, false, false, true, false, L"16"}));
}

TEST_F(DxfOptions, OnlyATextHasDecimals) {
    run([](HWND sheet) {
        const HWND dxf = showDxf(sheet);
        click(dxf, 57092);
        EXPECT_EQ(shown(dxf), (DxfShown{false, true, false, false, false, L"16"}));
        click(dxf, 57091);
        EXPECT_EQ(shown(dxf), (DxfShown{true, false, false, true, false, L"16"}));
        press(sheet, IDCANCEL);
    });
}

TEST_F(DxfOptions, OkStoresTheVariablesInTheirOrder) {
    EXPECT_EQ(run([](HWND sheet) {
                  const HWND dxf = showDxf(sheet);
                  ::SetDlgItemTextW(dxf, 57096, L"0");
                  click(dxf, 57095);
                  press(sheet, IDOK);
              }),
              IDOK);
    EXPECT_EQ(document.calls,
              (std::vector<std::wstring>{L"DXFSAVEBINARY=off", L"DXFSAVEPRECISION=0", L"DXFSAVEOBJECT=on"}));
}

TEST_F(DxfOptions, TheDecimalsOfABinaryFileAreStoredToo) {
    EXPECT_EQ(run([](HWND sheet) {
                  const HWND dxf = showDxf(sheet);
                  ::SetDlgItemTextW(dxf, 57096, L"9");
                  click(dxf, 57092);
                  press(sheet, IDOK);
              }),
              IDOK);
    EXPECT_EQ(document.calls,
              (std::vector<std::wstring>{L"DXFSAVEBINARY=on", L"DXFSAVEPRECISION=9", L"DXFSAVEOBJECT=off"}));
}

TEST_F(DxfOptions, BothPagesAreStoredOnceBothWereShown) {
    EXPECT_EQ(run([](HWND sheet) {
                  ask(page(sheet), 57082, CB_SETCURSEL, 1);
                  showDxf(sheet);
                  press(sheet, IDOK);
              }),
              IDOK);
    EXPECT_EQ(drawing.getINDEXCTL(), 1);
    EXPECT_EQ(document.calls.size(), 3u);
}

TEST_F(DxfOptions, DecimalsOutOfRangeKeepThePage) {
    int refused = 0;
    EXPECT_EQ(run([&refused](HWND sheet) {
                  const HWND dxf = showDxf(sheet);
                  for (const wchar_t* wrong : {L"17", L"-1", L"abc", L""}) {
                      ::SetDlgItemTextW(dxf, 57096, wrong);
                      ui_test::when_window(
                          [=](HWND window) {
                              wchar_t name[16] = {};
                              ::GetClassNameW(window, name, 16);
                              return window != sheet && ::lstrcmpW(name, L"#32770") == 0;
                          },
                          [&refused](HWND box) {
                              ++refused;
                              ::PostMessageW(box, WM_COMMAND, IDOK, 0);
                          });
                      ::SendMessageW(sheet, WM_COMMAND, IDOK, 0);
                      EXPECT_EQ(page(sheet), dxf) << "the sheet is still open";
                  }
                  press(sheet, IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(refused, 4);
    EXPECT_TRUE(document.calls.empty());
}

TEST_F(DxfOptions, TheLimitsAreDecimalsToo) {
    for (const wchar_t* limit : {L"0", L"16"}) {
        document.calls.clear();
        EXPECT_EQ(run([limit](HWND sheet) {
                      ::SetDlgItemTextW(showDxf(sheet), 57096, limit);
                      press(sheet, IDOK);
                  }),
                  IDOK);
        ASSERT_EQ(document.calls.size(), 3u);
        EXPECT_EQ(document.calls[1], std::wstring(L"DXFSAVEPRECISION=") + limit);
    }
}

TEST(SaveOptionTexts, StandInTheResourceLibraryInBothLanguages) {
    ui_test::expect_library_texts({
        {54031, L"None", L"无"},
        {54032, L"Layers", L"图层"},
        {54033, L"Spaces", L"空间"},
        {54034, L"Layers and spaces", L"图层和空间"},
        {54035, L"Save As Options", L"另存为选项"},
    });
}

}  // namespace
