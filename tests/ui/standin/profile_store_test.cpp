// The profile of the stand-in host, and the settings of the drawing runtime that it keeps.
#include <od_tool_tip_setting.h>

#include "host_fixture.h"
#include "replaced_import.h"

namespace {
class Profile : public ui_test::HostTest {
protected:
    CKhProfileStore& profile() { return *host.profileStore(); }
    static OdDbHostAppServices& services() { return *oddbHostApplicationServices(); }
};
}  // namespace

TEST_F(Profile, ANumberIsKeptBelowTheUsersSettings) {
    EXPECT_TRUE(profile().setProfileInt(L"General", L"DefaultFormatForSave", 61, 0));
    EXPECT_EQ(stored(L"General", L"DefaultFormatForSave"), 61);
    int value = 0;
    EXPECT_TRUE(profile().getProfileInt(L"General", L"DefaultFormatForSave", value, 0));
    EXPECT_EQ(value, 61);
    EXPECT_TRUE(profile().setProfileInt(L"General", L"DefaultFormatForSave", -3, 0));
    EXPECT_TRUE(profile().getProfileInt(L"General", L"DefaultFormatForSave", value, 0));
    EXPECT_EQ(value, -3);
}

TEST_F(Profile, WhatIsNotThereOrOfAnotherKindLeavesTheValueAlone) {
    int number = 17;
    OdString text = L"before";
    EXPECT_FALSE(profile().getProfileInt(L"General", L"Nothing", number, 0));
    EXPECT_FALSE(profile().getProfileString(L"General", L"Nothing", text, 0));
    storeText(L"General", L"Word", L"eleven");
    profile().setProfileInt(L"General", L"Number", 11, 0);
    EXPECT_FALSE(profile().getProfileInt(L"General", L"Word", number, 0));
    EXPECT_FALSE(profile().getProfileString(L"General", L"Number", text, 0));
    EXPECT_EQ(number, 17);
    EXPECT_STREQ(text.c_str(), L"before");
}

TEST_F(Profile, ATextIsReadAndSectionsStayApart) {
    storeText(L"General", L"TemplatePath", L"C:\\Templates");
    OdString text;
    EXPECT_TRUE(profile().getProfileString(L"General", L"TemplatePath", text, 0));
    EXPECT_STREQ(text.c_str(), L"C:\\Templates");
    EXPECT_FALSE(profile().getProfileString(L"Export", L"TemplatePath", text, 0));
}

TEST_F(Profile, MeasurementIsMetricUntilItIsSetAndThenKept) {
    EXPECT_EQ(services().measurementInit(), 1);
    services().setMeasurementInit(0);
    EXPECT_EQ(stored(L"General", L"Measurement"), 0);
    EXPECT_EQ(services().measurementInit(), 0);
    services().setMeasurementInit(5);
    EXPECT_EQ(stored(L"General", L"Measurement"), 1);
    profile().setProfileInt(L"General", L"Measurement", 9, 0);
    EXPECT_EQ(services().measurementInit(), 1);
}

TEST_F(Profile, LineweightsAreInMillimetersUntilTheyAreSet) {
    EXPECT_TRUE(services().lineWeightsInMillimetres());
    services().setLineWeightsInMillimetres(false);
    EXPECT_EQ(stored(L"General", L"LineweightMillimeters"), 0);
    EXPECT_FALSE(services().lineWeightsInMillimetres());
    services().setLineWeightsInMillimetres(true);
    EXPECT_TRUE(services().lineWeightsInMillimetres());
}

TEST_F(Profile, TheDefaultLineweightIsAQuarterMillimeterUntilItIsSetToALegalOne) {
    EXPECT_EQ(services().defaultLineWeight(), OdDb::kLnWt025);
    services().setDefaultLineWeight(OdDb::kLnWt070);
    EXPECT_EQ(stored(L"General", L"LineweightDefault"), 70);
    EXPECT_EQ(services().defaultLineWeight(), OdDb::kLnWt070);
    profile().setProfileInt(L"General", L"LineweightDefault", 71, 0);
    EXPECT_EQ(services().defaultLineWeight(), OdDb::kLnWt025);
}

TEST_F(Profile, ASecondHostFindsTheSettingsOfTheFirst) {
    services().setMeasurementInit(0);
    services().setDefaultLineWeight(OdDb::kLnWt100);
    const CStandinHost second(*AfxGetApp());
    EXPECT_EQ(services().measurementInit(), 0);
    EXPECT_EQ(services().defaultLineWeight(), OdDb::kLnWt100);
}

TEST_F(Profile, TipsAreOnUntilTheSettingSaysOtherwise) {
    const auto* tips = dynamic_cast<OdDbToolTipSetting*>(&services());
    ASSERT_NE(tips, nullptr);
    EXPECT_EQ(tips->toolTips(), 1);
    profile().setProfileInt(L"General", L"ToolTips", 0, 0);
    EXPECT_EQ(tips->toolTips(), 0);
}

namespace {

int closedKeys = 0;

LSTATUS WINAPI noteClose(HKEY key) {
    ++closedKeys;
    return ::RegCloseKey(key);
}

}  // namespace

TEST_F(Profile, NoKeyStaysOpenBehindAnAnswer) {
    profile().setProfileInt(L"General", L"ToolTips", 1, 0);
    const ui_test::ReplacedImport close(::GetModuleHandleW(L"ktstandin.dll"), "RegCloseKey", &noteClose);
    ASSERT_TRUE(close.isThere());
    closedKeys = 0;
    int value = 0;
    OdString text;
    profile().setProfileInt(L"General", L"ToolTips", 0, 0);
    EXPECT_EQ(closedKeys, 1);
    EXPECT_TRUE(profile().getProfileInt(L"General", L"ToolTips", value, 0));
    EXPECT_EQ(closedKeys, 2);
    EXPECT_FALSE(profile().getProfileString(L"General", L"ToolTips", text, 0));
    EXPECT_EQ(closedKeys, 3);
}
