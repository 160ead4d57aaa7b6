// Fonts in the text style dialog as files: browsed for, come and gone while the dialog is open.
#include "../standin/font_folder.h"
#include "message_text.h"
#include "text_style_fixture.h"

namespace {

/// A host with the fonts of one folder, and another folder whose fonts it doesn't know.
class TextStyleFonts : public ui_test::TextStyleDialogTest {
protected:
    TextStyleFonts() : of({folder.path()}) {
        folder.writeOutline(L"beta.ttf", "Beta", "Regular");
        folder.writeOutline(L"betabd.ttf", "Beta", "Bold", 700);
        folder.writeShx(L"plan.shx");
        loader = [this](const CString& file, CString& text) { return of.host.LoadFontFile(file, text); };
        fontFile = &picked;
        standard()->setFileName(L"beta.ttf");
    }

    static void click(CWnd& dialog, int id) { dialog.GetDlgItem(id)->SendMessage(BM_CLICK); }
    static void dropFonts(CWnd& dialog) {
        dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_SHOWDROPDOWN, TRUE);
        dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_SHOWDROPDOWN, FALSE);
    }
    static bool lists(CWnd& dialog, int id, const wchar_t* font) {
        const UINT find = id == IDC_BIG_FONTS ? LB_FINDSTRINGEXACT : CB_FINDSTRINGEXACT;
        return dialog.GetDlgItem(id)->SendMessage(find, static_cast<WPARAM>(-1),
                                                  reinterpret_cast<LPARAM>(font)) >= 0;
    }
    /// Browses for `file` and answers the words of the message box that comes up.
    CString refusalOf(CWnd& dialog, const CString& file) {
        CString text;
        picked = file;
        ui_test::when_window(
            [&dialog](HWND window) {
                return ::GetWindow(window, GW_OWNER) == dialog.m_hWnd &&
                       !ui_test::message_text(window).empty();
            },
            [&text](HWND box) {
                text = ui_test::message_text(box).c_str();
                ::PostMessageW(box, WM_COMMAND, IDOK, 0);
            });
        click(dialog, IDC_BROWSE_FONT);
        return text;
    }
    /// Waits until the host no longer lists, or lists, a file.
    bool waitUntilKnown(const wchar_t* file, bool isKnown) {
        return ui_test::pump_until([&] { return (of.list()->find(file) != nullptr) == isKnown; });
    }

    const ui_test::FontFolder folder{L"known"}, elsewhere{L"elsewhere"};
    ui_test::FontHost of;
    CString picked;
};

}  // namespace

TEST_F(TextStyleFonts, WithoutALoaderBrowseIsDisabled) {
    loader = nullptr;
    show([](CWnd& dialog) { EXPECT_FALSE(isEnabled(dialog, IDC_BROWSE_FONT)); });
}

TEST_F(TextStyleFonts, ABrowsedFontIsListedShownAndStored) {
    elsewhere.writeOutline(L"gamma.ttf", "Gamma", "Bold", 700);
    picked = elsewhere.file(L"gamma.ttf");
    show([&](CWnd& dialog) {
        EXPECT_TRUE(isEnabled(dialog, IDC_BROWSE_FONT));
        EXPECT_FALSE(lists(dialog, IDC_FONT, L"Gamma"));
        click(dialog, IDC_BROWSE_FONT);
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Gamma");
        EXPECT_EQ(entry(dialog, IDC_FONT_STYLE), L"Bold");
        EXPECT_EQ(message(dialog), L"");
        EXPECT_TRUE(lists(dialog, IDC_FONT, L"Beta")) << "the others stay";
    });
    EXPECT_EQ(standard()->fileName(), L"gamma.ttf");
    EXPECT_EQ(standard()->typeFace(), L"Gamma");
    EXPECT_TRUE(standard()->isBold());
}

TEST_F(TextStyleFonts, ACancelledQuestionOrDialogChangesNothing) {
    elsewhere.writeOutline(L"gamma.ttf", "Gamma", "Regular");
    show(
        [&](CWnd& dialog) {
            click(dialog, IDC_BROWSE_FONT);
            EXPECT_EQ(entry(dialog, IDC_FONT), L"Beta");
            picked = elsewhere.file(L"gamma.ttf");
            click(dialog, IDC_BROWSE_FONT);
            EXPECT_EQ(entry(dialog, IDC_FONT), L"Gamma");
        },
        IDCANCEL);
    EXPECT_EQ(standard()->fileName(), L"beta.ttf");
}

TEST_F(TextStyleFonts, AFontThatIsKnownAlreadyIsJustSelected) {
    picked = folder.file(L"betabd.ttf");
    show([&](CWnd& dialog) {
        const auto before = dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_GETCOUNT);
        click(dialog, IDC_BROWSE_FONT);
        EXPECT_EQ(entry(dialog, IDC_FONT_STYLE), L"Bold");
        EXPECT_EQ(dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_GETCOUNT), before);
    });
    EXPECT_EQ(standard()->fileName(), L"betabd.ttf");
}

TEST_F(TextStyleFonts, ABrowsedBigFontGoesWithAShapeFontOnly) {
    elsewhere.writeBig(L"asia.shx");
    picked = elsewhere.file(L"asia.shx");
    show([&](CWnd& dialog) {
        click(dialog, IDC_BROWSE_FONT);
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Beta");
        EXPECT_NE(message(dialog).Find(L"asia.shx"), -1);
        EXPECT_TRUE(lists(dialog, IDC_BIG_FONTS, L"asia.shx"));
        pick(dialog, IDC_FONT, L"plan.shx");
        EXPECT_EQ(message(dialog), L"");
        click(dialog, IDC_BROWSE_FONT);
        EXPECT_EQ(entry(dialog, IDC_FONT), L"plan.shx");
        EXPECT_TRUE(isEnabled(dialog, IDC_BIG_FONTS));
    });
    EXPECT_EQ(standard()->fileName(), L"plan.shx");
    EXPECT_EQ(standard()->bigFontFileName(), L"asia.shx");
}

TEST_F(TextStyleFonts, WhatIsNoUsableFontIsRefusedInWordsAndNothingChanges) {
    const std::string good = font_bytes::outlineFont(std::string("Gamma"), std::string("Regular"));
    elsewhere.write(L"cut.ttf", good.substr(0, good.size() / 2));
    elsewhere.write(L"cut.shx", font_bytes::unifont(font_bytes::letters()).substr(0, 30));
    elsewhere.write(L"library.shx", font_bytes::shapes({{130, std::string("\0\x14\0", 3)}}));
    elsewhere.write(L"notes.ttf", "Not a font at all, but a note of some length.");
    elsewhere.write(L"empty.ttf", "");
    show([&](CWnd& dialog) {
        const auto before = dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_GETCOUNT);
        const struct {
            const wchar_t *file, *words;
        } kBad[] = {{L"cut.ttf", L"damaged"},        {L"cut.shx", L"damaged"},
                    {L"library.shx", L"no letters"}, {L"notes.ttf", L"not a font"},
                    {L"empty.ttf", L"not a font"},   {L"missing.ttf", L"not found"}};
        for (const auto& bad : kBad) {
            const CString text = refusalOf(dialog, elsewhere.file(bad.file));
            EXPECT_NE(text.Find(bad.words), -1) << odUtf8(bad.file) << ": " << odUtf8(text.GetString());
            EXPECT_NE(text.Find(bad.file), -1) << odUtf8(bad.file);
            EXPECT_EQ(entry(dialog, IDC_FONT), L"Beta") << odUtf8(bad.file);
        }
        EXPECT_EQ(dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_GETCOUNT), before);
    });
    EXPECT_EQ(standard()->fileName(), L"beta.ttf");
}

TEST_F(TextStyleFonts, TheSystemsDialogAsksForTheFile) {
    elsewhere.writeOutline(L"gamma.ttf", "Gamma", "Regular");
    fontFile = nullptr;
    show([&](CWnd& dialog) {
        ui_test::when_window(
            [&dialog](HWND window) {
                return ::GetWindow(window, GW_OWNER) == dialog.m_hWnd && ::GetDlgItem(window, 1148);
            },
            [&](HWND question) {
                ::SetDlgItemTextW(question, 1148, elsewhere.file(L"gamma.ttf"));
                ::PostMessageW(question, WM_COMMAND, IDOK, 0);
            });
        click(dialog, IDC_BROWSE_FONT);
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Gamma");
    });
}

TEST_F(TextStyleFonts, AFontThatGoesWhileTheDialogIsOpenLeavesTheListAndTheStyleKeepsIt) {
    show([&](CWnd& dialog) {
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Beta");
        folder.remove(L"beta.ttf");
        folder.remove(L"betabd.ttf");
        ASSERT_TRUE(waitUntilKnown(L"beta.ttf", false));
        dropFonts(dialog);
        EXPECT_FALSE(lists(dialog, IDC_FONT, L"Beta"));
        EXPECT_EQ(dialog.GetDlgItem(IDC_FONT)->SendMessage(CB_GETCURSEL), CB_ERR);
        EXPECT_FALSE(isEnabled(dialog, IDC_FONT_STYLE));
        EXPECT_NE(message(dialog).Find(L"beta.ttf"), -1);
    });
    EXPECT_EQ(standard()->fileName(), L"beta.ttf");
}

TEST_F(TextStyleFonts, AFontThatWasPickedAndGoesGivesWayToTheFormerOne) {
    folder.writeOutline(L"gamma.ttf", "Gamma", "Regular");
    show([&](CWnd& dialog) {
        pick(dialog, IDC_FONT, L"Gamma");
        folder.remove(L"gamma.ttf");
        ASSERT_TRUE(waitUntilKnown(L"gamma.ttf", false));
        dropFonts(dialog);
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Beta");
        EXPECT_NE(message(dialog).Find(L"gamma.ttf"), -1);
    });
    EXPECT_EQ(standard()->fileName(), L"beta.ttf");
}

TEST_F(TextStyleFonts, AFontThatComesWhileTheDialogIsOpenIsListedAndTheCutStays) {
    standard()->setFileName(L"later.ttf");
    show([&](CWnd& dialog) {
        EXPECT_NE(message(dialog).Find(L"later.ttf"), -1);
        folder.writeOutline(L"later.ttf", "Later", "Regular");
        ASSERT_TRUE(waitUntilKnown(L"later.ttf", true));
        dropFonts(dialog);
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Later");
        EXPECT_EQ(message(dialog), L"");
        pick(dialog, IDC_FONT, L"Beta");
        pick(dialog, IDC_FONT_STYLE, L"Bold");
        folder.remove(L"later.ttf");
        ASSERT_TRUE(waitUntilKnown(L"later.ttf", false));
        dropFonts(dialog);
        EXPECT_EQ(entry(dialog, IDC_FONT_STYLE), L"Bold");
    });
    EXPECT_EQ(standard()->fileName(), L"betabd.ttf");
}

TEST_F(TextStyleFonts, AStyleOfAFileWithSeveralStaysWhenFontsAreListedAnew) {
    std::vector<font_bytes::TinyFont> cuts(2);
    cuts[0].called(std::string("Many"), std::string("Regular"));
    cuts[1].called(std::string("Many"), std::string("Bold"));
    cuts[1].weight = 700;
    folder.write(L"many.ttc", font_bytes::collection(cuts));
    show([&](CWnd& dialog) {
        pick(dialog, IDC_FONT, L"Many");
        pick(dialog, IDC_FONT_STYLE, L"Bold");
        folder.writeOutline(L"later.ttf", "Later", "Regular");
        ASSERT_TRUE(waitUntilKnown(L"later.ttf", true));
        dropFonts(dialog);
        EXPECT_TRUE(lists(dialog, IDC_FONT, L"Later"));
        EXPECT_EQ(entry(dialog, IDC_FONT), L"Many");
        EXPECT_EQ(entry(dialog, IDC_FONT_STYLE), L"Bold");
    });
    EXPECT_EQ(standard()->fileName(), L"many.ttc");
    EXPECT_TRUE(standard()->isBold());
}
