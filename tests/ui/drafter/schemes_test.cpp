// What the dialogs show can be read in the colours of the system: the standard ones, dark ones, and those of
// high contrast.
#include <ktui/host/appearance.h>

#include "../../../samples/drafter/dimension_style_dialog.h"
#include "../../../samples/drafter/draft_document.h"
#include "../../../samples/drafter/properties_dialog.h"
#include "../../../samples/drafter/text_style_dialog.h"
#include "color_scheme.h"
#include "drafter_fixture.h"
#include "picture.h"

using namespace ui_test;

namespace {

class Schemes : public DrafterTest, public ::testing::WithParamInterface<Scheme> {
protected:
    Schemes() : m_scheme(GetParam()) {
        KtUiFollowSystemAppearance(TRUE);
        drawing = document.database();
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
        host.SetCurrentDocument(&document);
        const CString program = program_path();
        host.SetFontFolders({program.Left(program.ReverseFind(L'\\') + 1) + L"fonts"});
    }
    ~Schemes() override {
        host.SetCurrentDocument(nullptr);
        KtUiFollowSystemAppearance(FALSE);
    }

    static Picture fieldOf(CWnd& control, int left, int right) {
        control.UpdateWindow();
        CRect client;
        control.GetClientRect(&client);
        return Picture(control,
                       CRect(client.left + left, client.top + 4, client.left + right, client.bottom - 4));
    }
    /// Contrast of the strokes in the image column of a closed picker.
    static double markOf(CWnd& picker, int width) { return strongestContrast(fieldOf(picker, 4, 3 + width)); }
    /// The same of the text behind it.
    static double textOf(CWnd& picker, int imageWidth) {
        CRect client;
        picker.GetClientRect(&client);
        return strongestContrast(
            fieldOf(picker, imageWidth + 6, client.right - ::GetSystemMetrics(SM_CXVSCROLL) - 4));
    }

    CDraftDocument document;

private:
    ColorsOfScheme m_scheme;
};

TEST_P(Schemes, PickersOfADimensionStyle) {
    WithOwnSettings<CDimensionStyleDialog> dialog(*drawing, &parent);
    show(dialog, [&] {
        for (const int id :
             {IDC_FIRST_ARROW, IDC_DIMENSION_COLOR, IDC_DIMENSION_WEIGHT, IDC_DIMENSION_LINETYPE}) {
            auto& picker = static_cast<CKtUiMRUComboBox&>(item(dialog, id));
            picker.SetCurSel(id == IDC_DIMENSION_LINETYPE ? 2 : 3);
            pump();
            EXPECT_GE(markOf(picker, picker.ImageWidth()), kVisible) << "picture of " << id;
            EXPECT_GE(textOf(picker, picker.ImageWidth()), kReadable) << "text of " << id;
        }
        auto& callout = static_cast<CKtUiMRUComboBox&>(item(dialog, IDC_CALLOUT));
        callout.SetCurSel(2);
        pump();
        EXPECT_GE(markOf(callout, callout.ImageWidth()), kVisible);
    });
}

TEST_P(Schemes, StripsStandOnTheColorOfWindows) {
    WithOwnSettings<CDimensionStyleDialog> dialog(*drawing, &parent);
    show(dialog, [&] {
        CWnd& picker = item(dialog, IDC_FIRST_ARROW);
        item(dialog, IDC_ARROW_SIZE).SetFocus();
        pump();
        const Picture field = fieldOf(picker, 4, 16);
        EXPECT_GT(field.count(GetParam().windowText), 0) << "black became the color of texts";
        EXPECT_GT(field.count(GetParam().window), 0) << "white became the color of windows";
    });
}

TEST_P(Schemes, LinetypeSamplesStandOnTheColorOfWindows) {
    WithOwnSettings<CDimensionStyleDialog> dialog(*drawing, &parent);
    show(dialog, [&] {
        auto& picker = static_cast<CKtUiLineTypeComboBox&>(item(dialog, IDC_DIMENSION_LINETYPE));
        picker.SetCurSel(2);
        item(dialog, IDC_ARROW_SIZE).SetFocus();
        pump();
        const Picture sample = fieldOf(picker, 8, picker.ImageWidth() - 4);
        EXPECT_EQ(sample.commonest(), GetParam().window);
        EXPECT_GT(sample.count(GetParam().windowText), sample.width() / 4) << "a line in the color of texts";
    });
}

TEST_P(Schemes, InvalidFieldAndItsMessage) {
    WithOwnSettings<CPropertiesDialog> dialog(*drawing, std::vector<OdDbObjectId>(), &parent);
    show(dialog, [&] {
        CWnd& field = item(dialog, IDC_THICKNESS);
        field.SetFocus();
        field.SendMessage(EM_SETSEL, 0, -1);
        field.SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"-888888"));
        item(dialog, IDC_LAYER).SetFocus();
        pump();
        field.RedrawWindow();
        const Picture shown = fieldOf(field, 2, 60);
        EXPECT_NE(shown.commonest(), GetParam().window) << "it is marked";
        EXPECT_GE(strongestContrast(shown), kReadable);
        item(dialog, IDC_MESSAGE).RedrawWindow();
        const Picture message(item(dialog, IDC_MESSAGE));
        EXPECT_EQ(message.commonest(), GetParam().face);
        EXPECT_GE(strongestContrast(message), kReadable);
    });
}

TEST_P(Schemes, ListOfBigFontsAndItsDisabledLook) {
    WithOwnSettings<CTextStyleDialog> dialog(*drawing, &parent);
    show(dialog, [&] {
        CWnd& list = item(dialog, IDC_BIG_FONTS);
        ASSERT_GT(list.SendMessage(LB_GETCOUNT), 0);
        list.EnableWindow(FALSE);
        pump();
        EXPECT_EQ(Picture(list).commonest(), GetParam().face) << "it can't be used and looks like it";
        list.EnableWindow(TRUE);
        list.SendMessage(LB_SETCURSEL, static_cast<WPARAM>(-1));
        list.RedrawWindow();
        pump();
        const int row = static_cast<int>(list.SendMessage(LB_GETITEMHEIGHT));
        const Picture icon(list, CRect(0, 0, 15, row)), text(list, CRect(16, 0, 80, row));
        EXPECT_EQ(text.commonest(), GetParam().window);
        EXPECT_GE(strongestContrast(icon), kVisible);
        EXPECT_GE(strongestContrast(text), kReadable);
        list.SendMessage(LB_SETCURSEL, 0);
        list.RedrawWindow();
        pump();
        const Picture selected(list, CRect(16, 0, 80, row));
        EXPECT_EQ(selected.commonest(), GetParam().highlight);
        EXPECT_GE(strongestContrast(selected), kReadable);
    });
}

INSTANTIATE_TEST_SUITE_P(, Schemes, ::testing::ValuesIn(kSchemes), nameOfScheme);

}  // namespace
