// A picker that has the focus shows it, whoever paints its face.
#include <ktui/host/test_door.h>

#include "../../../samples/drafter/dimension_style_dialog.h"
#include "drafter_fixture.h"
#include "picture.h"

using namespace ui_test;

namespace {

/// A theme that paints plain faces in the colour of windows.
struct PlainTheme {
    static HTHEME WINAPI Open(HWND, LPCWSTR) { return reinterpret_cast<HTHEME>(0x1234); }
    static HRESULT WINAPI Close(HTHEME) { return S_OK; }
    static BOOL WINAPI Active() { return TRUE; }
    static BOOL WINAPI Opaque(HTHEME, int, int) { return FALSE; }
    static HRESULT WINAPI Draw(HTHEME, HDC dc, int, int, const RECT* area, const RECT*) {
        ::FillRect(dc, area, ::GetSysColorBrush(COLOR_WINDOW));
        return S_OK;
    }
    static HRESULT WINAPI Content(HTHEME, HDC, int, int, const RECT* bounds, RECT* content) {
        *content = *bounds;
        ::InflateRect(content, -3, -3);
        return S_OK;
    }

    PlainTheme() {
        ThemeApi api = MakeThemeApi({});
        api.openThemeData = Open;
        api.closeThemeData = Close;
        api.isThemeActive = Active;
        api.isThemeBackgroundPartiallyTransparent = Opaque;
        api.drawThemeBackground = Draw;
        api.getThemeBackgroundContentRect = Content;
        m_former = KtUiTestDoor().exchangeThemeApi(api);
    }
    ~PlainTheme() { KtUiTestDoor().exchangeThemeApi(m_former); }

private:
    ThemeApi m_former;
};

class FocusMark : public DrafterTest {
protected:
    FocusMark() : dialog(*drawing, &parent) {}

    static Picture shown(CWnd& control) {
        pump();
        control.UpdateWindow();
        return Picture(control);
    }
    /// Expects dots around the field of the picker while it has the focus, and only then.
    void expectMark(int id) {
        CWnd& picker = item(dialog, id);
        item(dialog, IDC_ARROW_SIZE).SetFocus();
        const Picture without = shown(picker);
        picker.SetFocus();
        const Picture with = shown(picker);
        const CRect mark = with.difference(without);
        const int field = with.width() - ::GetSystemMetrics(SM_CXVSCROLL);
        // On a themed face the picture of an item may cover the left edge.
        EXPECT_GE(mark.Width(), field * 3 / 4) << "picker " << id;
        EXPECT_GE(mark.Height(), with.height() - 10) << "picker " << id;
        int dots = 0;
        for (int x = mark.left; x < mark.right; ++x)
            if (contrast(with.at(x, mark.top), without.at(x, mark.top)) >= kVisible) ++dots;
        EXPECT_GE(dots, mark.Width() / 3) << "the dots of the upper edge can be seen, picker " << id;
        picker.Invalidate();
        EXPECT_EQ(shown(picker), with) << "painting twice doesn't wipe it out, picker " << id;
        item(dialog, IDC_ARROW_SIZE).SetFocus();
        EXPECT_EQ(shown(picker), without) << "it goes with the focus, picker " << id;
    }
    void expectMarks() {
        ::SetCursorPos(0, 0);
        for (const int id : {IDC_FIRST_ARROW, IDC_DIMENSION_COLOR, IDC_DIMENSION_WEIGHT,
                             IDC_DIMENSION_LINETYPE, IDC_CALLOUT})
            expectMark(id);
    }

    WithOwnSettings<CDimensionStyleDialog> dialog;
};

}  // namespace

TEST_F(FocusMark, IsSeenOnAFaceThatThePlatformPaints) {
    show(dialog, [&] {
        ASSERT_FALSE(CKbUiComboBox::IsVistaTheme());
        expectMarks();
    });
}

TEST_F(FocusMark, IsSeenOnAThemedFace) {
    const PlainTheme theme;
    show(dialog, [&] { expectMarks(); });
}

TEST_F(FocusMark, StaysWhenAKeySelectsAnotherItem) {
    show(dialog, [&] {
        CWnd& picker = item(dialog, IDC_DIMENSION_COLOR);
        picker.SetFocus();
        key(picker, VK_DOWN);
        const Picture with = shown(picker);
        item(dialog, IDC_ARROW_SIZE).SetFocus();
        EXPECT_GT(with.difference(shown(picker)).Width(), 0);
    });
}
