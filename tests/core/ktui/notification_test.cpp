#include <ktui/host/notification.h>

#include <gtest/gtest.h>

TEST(Notification, UnpackingUndoesPackingForEveryId) {
    for (unsigned id = 0; id <= 0xFFFF; ++id) {
        const WPARAM packed = PackKbUiNotification(id, kKbUiNotifyEditorCommand);
        ASSERT_EQ(UnpackKbUiNotifyId(packed), id);
        ASSERT_EQ(UnpackKbUiNotification(packed), kKbUiNotifyEditorCommand);
    }
}

TEST(Notification, IdTakesOnlyItsLowWord) {
    EXPECT_EQ(UnpackKbUiNotifyId(PackKbUiNotification(0x12345, kKbUiNotifyGeneric)), 0x2345u);
    EXPECT_EQ(UnpackKbUiNotification(PackKbUiNotification(0x12345, kKbUiNotifyGeneric)), kKbUiNotifyGeneric);
}

TEST(Notification, BitsAboveTheSecondWordAreIgnored) {
    const WPARAM packed = PackKbUiNotification(7, kKbUiNotifyValidate) | (WPARAM{1} << 40);
    EXPECT_EQ(UnpackKbUiNotifyId(packed), 7u);
    EXPECT_EQ(UnpackKbUiNotification(packed), kKbUiNotifyValidate);
}

TEST(Notification, ValuesAreTheOnesThatClientsWereBuiltWith) {
    EXPECT_EQ(kKbUiNotifyGeneric, 1);
    EXPECT_EQ(kKbUiNotifyGetTipSupport, 6);
    EXPECT_EQ(kKbUiNotifyUpdateTip, 12);
    EXPECT_EQ(kKbUiNotifySetFocusToControl, 15);
    EXPECT_EQ(kKbUiNotifyControlInvalid, 17);
    EXPECT_EQ(kKbUiNotifyControlValid, 18);
    EXPECT_EQ(kKbUiNotifyValidate, 19);
    EXPECT_EQ(kKbUiNotifyEditorCommand, 20);
    EXPECT_EQ(kKbUiReplyInvalid, 2);
    EXPECT_EQ(kKbUiReplyValid, 3);
    EXPECT_EQ(kKbUiReplyTextTip, 4);
    EXPECT_EQ(kKbUiReplyNativeTip, 5);
    EXPECT_EQ(kKbUiReplyDrawnTip, 6);
    EXPECT_EQ(kKbUiReplyKeepTip, 7);
}
