// Buttons of a task dialog that come from text resources.
#include <afxtaskdialog.h>

#include "ui_test.h"

TEST(TaskDialogResources, EachTextIsAButtonAndIdsWithoutOneAreLeftOut) {
    CTaskDialog dialog(L"content", L"instruction", L"title", 499, 503, TDCBF_OK_BUTTON | TDCBF_CANCEL_BUTTON);
    EXPECT_EQ(dialog.GetCommonButtonCount(), 2);
    for (const int id : {500, 501}) EXPECT_TRUE(dialog.IsCommandControlEnabled(id)) << id;
    for (const int id : {499, 502, 503}) EXPECT_FALSE(dialog.IsCommandControlEnabled(id)) << id;
    dialog.SetCommandControlOptions(501, FALSE, FALSE);
    EXPECT_FALSE(dialog.IsCommandControlEnabled(501));
    EXPECT_TRUE(dialog.IsCommandControlEnabled(500));
    dialog.SetCommandControlOptions(777, TRUE);
    EXPECT_FALSE(dialog.IsCommandControlEnabled(777)) << "there is none";
    dialog.LoadCommandControls(501, 501);
    EXPECT_TRUE(dialog.IsCommandControlEnabled(501));
    EXPECT_FALSE(dialog.IsCommandControlEnabled(500)) << "in place of those before";
    dialog.RemoveAllCommandControls();
    EXPECT_FALSE(dialog.IsCommandControlEnabled(501));
}

TEST(TaskDialogResources, RadioButtonsTheSame) {
    CTaskDialog dialog(L"content", L"instruction", L"title");
    EXPECT_FALSE(dialog.IsRadioButtonEnabled(500));
    dialog.LoadRadioButtons(499, 501);
    for (const int id : {500, 501}) EXPECT_TRUE(dialog.IsRadioButtonEnabled(id)) << id;
    EXPECT_FALSE(dialog.IsRadioButtonEnabled(499));
    EXPECT_FALSE(dialog.IsCommandControlEnabled(500)) << "no button of the other kind";
    dialog.SetRadioButtonOptions(500, FALSE);
    EXPECT_FALSE(dialog.IsRadioButtonEnabled(500));
    EXPECT_TRUE(dialog.IsRadioButtonEnabled(501));
    dialog.RemoveAllRadioButtons();
    EXPECT_FALSE(dialog.IsRadioButtonEnabled(501));
}
