// The text style dialog with fonts that a test sets up, and without any.
#include "../../../samples/drafter/text_style_dialog.h"

#include <standin_host.h>

#include "../../../samples/drafter/resource.h"
#include "../pickers/font_fixture.h"
#include "ui_test.h"

namespace {

const wchar_t* const kSettings = L"Software\\ktui drafter test";

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

class Dialog : public CTextStyleDialog {
public:
    Dialog(OdDbDatabase& drawing, CWnd* parent) : CTextStyleDialog(drawing, parent) {
        SetAppRootKey((CString(kSettings) + L"\\").GetString());
    }
};

class TextStyleDialog : public ::testing::Test {
protected:
    explicit TextStyleDialog(bool withFonts = true)
        : host(withFonts ? &fonts : nullptr), drawing(new OdDbDatabase) {
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
        AfxGetApp()->m_pMainWnd = &parent;
    }
    ~TextStyleDialog() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kSettings);
    }

    OdDbTextStyleTableRecordPtr standard() {
        return drawing->textstyle().open<OdDbTextStyleTableRecord>(OdDb::kForWrite);
    }
    /// Shows the dialog, runs `action` in it, and answers it with `answer`.
    void show(const std::function<void(CWnd&)>& action, int answer = IDOK) {
        Dialog dialog(*drawing, &parent);
        ui_test::later([&] {
            action(dialog);
            dialog.PostMessage(WM_COMMAND, static_cast<WPARAM>(answer));
        });
        EXPECT_EQ(dialog.DoModal(), answer);
    }
    static CString entry(CWnd& dialog, int id) {
        CWnd* combo = dialog.GetDlgItem(id);
        const auto index = static_cast<WPARAM>(combo->SendMessage(CB_GETCURSEL));
        wchar_t text[100] = {};
        combo->SendMessage(CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
        return text;
    }
    static void notify(CWnd& dialog, int id, int code) {
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(id, code),
                           reinterpret_cast<LPARAM>(dialog.GetDlgItem(id)->m_hWnd));
    }
    /// Selects an entry of a combo box as the user does.
    static void pick(CWnd& dialog, int id, const wchar_t* text) {
        CWnd* combo = dialog.GetDlgItem(id);
        const auto index =
            combo->SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
        ASSERT_GE(index, 0) << odUtf8(text);
        combo->SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index));
        notify(dialog, id, CBN_SELCHANGE);
    }
    static bool isEnabled(CWnd& dialog, int id) { return dialog.GetDlgItem(id)->IsWindowEnabled() != 0; }

    ui_test::FakeFonts fonts;
    FontHost host;
    OdDbDatabasePtr drawing;
    ui_test::ParentWindow parent;
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
        EXPECT_EQ(ui_test::text_of(dialog.GetDlgItem(IDC_MESSAGE)->m_hWnd), L"");
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
        EXPECT_NE(ui_test::text_of(dialog.GetDlgItem(IDC_MESSAGE)->m_hWnd).Find(L"gone.ttf"), -1);
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
            refused += ui_test::text_of(dialog.GetDlgItem(IDC_MESSAGE)->m_hWnd).IsEmpty() ? 0 : 1;
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
