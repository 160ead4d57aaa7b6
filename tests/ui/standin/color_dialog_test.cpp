// The colour dialog: what it takes, what it refuses with which words, and where the user stands afterwards.
#include "../../../platform/standin/resource.h"
#include "picture.h"
#include "standin_fixture.h"

namespace {

constexpr const wchar_t* kTitle = L"Select Color";
constexpr const wchar_t* kIndexMessage = L"Enter a color number from 1 to 255.";
constexpr const wchar_t* kPartMessage = L"Enter a number from 0 to 255 each for red, green and blue.";

class ColorDialog : public ui_test::StandinTest {
protected:
    using Script = std::function<void(HWND)>;

    bool pickIndex(int& index, bool allowMeta, const Script& script) {
        ui_test::when_dialog(kTitle, script);
        return host.uiHost()->showColorIndexDialog(index, allowMeta, 1);
    }
    bool pickColor(OdCmColor& color, bool allowMeta, const Script& script) {
        OdCmColor layer;
        layer.setColorIndex(1);
        ui_test::when_dialog(kTitle, script);
        return host.uiHost()->showTrueColorDialog(color, allowMeta, layer, nullptr);
    }
    static void type(HWND dialog, int id, const wchar_t* text) { ::SetDlgItemTextW(dialog, id, text); }

    /// Presses OK, which has to be refused with `message` and to leave the user in `field`, all of it
    /// selected.
    static void expectRefused(HWND dialog, int field, const wchar_t* message) {
        EXPECT_EQ(messageOf([&] { click(dialog, IDOK); }), message);
        EXPECT_TRUE(::IsWindow(dialog));
        const HWND edit = ::GetDlgItem(dialog, field);
        EXPECT_EQ(::GetFocus(), edit);
        DWORD start = 1, end = 1;
        ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(start, 0u);
        EXPECT_EQ(end, static_cast<DWORD>(::GetWindowTextLengthW(edit)));
    }
};

OdCmColor rgb(int red, int green, int blue) {
    OdCmColor color;
    color.setRGB(static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                 static_cast<std::uint8_t>(blue));
    return color;
}

}  // namespace

TEST_F(ColorDialog, TakesAnIndexWithinThePalette) {
    for (const auto& [text, expected] :
         std::vector<std::pair<const wchar_t*, int>>{{L"1", 1}, {L" 255 ", 255}, {L"30", 30}}) {
        int index = 5;
        EXPECT_TRUE(pickIndex(index, false, [&, typed = text](HWND dialog) {
            type(dialog, IDC_COLOR_INDEX, typed);
            click(dialog, IDOK);
        }));
        EXPECT_EQ(index, expected);
    }
}

TEST_F(ColorDialog, RefusesAnIndexOutsideThePaletteAndAnEmptyField) {
    for (const wchar_t* text : {L"300", L"0", L"256", L"-1", L"", L"  ", L"red", L"3x", L"ByLayer"}) {
        int index = 5;
        EXPECT_FALSE(pickIndex(index, false, [&](HWND dialog) {
            type(dialog, IDC_COLOR_INDEX, text);
            expectRefused(dialog, IDC_COLOR_INDEX, kIndexMessage);
            click(dialog, IDCANCEL);
        })) << CStringA(text).GetString();
        EXPECT_EQ(index, 5) << "a cancelled dialog changes nothing";
    }
}

TEST_F(ColorDialog, TakesTheRightIndexAfterARefusal) {
    int index = 5;
    EXPECT_TRUE(pickIndex(index, false, [&](HWND dialog) {
        type(dialog, IDC_COLOR_INDEX, L"300");
        expectRefused(dialog, IDC_COLOR_INDEX, kIndexMessage);
        type(dialog, IDC_COLOR_INDEX, L"30");
        click(dialog, IDOK);
    }));
    EXPECT_EQ(index, 30);
}

TEST_F(ColorDialog, NamesOfLayerAndBlockAreTakenWhereTheyAreOffered) {
    int index = 5;
    EXPECT_TRUE(pickIndex(index, true, [&](HWND dialog) {
        type(dialog, IDC_COLOR_INDEX, L"bylayer");
        click(dialog, IDOK);
    }));
    EXPECT_EQ(index, 256);
    EXPECT_TRUE(pickIndex(index, true, [&](HWND dialog) {
        click(dialog, IDC_COLOR_BYBLOCK);
        click(dialog, IDOK);
    }));
    EXPECT_EQ(index, 0);
}

TEST_F(ColorDialog, RefusesAPartOutsideItsRangeAndAnEmptyOne) {
    for (const int field : {IDC_COLOR_RED, IDC_COLOR_GREEN, IDC_COLOR_BLUE}) {
        for (const wchar_t* text : {L"300", L"256", L""}) {
            OdCmColor color = rgb(10, 20, 30);
            EXPECT_FALSE(pickColor(color, false, [&](HWND dialog) {
                type(dialog, field, text);
                expectRefused(dialog, field, kPartMessage);
                click(dialog, IDCANCEL);
            }));
            EXPECT_EQ(color, rgb(10, 20, 30));
        }
    }
}

TEST_F(ColorDialog, TheFirstOfSeveralBadPartsIsTheOneToMend) {
    OdCmColor color = rgb(10, 20, 30);
    EXPECT_TRUE(pickColor(color, false, [&](HWND dialog) {
        type(dialog, IDC_COLOR_BLUE, L"");
        type(dialog, IDC_COLOR_GREEN, L"300");
        expectRefused(dialog, IDC_COLOR_GREEN, kPartMessage);
        type(dialog, IDC_COLOR_GREEN, L"0");
        expectRefused(dialog, IDC_COLOR_BLUE, kPartMessage);
        type(dialog, IDC_COLOR_BLUE, L"255");
        click(dialog, IDOK);
    }));
    EXPECT_EQ(color, rgb(10, 0, 255));
}

TEST_F(ColorDialog, ABadPartBehindAnIndexIsRefusedToo) {
    OdCmColor color;
    color.setColorIndex(3);
    EXPECT_FALSE(pickColor(color, false, [&](HWND dialog) {
        type(dialog, IDC_COLOR_RED, L"300");
        expectRefused(dialog, IDC_COLOR_RED, kPartMessage);
        click(dialog, IDCANCEL);
    }));
    EXPECT_EQ(color.colorIndex(), 3);
}

TEST_F(ColorDialog, AnEmptiedIndexBehindATrueColorIsRefused) {
    OdCmColor color = rgb(10, 20, 30);
    EXPECT_FALSE(pickColor(color, false, [&](HWND dialog) {
        type(dialog, IDC_COLOR_INDEX, L"7");
        type(dialog, IDC_COLOR_INDEX, L"");
        expectRefused(dialog, IDC_COLOR_INDEX, kIndexMessage);
        click(dialog, IDCANCEL);
    }));
}

TEST_F(ColorDialog, AnUntouchedColorComesBackAsItWas) {
    OdCmColor color = rgb(10, 20, 30);
    EXPECT_TRUE(pickColor(color, false, [&](HWND dialog) { click(dialog, IDOK); }));
    EXPECT_EQ(color, rgb(10, 20, 30));
    color.setColorIndex(42);
    EXPECT_TRUE(pickColor(color, false, [&](HWND dialog) { click(dialog, IDOK); }));
    EXPECT_TRUE(color.isByACI());
    EXPECT_EQ(color.colorIndex(), 42);
}

TEST_F(ColorDialog, OffersLayerAndBlockOnlyWhereTheyAreAllowed) {
    for (const bool allowed : {false, true}) {
        int index = 5;
        EXPECT_FALSE(pickIndex(index, allowed, [&](HWND dialog) {
            for (const int id : {IDC_COLOR_BYLAYER, IDC_COLOR_BYBLOCK})
                EXPECT_EQ(::IsWindowEnabled(::GetDlgItem(dialog, id)) != FALSE, allowed);
            click(dialog, IDCANCEL);
        }));
    }
}

TEST_F(ColorDialog, AsksForPartsOnlyWhereTrueColorsAreTaken) {
    constexpr int kParts[] = {IDC_COLOR_RGB_LABEL, IDC_COLOR_RED, IDC_COLOR_GREEN, IDC_COLOR_BLUE};
    int index = 5;
    EXPECT_FALSE(pickIndex(index, false, [&](HWND dialog) {
        for (const int id : kParts) EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(dialog, id))) << id;
        click(dialog, IDCANCEL);
    }));
    OdCmColor color = rgb(10, 20, 30);
    EXPECT_FALSE(pickColor(color, false, [&](HWND dialog) {
        for (const int id : kParts) EXPECT_TRUE(::IsWindowVisible(::GetDlgItem(dialog, id))) << id;
        click(dialog, IDCANCEL);
    }));
}

TEST_F(ColorDialog, BeginsInTheIndexWithAllOfItSelected) {
    int index = 128;
    EXPECT_FALSE(pickIndex(index, false, [&](HWND dialog) {
        const HWND edit = ::GetDlgItem(dialog, IDC_COLOR_INDEX);
        EXPECT_EQ(::GetFocus(), edit);
        EXPECT_EQ(::SendMessageW(edit, EM_GETSEL, 0, 0), MAKELRESULT(0, 3));
        EXPECT_EQ(textOf(dialog, IDC_COLOR_INDEX), L"128");
        click(dialog, IDCANCEL);
    }));
}

TEST_F(ColorDialog, ShowsWhatTheColorIsCalled) {
    const auto shown = [&](const OdCmColor& start) {
        OdCmColor color = start;
        CString text;
        EXPECT_FALSE(pickColor(color, true, [&](HWND dialog) {
            text = textOf(dialog, IDC_COLOR_INDEX);
            click(dialog, IDCANCEL);
        }));
        return text;
    };
    OdCmColor color;
    color.setColorIndex(256);
    EXPECT_EQ(shown(color), L"ByLayer");
    color.setColorIndex(0);
    EXPECT_EQ(shown(color), L"ByBlock");
    color.setColorIndex(77);
    EXPECT_EQ(shown(color), L"77");
    EXPECT_EQ(shown(rgb(1, 2, 3)), L"") << "a true color has no index";
}

TEST_F(ColorDialog, AnIndexThatIsNoneBeginsWithTheForeground) {
    int index = 999;
    EXPECT_TRUE(pickIndex(index, false, [&](HWND dialog) {
        EXPECT_EQ(textOf(dialog, IDC_COLOR_INDEX), L"7");
        click(dialog, IDOK);
    }));
    EXPECT_EQ(index, 7);
}

TEST_F(ColorDialog, TypedPartsTakeTheIndexAway) {
    OdCmColor color;
    color.setColorIndex(5);
    EXPECT_TRUE(pickColor(color, false, [&](HWND dialog) {
        EXPECT_EQ(textOf(dialog, IDC_COLOR_BLUE), L"255");
        type(dialog, IDC_COLOR_RED, L"9");
        EXPECT_EQ(textOf(dialog, IDC_COLOR_INDEX), L"");
        EXPECT_EQ(textOf(dialog, IDC_COLOR_BLUE), L"255");
        click(dialog, IDOK);
    }));
    EXPECT_EQ(color, rgb(9, 0, 255));
}

TEST_F(ColorDialog, TheButtonOfTheLayerTakesItsColorAndName) {
    OdCmColor color = rgb(10, 20, 30);
    EXPECT_TRUE(pickColor(color, true, [&](HWND dialog) {
        click(dialog, IDC_COLOR_BYLAYER);
        EXPECT_EQ(textOf(dialog, IDC_COLOR_INDEX), L"ByLayer");
        EXPECT_EQ(textOf(dialog, IDC_COLOR_RED), L"255") << "the layer is red";
        EXPECT_EQ(textOf(dialog, IDC_COLOR_BLUE), L"0");
        click(dialog, IDOK);
    }));
    EXPECT_TRUE(color.isByLayer());
}

TEST_F(ColorDialog, TheSampleShowsTheColorInAFrame) {
    const auto sample = [&](const OdCmColor& start) {
        OdCmColor color = start;
        COLORREF inner = CLR_INVALID;
        EXPECT_FALSE(pickColor(color, true, [&](HWND dialog) {
            const HWND window = ::GetDlgItem(dialog, IDC_COLOR_SAMPLE);
            ui_test::pump();
            ::UpdateWindow(window);
            const ui_test::Picture picture(*CWnd::FromHandle(window));
            const int right = picture.width() - 1, bottom = picture.height() - 1;
            for (const CPoint corner : {CPoint(0, 0), CPoint(right, bottom)})
                EXPECT_EQ(picture.at(corner.x, corner.y), ::GetSysColor(COLOR_BTNTEXT));
            inner = picture.at(1, 1);
            EXPECT_EQ(picture.at(right - 1, bottom - 1), inner);
            click(dialog, IDCANCEL);
        }));
        return inner;
    };
    EXPECT_EQ(sample(rgb(10, 20, 30)), static_cast<COLORREF>(RGB(10, 20, 30)));
    OdCmColor color;
    color.setColorIndex(5);
    EXPECT_EQ(sample(color), static_cast<COLORREF>(RGB(0, 0, 255)));
    color.setColorIndex(256);
    EXPECT_EQ(sample(color), static_cast<COLORREF>(RGB(255, 0, 0))) << "that of the layer";
    color.setColorIndex(0);
    EXPECT_EQ(sample(color), static_cast<COLORREF>(RGB(255, 255, 255))) << "the foreground";
}
