// The dialog for a page: which papers it knows, how it says scales, and what it leaves as it was.
#include <kh_plot_service.h>

#include "../../../platform/standin/resource.h"
#include "host_fixture.h"

namespace {

class PageSetup : public ui_test::HostTest {
protected:
    /// Shows the dialog on the settings, runs `script` in it and closes it by OK.
    void edit(const std::function<void(HWND)>& script) {
        bool shown = false;
        ui_test::when_dialog(L"Page Setup Override", [&](HWND dialog) {
            shown = true;
            script(dialog);
            ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        });
        static_cast<CKhPlotSvr*>(host.serviceManager()->getService(kKhPlotService))
            ->overrideDialog(settings.get(), 0);
        EXPECT_TRUE(shown);
    }
    static int paperIn(HWND dialog) {
        return static_cast<int>(::SendDlgItemMessageW(dialog, IDC_PAGE_PAPER, CB_GETCURSEL, 0, 0));
    }
    static bool isAcross(HWND dialog) {
        EXPECT_NE(::IsDlgButtonChecked(dialog, IDC_PAGE_PORTRAIT),
                  ::IsDlgButtonChecked(dialog, IDC_PAGE_LANDSCAPE));
        return ::IsDlgButtonChecked(dialog, IDC_PAGE_LANDSCAPE) == BST_CHECKED;
    }
    /// The paper that the dialog shows for a size, and whether it lies across.
    std::pair<int, bool> shownFor(double width, double height, bool turned = false) {
        std::pair<int, bool> shown;
        settings->setPlotPaperSize(width, height);
        settings->setPlotTurned(turned);
        edit([&](HWND dialog) { shown = {paperIn(dialog), isAcross(dialog)}; });
        return shown;
    }

    OdDbPlotSettingsPtr settings{new OdDbPlotSettings};
};

}  // namespace

TEST_F(PageSetup, ListsThePapersUprightWithTheirSizes) {
    settings->setPlotPaperSize(210, 297);
    edit([](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_PAGE_PAPER);
        std::vector<std::wstring> texts;
        for (int i = 0; i < static_cast<int>(::SendMessageW(list, CB_GETCOUNT, 0, 0)); ++i) {
            wchar_t text[64] = {};
            ::SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            texts.emplace_back(text);
        }
        EXPECT_EQ(texts, (std::vector<std::wstring>{
                             L"A4 (210 x 297 mm)", L"A3 (297 x 420 mm)", L"A2 (420 x 594 mm)",
                             L"A1 (594 x 841 mm)", L"A0 (841 x 1189 mm)", L"Letter (215.9 x 279.4 mm)",
                             L"Legal (215.9 x 355.6 mm)", L"Tabloid (279.4 x 431.8 mm)"}));
    });
}

TEST_F(PageSetup, TakesThePaperThatIsChosen) {
    settings->setPlotPaperSize(210, 297);
    const struct {
        const wchar_t* name;
        double width, height;
    } papers[] = {{L"A4", 210, 297},        {L"A3", 297, 420},         {L"A2", 420, 594},
                  {L"A1", 594, 841},        {L"A0", 841, 1189},        {L"Letter", 215.9, 279.4},
                  {L"Legal", 215.9, 355.6}, {L"Tabloid", 279.4, 431.8}};
    for (std::size_t i = 0; i < std::size(papers); ++i) {
        edit([&](HWND dialog) { ::SendDlgItemMessageW(dialog, IDC_PAGE_PAPER, CB_SETCURSEL, i, 0); });
        EXPECT_STREQ(settings->getCanonicalMediaName(), papers[i].name);
        EXPECT_EQ(settings->getPlotPaperWidth(), papers[i].width);
        EXPECT_EQ(settings->getPlotPaperHeight(), papers[i].height);
    }
}

TEST_F(PageSetup, KnowsAPaperByItsSizeHoweverItLies) {
    EXPECT_EQ(shownFor(297, 420), std::pair(1, false));
    EXPECT_EQ(shownFor(420, 297), std::pair(1, true));
    EXPECT_EQ(shownFor(297, 420, true), std::pair(1, true));
    EXPECT_EQ(shownFor(420, 297, true), std::pair(1, false));
    EXPECT_EQ(shownFor(216, 279), std::pair(5, false)) << "rounded to whole millimetres";
    EXPECT_EQ(shownFor(210.4, 296.6), std::pair(0, false));
    EXPECT_EQ(shownFor(210.5, 297), std::pair(8, false)) << "half a millimetre is another size";
    EXPECT_EQ(shownFor(210, 296.5), std::pair(8, false));
    EXPECT_EQ(shownFor(300, 300), std::pair(8, false));
}

TEST_F(PageSetup, ASizeOfItsOwnIsTurnedOnlyWhenTheUserTurnsIt) {
    settings->setPlotPaperSize(123, 45);
    edit([](HWND dialog) { EXPECT_TRUE(isAcross(dialog)); });
    EXPECT_FALSE(settings->isPlotTurned());
    edit([](HWND dialog) {
        ::CheckRadioButton(dialog, IDC_PAGE_PORTRAIT, IDC_PAGE_LANDSCAPE, IDC_PAGE_PORTRAIT);
    });
    EXPECT_TRUE(settings->isPlotTurned());
    EXPECT_EQ(settings->getPlotPaperWidth(), 123);
    edit([](HWND dialog) {
        EXPECT_FALSE(isAcross(dialog));
        ::CheckRadioButton(dialog, IDC_PAGE_PORTRAIT, IDC_PAGE_LANDSCAPE, IDC_PAGE_LANDSCAPE);
    });
    EXPECT_FALSE(settings->isPlotTurned());
}

TEST_F(PageSetup, AScaleIsSaidAsOneToManyOrManyToOne) {
    const auto said = [&](double paper, double real) {
        settings->setPlotScale(paper, real);
        CString text;
        edit([&](HWND dialog) {
            EXPECT_EQ(::IsDlgButtonChecked(dialog, IDC_PAGE_SCALE), BST_CHECKED);
            text = textOf(dialog, IDC_PAGE_PAPER_LENGTH) + L":" + textOf(dialog, IDC_PAGE_DRAWING_LENGTH);
        });
        return text;
    };
    EXPECT_EQ(said(1, 50), L"1:50");
    EXPECT_EQ(said(5, 1), L"5:1");
    EXPECT_EQ(said(2, 2), L"1:1");
}

TEST_F(PageSetup, LengthsAreAskedForOnlyWithAScale) {
    settings->setPlotFitted();
    edit([](HWND dialog) {
        const auto enabled = [dialog] {
            const BOOL paper = ::IsWindowEnabled(::GetDlgItem(dialog, IDC_PAGE_PAPER_LENGTH));
            EXPECT_EQ(::IsWindowEnabled(::GetDlgItem(dialog, IDC_PAGE_DRAWING_LENGTH)), paper);
            return paper != FALSE;
        };
        EXPECT_FALSE(enabled());
        ::SendDlgItemMessageW(dialog, IDC_PAGE_SCALE, BM_CLICK, 0, 0);
        EXPECT_TRUE(enabled());
        ::SetDlgItemTextW(dialog, IDC_PAGE_PAPER_LENGTH, L" 2 ");
        ::SetDlgItemTextW(dialog, IDC_PAGE_DRAWING_LENGTH, L"5");
    });
    EXPECT_FALSE(settings->isPlotFitted());
    EXPECT_EQ(settings->getPlotScale(), 0.4);
    edit([](HWND dialog) {
        ::SetDlgItemTextW(dialog, IDC_PAGE_PAPER_LENGTH, L"none");
        ::SendDlgItemMessageW(dialog, IDC_PAGE_FIT, BM_CLICK, 0, 0);
    });
    EXPECT_TRUE(settings->isPlotFitted()) << "and what the fields say doesn't matter";
}
