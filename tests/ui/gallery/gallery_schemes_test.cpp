// What the pages of the gallery show can be read in the colours of the system: the standard ones, dark ones,
// and those of high contrast.
#include "color_scheme.h"
#include "gallery_fixture.h"
#include "picture.h"

using namespace gallery_test;
using namespace ui_test;

namespace {

/// The scheme comes first: controls take its colours when they are made.
class SchemeOfTest : public ::testing::WithParamInterface<Scheme> {
protected:
    SchemeOfTest() : m_scheme(GetParam()) {}

private:
    const ColorsOfScheme m_scheme;
};

class GallerySchemes : public SchemeOfTest, public OpenGallery {
protected:
    GallerySchemes() : OpenGallery({kEnglish, kStandard}) {}

    static constexpr int kFieldOfComboBox = 1001;

    /// Where a control shows its text: without its frame, its arrow and its box for a check mark.
    static CRect textPlace(CWnd& control) {
        constexpr int kFrame = 4, kMark = 18;
        CRect place;
        control.GetClientRect(&place);
        if (classOf(control).CompareNoCase(L"Static") == 0) return place;
        place.DeflateRect(kFrame, kFrame);
        if (classOf(control).CompareNoCase(L"ComboBox") == 0) place.right -= ::GetSystemMetrics(SM_CXVSCROLL);
        const DWORD type = control.GetStyle() & BS_TYPEMASK;
        if (classOf(control).CompareNoCase(L"Button") == 0 && !isPushButton(control) && type != BS_OWNERDRAW)
            place.left += kMark;
        return place;
    }
    /// The window that shows the text of a control: the field of a combo box that can be typed into.
    static CWnd& shows(CWnd& control) {
        CWnd* field = control.GetDlgItem(kFieldOfComboBox);
        return field != nullptr ? *field : control;
    }
    static Picture textOf(CWnd& control) {
        CWnd& window = shows(control);
        control.RedrawWindow();
        window.RedrawWindow();
        return Picture(window, textPlace(window));
    }
    /// Push buttons are drawn by the system's theme, which has colours of its own.
    static bool isPushButton(CWnd& control) {
        const DWORD type = control.GetStyle() & BS_TYPEMASK;
        return classOf(control).CompareNoCase(L"Button") == 0 &&
               (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON || type == BS_SPLITBUTTON);
    }
    static bool isDark(COLORREF color) { return luminance(color) < 0.2; }
};

TEST_P(GallerySchemes, TextsOfEveryPageCanBeRead) {
    int looked = 0;
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        pump();
        for (CWnd* each : controls()) {
            const CString text = ui_test::text_of(*each);
            if (!each->IsWindowVisible() || text.IsEmpty()) continue;
            EXPECT_GE(strongestContrast(textOf(*each)), each->IsWindowEnabled() ? kReadable : kVisible)
                << where(i) << ": " << CStringA(classOf(*each)) << " " << CStringA(text);
            ++looked;
        }
    }
    EXPECT_GT(looked, 200);
}

TEST_P(GallerySchemes, ControlsStandOnTheColorsOfTheScheme) {
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        pump();
        for (CWnd* each : controls()) {
            if (!each->IsWindowVisible() || ui_test::text_of(*each).IsEmpty() || isPushButton(*each))
                continue;
            EXPECT_EQ(isDark(textOf(*each).commonest()), isDark(GetParam().window))
                << where(i) << ": " << CStringA(classOf(*each)) << " " << CStringA(ui_test::text_of(*each));
        }
    }
}

TEST_P(GallerySchemes, PicturesInPickersStandOnTheColorOfWindows) {
    int looked = 0;
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        pump();
        for (CWnd* each : controls()) {
            auto* picker = dynamic_cast<CKtUiMRUComboBox*>(each);
            // Colors show themselves, and the first of the tables is none, without a picture.
            const bool isOther = dynamic_cast<CKtUiColorComboBox*>(each) != nullptr ||
                                 dynamic_cast<CKtUiTrueColorComboBox*>(each) != nullptr ||
                                 dynamic_cast<CKtUiPlotStyleTablesComboBox*>(each) != nullptr;
            if (picker == nullptr || isOther || !each->IsWindowVisible() || !each->IsWindowEnabled())
                continue;
            if (picker->GetCurSel() < 0 || picker->ImageWidth() == 0) continue;
            each->RedrawWindow();
            CRect client;
            each->GetClientRect(&client);
            const Picture image(*each, CRect(4, 4, 3 + picker->ImageWidth(), client.bottom - 4));
            EXPECT_EQ(image.commonest(), GetParam().window) << where(i);
            EXPECT_GE(strongestContrast(image), kVisible) << where(i);
            ++looked;
        }
    }
    EXPECT_EQ(looked, 5) << "linetype, lineweight, arrowhead, block and font";
}

INSTANTIATE_TEST_SUITE_P(, GallerySchemes, ::testing::ValuesIn(kSchemes), nameOfScheme);

}  // namespace
