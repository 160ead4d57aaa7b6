// When a set's strip shows, at which side, and when it is painted.
#include "palette_fixture.h"

namespace {

using namespace docking_test;

/// Opens the style of a strip.
struct StyledStrip : CXToolTabCtrl {
    static constexpr UINT CXToolTabCtrl::*style() { return &StyledStrip::m_style; }
};

int paints = 0, erased = 0;
WNDPROC formerStripProc = nullptr;
LRESULT CALLBACK countPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    paints += message == WM_PAINT;
    erased += message == WM_ERASEBKGND;
    return ::CallWindowProcW(formerStripProc, window, message, wParam, lParam);
}

struct PaletteSetStrip : PaletteSetTest {
    void putAtLeft() { strip().*StyledStrip::style() = 0x1D; }
    bool isStripEmptyAtTheOrigin() { return placeOf(strip()) == CRect(0, 0, 0, 0); }
    /// Counts the paintings of the strip from here on.
    void countPaintings() {
        ui_test::pump();
        strip().UpdateWindow();
        formerStripProc = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(strip(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(countPaints)));
        paints = erased = 0;
    }
    void TearDown() override {
        if (formerStripProc && strip().m_hWnd)
            ::SetWindowLongPtrW(strip(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(formerStripProc));
        formerStripProc = nullptr;
    }
};

TEST_F(PaletteSetStrip, ASinglePaletteThatIsActivatedByPointerHidesItEvenWithItsStyle) {
    make(64);
    fill({L"A"});
    sizeTo(210, 300);
    ASSERT_FALSE(placeOf(strip()).IsRectEmpty());
    EXPECT_EQ(set.SetActivePalette(set.GetPalette(0)), 1);
    EXPECT_TRUE(isStripEmptyAtTheOrigin());
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 192, 300);
    sizeTo(200, 400);
    expectRect(placeOf(strip()), 182, 0, 200, 400);
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 182, 400);
}

TEST_F(PaletteSetStrip, ASinglePaletteThatIsActivatedByIndexLeavesItWhereItIs) {
    make(64);
    fill({L"A"});
    sizeTo(210, 300);
    EXPECT_EQ(set.SetActivePalette(0), 1);
    expectRect(placeOf(strip()), 192, 0, 210, 300);
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 192, 300);
}

TEST_F(PaletteSetStrip, AtTheLeftThePaletteStandsBesideIt) {
    make();
    fill({L"A", L"B"});
    putAtLeft();
    set.SetActivePalette(set.GetPalette(1));
    expectRect(placeOf(strip()), 0, 0, 18, 400);
    expectRect(placeOf(*set.GetPalette(1)), 18, 0, 200, 400);
    set.SetActivePalette(0);
    expectRect(placeOf(*set.GetPalette(0)), 18, 0, 200, 400);
    sizeTo(210, 300);
    expectRect(placeOf(strip()), 0, 0, 18, 300);
    expectRect(placeOf(*set.GetPalette(0)), 18, 0, 210, 300);
}

TEST_F(PaletteSetStrip, AtTheLeftASinglePaletteIsPushedAsideUntilTheNextSize) {
    make();
    fill({L"A"});
    putAtLeft();
    set.SetActivePalette(set.GetPalette(0));
    EXPECT_TRUE(isStripEmptyAtTheOrigin());
    expectRect(placeOf(*set.GetPalette(0)), 18, 0, 200, 400);
    sizeTo(210, 300);
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 210, 300);
}

TEST_F(PaletteSetStrip, ASizeBelowTheLeastOneIsTakenAsItIs) {
    make();
    fill({L"A", L"B"});
    set.SetActivePalette(0);
    for (const CSize size : {CSize(60, 50), CSize(99, 400), CSize(300, 139)}) {
        set.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(size.cx, size.cy));
        const int width = static_cast<int>(size.cx), height = static_cast<int>(size.cy);
        expectRect(placeOf(strip()), width - 18, 0, width, height);
        expectRect(placeOf(*set.GetPalette(0)), 0, 0, width - 18, height);
    }
}

TEST_F(PaletteSetStrip, IsPaintedWithoutErasingWhenAPaletteIsActivated) {
    make();
    fill({L"A", L"B"});
    set.SetActivePalette(set.GetPalette(0));
    countPaintings();
    set.SetActivePalette(0);
    EXPECT_EQ(paints, 1);
    set.SetActivePalette(set.GetPalette(0));
    EXPECT_EQ(paints, 2);
    EXPECT_EQ(erased, 0);
}

TEST_F(PaletteSetStrip, IsPaintedWithoutErasingWhenItsNamesAreUpdated) {
    make();
    fill({L"A", L"B"});
    set.SetActivePalette(set.GetPalette(0));
    countPaintings();
    set.UpdateTabs();
    EXPECT_EQ(paints, 1);
    EXPECT_EQ(erased, 0);
}

TEST_F(PaletteSetStrip, ATabsTipStaysTheFormerName) {
    make();
    fill({L"A"});
    set.GetPalette(0)->SetName(L"Z");
    set.UpdateTabs();
    EXPECT_EQ(strip().GetTab(0)->m_text, L"Z");
    EXPECT_EQ(strip().GetTab(0)->m_tip, L"A");
}

TEST_F(PaletteSetStrip, ANegativeActiveIndexIsNone) {
    make();
    fill({L"A", L"B"});
    strip().StoreActiveTab(-3);
    EXPECT_EQ(set.GetActivePaletteTabIndex(), -1);
    EXPECT_EQ(set.GetActivePalette(), nullptr);
}

}  // namespace
