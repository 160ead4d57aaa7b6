// Wizards: the way through their pages, and their buttons.
#include "sheet_fixture.h"

namespace {

using namespace sheets;

class Wizard : public Sheets {
protected:
    Wizard() {
        sheet.AddPage(&third);
        sheet.SetWizardMode();
        first.onActive = [this] { sheet.SetWizardButtons(PSWIZB_NEXT); };
        second.onActive = [this] { sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT); };
        third.onActive = [this] { sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH); };
    }
};

TEST_F(Wizard, GoesForwardAndBackAndFinishes) {
    std::vector<bool> states;
    const INT_PTR result = run([&] {
        const auto note = [&] {
            ui_test::pump();
            states.push_back(enabled(ID_WIZBACK));
            states.push_back(shown(ID_WIZNEXT) && enabled(ID_WIZNEXT));
            states.push_back(shown(ID_WIZFINISH) && enabled(ID_WIZFINISH));
        };
        note();
        press(PSBTN_NEXT);
        note();
        press(PSBTN_NEXT);
        note();
        press(PSBTN_BACK);
        note();
        press(PSBTN_NEXT);
        ui_test::pump();
        press(PSBTN_FINISH);
    });
    EXPECT_EQ(result, ID_WIZFINISH);
    EXPECT_EQ(states, (std::vector<bool>{false, true, false, true, true, false, true, false, true, true, true,
                                         false}));
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 next", "1 leave", "2 init", "2 active", "2 next", "2 leave",
                        "3 init", "3 active", "3 back", "3 leave", "2 active", "2 next", "2 leave",
                        "3 active", "3 finish"}));
}

TEST_F(Wizard, APageMayStayOrGoElsewhere) {
    std::vector<int> places;
    first.next = -1;
    run([&] {
        const auto note = [&] { places.push_back(sheet.GetActiveIndex()); };
        press(PSBTN_NEXT);
        note();
        first.next = kThird;
        press(PSBTN_NEXT);
        note();
        third.back = -1;
        press(PSBTN_BACK);
        note();
        third.back = kFirst;
        press(PSBTN_BACK);
        note();
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(places, (std::vector<int>{0, 2, 2, 0}));
}

TEST_F(Wizard, APageMayRefuseToFinish) {
    first.finishes = FALSE;
    bool stayed = false;
    const INT_PTR result = run([&] {
        press(PSBTN_FINISH);
        stayed = (sheet.m_nFlags & WF_CONTINUEMODAL) != 0;
        press(PSBTN_CANCEL);
    });
    EXPECT_TRUE(stayed);
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(Wizard, TheFinishTextHidesTheOtherButtons) {
    CString text;
    bool back = true, next = true, finish = false;
    run([&] {
        sheet.SetFinishText(L"All done");
        ui_test::pump();
        text = ui_test::text_of(button(ID_WIZFINISH));
        back = shown(ID_WIZBACK);
        next = shown(ID_WIZNEXT);
        finish = shown(ID_WIZFINISH);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(text, L"All done");
    EXPECT_FALSE(back);
    EXPECT_FALSE(next);
    EXPECT_TRUE(finish);
}

TEST_F(Wizard, ButtonsArePressedByMessages) {
    EXPECT_EQ(run([&] {
                  sheet.PressButton(PSBTN_NEXT);
                  sheet.PressButton(PSBTN_FINISH);
              }),
              ID_WIZFINISH);
    EXPECT_EQ(log.back(), "2 finish");
}

TEST(PropertySheets, TakePicturesForAWizard) {
    HBITMAP mark = ::CreateBitmap(8, 8, 1, 1, nullptr);
    CPropertySheet plain;
    plain.Construct(L"x", nullptr, 0, mark, nullptr, mark);
    EXPECT_EQ(plain.m_psh.hbmWatermark, mark);
    EXPECT_EQ(plain.m_psh.hbmHeader, mark);
    const DWORD flags = PSH_WATERMARK | PSH_USEHBMWATERMARK | PSH_HEADER | PSH_USEHBMHEADER;
    EXPECT_EQ(plain.m_psh.dwFlags & flags, flags);
    EXPECT_EQ(plain.m_psh.dwFlags & PSH_USEHPLWATERMARK, 0u);
    plain.Construct(L"y");
    EXPECT_EQ(plain.m_psh.dwFlags & flags, 0u);
    ::DeleteObject(mark);
}

}  // namespace
