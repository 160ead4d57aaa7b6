// The text style dialog with fonts that a test sets up, and without any.
#include "../pickers/font_fixture.h"
#include "text_style_fixture.h"

namespace {

/// A complete host whose font list is the test's.
class FontHost final : public CStandinHost, private CKhRuntimeHost {
public:
    explicit FontHost(CKhFontList* fonts) : CStandinHost(*AfxGetApp()), m_fonts(fonts) {}
    CKhRuntimeHost* runtimeHost() override { return this; }

private:
    void findFile(OdString& path, const wchar_t*, const OdDbDatabase*, int) override { path.empty(); }
    CKhFontList* shxFontList() override { return m_fonts; }
    int supportDirectories(wchar_t (*)[kKhPathLength], int) override { return 0; }

    CKhFontList* m_fonts;
};

class TextStyleDialog : public ui_test::TextStyleDialogTest {
protected:
    explicit TextStyleDialog(bool withFonts = true) : host(withFonts ? &fonts : nullptr) {}

    ui_test::FakeFonts fonts;
    FontHost host;
};

class TextStyleDialogWithoutFonts : public TextStyleDialog {
protected:
    TextStyleDialogWithoutFonts() : TextStyleDialog(false) {}
};

TEST_F(TextStyleDialog, AKnownFontIsShownWithItsCutAndNoBigFont) {
    standard()->setFileName(L"arialbd.ttf");
    show([&](CWnd& dialog) {
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Arial");
        EXPECT_EQ(entry(dialog, IDC_FONT_STYLE), L"Bold");
        EXPECT_FALSE(isEnabled(dialog, IDC_USE_BIG_FONT));
        EXPECT_FALSE(isEnabled(dialog, IDC_BIG_FONTS));
        EXPECT_EQ(message(dialog), L"");
    });
    EXPECT_EQ(standard()->fileName(), L"arialbd.ttf");
}

TEST_F(TextStyleDialog, AnotherCutOfAFamilyIsStoredWithItsFileAndFlags) {
    standard()->setFileName(L"arial.ttf");
    show([&](CWnd& dialog) { pick(dialog, IDC_FONT_STYLE, L"Bold"); });
    EXPECT_EQ(standard()->fileName(), L"arialbd.ttf");
    EXPECT_EQ(standard()->typeFace(), L"Arial");
    EXPECT_TRUE(standard()->isBold());
    EXPECT_FALSE(standard()->isItalic());
}

TEST_F(TextStyleDialog, AShapeFontTakesABigFont) {
    standard()->setFileName(L"arial.ttf");
    standard()->setFont(L"Arial", false, false);
    show([&](CWnd& dialog) {
        pick(dialog, IDC_FONT, L"txt.shx");
        EXPECT_FALSE(isEnabled(dialog, IDC_FONT_STYLE));
        EXPECT_TRUE(isEnabled(dialog, IDC_USE_BIG_FONT));
        EXPECT_FALSE(isEnabled(dialog, IDC_BIG_FONTS));
        dialog.GetDlgItem(IDC_USE_BIG_FONT)->SendMessage(BM_CLICK);
        EXPECT_TRUE(isEnabled(dialog, IDC_BIG_FONTS));
        dialog.GetDlgItem(IDC_BIG_FONTS)->SendMessage(LB_SETCURSEL, 0);
        notify(dialog, IDC_BIG_FONTS, LBN_SELCHANGE);
    });
    EXPECT_EQ(standard()->fileName(), L"txt.shx");
    EXPECT_EQ(standard()->bigFontFileName(), L"big.shx");
    EXPECT_TRUE(standard()->typeFace().isEmpty());
}

TEST_F(TextStyleDialog, AnOutlineFontEndsTheBigFont) {
    standard()->setFileName(L"txt.shx");
    standard()->setBigFontFileName(L"big.shx");
    show([&](CWnd& dialog) {
        EXPECT_EQ(dialog.GetDlgItem(IDC_BIG_FONTS)->SendMessage(LB_GETCURSEL), 0);
        pick(dialog, IDC_FONT, L"Arial");
    });
    EXPECT_EQ(standard()->fileName(), L"arial.ttf");
    EXPECT_TRUE(standard()->bigFontFileName().isEmpty());
    EXPECT_EQ(standard()->typeFace(), L"Arial");
}

TEST_F(TextStyleDialog, UncheckingTakesTheBigFontAway) {
    standard()->setFileName(L"txt.shx");
    standard()->setBigFontFileName(L"other.shx");
    show([&](CWnd& dialog) {
        EXPECT_EQ(dialog.GetDlgItem(IDC_BIG_FONTS)->SendMessage(LB_GETCURSEL), LB_ERR) << "it is not here";
    });
    EXPECT_EQ(standard()->bigFontFileName(), L"other.shx") << "and stays all the same";
    show([&](CWnd& dialog) { dialog.GetDlgItem(IDC_USE_BIG_FONT)->SendMessage(BM_CLICK); });
    EXPECT_TRUE(standard()->bigFontFileName().isEmpty());
}

TEST_F(TextStyleDialog, AnUnknownFontIsNamedAndStays) {
    standard()->setFileName(L"gone.ttf");
    standard()->setFont(L"Gone", true, false);
    show([&](CWnd& dialog) {
        EXPECT_EQ(dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_GETCURSEL), CB_ERR);
        EXPECT_NE(message(dialog).Find(L"gone.ttf"), -1);
    });
    EXPECT_EQ(standard()->fileName(), L"gone.ttf");
    EXPECT_EQ(standard()->typeFace(), L"Gone");
    EXPECT_TRUE(standard()->isBold());
}

TEST_F(TextStyleDialogWithoutFonts, EverythingStaysAndSizesCanBeEdited) {
    standard()->setFileName(L"txt.shx");
    standard()->setBigFontFileName(L"big.shx");
    show([&](CWnd& dialog) {
        EXPECT_EQ(dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_GETCOUNT), 0);
        dialog.GetDlgItem(IDC_TEXT_HEIGHT)->SetWindowText(L"4");
    });
    EXPECT_EQ(standard()->fileName(), L"txt.shx");
    EXPECT_EQ(standard()->bigFontFileName(), L"big.shx");
    EXPECT_EQ(standard()->textSize(), 4);
}

TEST_F(TextStyleDialog, ASlantOrWidthOutOfRangeIsRefused) {
    int refused = 0;
    show([&](CWnd& dialog) {
        const auto refuses = [&](int id, const wchar_t* bad, const wchar_t* good) {
            dialog.GetDlgItem(id)->SetWindowText(bad);
            dialog.SendMessage(WM_COMMAND, IDOK);
            refused += message(dialog).IsEmpty() ? 0 : 1;
            dialog.GetDlgItem(id)->SetWindowText(good);
        };
        refuses(IDC_TEXT_SLANT, L"86", L"-85");
        refuses(IDC_TEXT_WIDTH, L"0", L"0.5");
        refuses(IDC_TEXT_WIDTH, L"101", L"2");
        refuses(IDC_TEXT_HEIGHT, L"-1", L"3");
    });
    EXPECT_EQ(refused, 4);
    EXPECT_EQ(standard()->xScale(), 2);
}

}  // namespace
