// Wizards that are gone through, and sheets without a loop of their own, a thousand times each.
#include <afxcmn.h>

#include "empty_page.h"
#include "leak_growth.h"

namespace {

using namespace leaks;

class WizardLeaks : public ::testing::Test {
protected:
    /// Goes forward, and then finishes or gives up in turn.
    void openWizard() {
        CPropertySheet sheet(L"wizard", &parent);
        EmptyPage first, second;
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        sheet.SetWizardMode();
        const bool isFinished = ++opened % 2 == 0;
        ui_test::later([&] {
            ASSERT_NE(first.m_hWnd, nullptr);
            sheet.SetWizardButtons(PSWIZB_NEXT);
            sheet.PressButton(PSBTN_NEXT);
            ui_test::pump();
            reached += second.m_hWnd != nullptr && sheet.GetActiveIndex() == 1;
            sheet.SetFinishText(L"Done");
            sheet.PressButton(isFinished ? PSBTN_FINISH : PSBTN_CANCEL);
        });
        ASSERT_EQ(sheet.DoModal(), isFinished ? ID_WIZFINISH : IDCANCEL);
    }
    void openModeless() {
        auto sheet = std::make_unique<CPropertySheet>(L"modeless", &parent);
        EmptyPage first, second;
        sheet->AddPage(&first);
        sheet->AddPage(&second);
        ASSERT_TRUE(sheet->Create(&parent));
        sheet->SetActivePage(&second);
        second.SetModified();
        ui_test::pump();
        reached += second.m_hWnd != nullptr && sheet->GetActiveIndex() == 1;
        sheet->RemovePage(&first);
        if (++opened % 2 == 0)
            sheet->SendMessage(WM_CLOSE);
        else
            sheet->DestroyWindow();
        ui_test::pump();
        if (sheet->m_hWnd != nullptr) sheet->DestroyWindow();
    }
    ui_test::ParentWindow parent;
    int opened = 0;
    int reached = 0;  ///< how often the second page came up
};

}  // namespace

TEST_F(WizardLeaks, AThousandWizardsLeaveNothing) {
    const size_t growth = heap_growth([&] { open_bare_sheet(parent, PSH_WIZARD); });
    expect_no_growth([&] { openWizard(); }, growth, kShownGdiSlack);
    EXPECT_EQ(reached, kTimes + kWarmUp);
}

TEST_F(WizardLeaks, AThousandModelessSheetsLeaveNothing) {
    const size_t growth = heap_growth([&] { open_bare_sheet(parent, 0); });
    expect_no_growth([&] { openModeless(); }, growth, kShownGdiSlack);
    EXPECT_EQ(reached, kTimes + kWarmUp);
}
