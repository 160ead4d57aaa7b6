#include <ktui/host/notification.h>
#include <ktui/controls/kbui_list_box.h>
#include <ktui/controls/kbui_list_ctrl.h>
#include <ktui/input/kbui_combo_box.h>
#include <ktui/input/kbui_edit.h>

#include "recording_holder.h"

using ui_test::RecordingHolder;

namespace {

constexpr UINT kChildId = 0x4321;

/// A control that holds a child itself and records what its own virtual hears.
class HoldingEdit : public CKbUiEdit {
public:
    std::vector<ui_test::Heard> own;
    KBUI_REPLY ownReply = kKbUiReplyHandled;

protected:
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) override {
        own.push_back({id, notification, static_cast<LPARAM>(datum)});
        return ownReply;
    }
};

/// A holder window with an edit, which holds a recording child of its own.
struct Nest {
    RecordingHolder top;
    HoldingEdit edit;
    RecordingHolder child;

    Nest() {
        edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &top, 7);
        ::SetWindowLongPtrW(child.m_hWnd, GWL_STYLE, WS_CHILD);
        ::SetParent(child.m_hWnd, edit.m_hWnd);
        ::SetWindowLongPtrW(child.m_hWnd, GWLP_ID, kChildId);
    }
};

}  // namespace

TEST(NotificationRouting, NumberIsTheRegisteredMessages) {
    EXPECT_EQ(KbUiMessage(), ::RegisterWindowMessageW(L"KbUIMessage"));
    EXPECT_EQ(KbUiMessage(), KbUiMessage());
}

TEST(NotificationRouting, UnpackingIsExported) {
    EXPECT_EQ(KbUiNotification(0x0013FFFE), kKbUiNotifyValidate);
    EXPECT_EQ(KbUiNotifyId(0x0013FFFE), 0xFFFEu);
}

TEST(NotificationRouting, SendPacksWhatTheReceiverUnpacks) {
    RecordingHolder holder;
    holder.reply = kKbUiReplyKeepTip;
    for (const unsigned id : {0u, 1u, 0x8000u, 0xFFFFu}) {
        EXPECT_EQ(KbUiNotify(holder, id, kKbUiNotifyControlChange, 0x1122334455667788ull), kKbUiReplyKeepTip);
        EXPECT_EQ(holder.heard.back().id, id);
        EXPECT_EQ(holder.heard.back().notification, kKbUiNotifyControlChange);
        EXPECT_EQ(holder.heard.back().datum, 0x1122334455667788ll);
    }
    EXPECT_EQ(KbUiNotify(&holder, 9, kKbUiNotifyGeneric, 77), kKbUiReplyKeepTip);
    EXPECT_EQ(holder.heard.back().id, 9u);
    EXPECT_EQ(holder.heard.back().notification, kKbUiNotifyGeneric);
    EXPECT_EQ(holder.heard.back().datum, 77);
    EXPECT_EQ(KbUiNotify(static_cast<CWnd*>(nullptr), 9, kKbUiNotifyGeneric, 0), kKbUiReplyNone);
}

TEST(NotificationRouting, WindowOutsideTheProtocolRepliesNone) {
    ui_test::ParentWindow window;
    EXPECT_EQ(KbUiNotify(window, 1, kKbUiNotifyGetTipSupport, 0), kKbUiReplyNone);
}

TEST(NotificationRouting, IdZeroGoesStraightToTheReceiver) {
    Nest nest;
    ::SetWindowLongPtrW(nest.child.m_hWnd, GWLP_ID, 0);
    EXPECT_EQ(KbUiNotify(nest.edit, 0, kKbUiNotifyGeneric, 5), kKbUiReplyHandled);
    EXPECT_TRUE(nest.child.heard.empty());
    ASSERT_EQ(nest.edit.own.size(), 1u);
    EXPECT_EQ(nest.edit.own[0].id, 0u);
    EXPECT_EQ(nest.edit.own[0].datum, 5);
}

TEST(NotificationRouting, ChildThatRepliesStopsTheMessage) {
    Nest nest;
    nest.child.reply = kKbUiReplyTextTip;
    EXPECT_EQ(KbUiNotify(nest.edit, kChildId, kKbUiNotifyGeneric, 5), kKbUiReplyTextTip);
    ASSERT_EQ(nest.child.heard.size(), 1u);
    EXPECT_EQ(nest.child.heard[0].id, kChildId) << "the child gets the message as it came";
    EXPECT_EQ(nest.child.heard[0].notification, kKbUiNotifyGeneric);
    EXPECT_EQ(nest.child.heard[0].datum, 5);
    EXPECT_TRUE(nest.edit.own.empty());
}

TEST(NotificationRouting, ChildThatRepliesNoneLetsTheHolderDecide) {
    Nest nest;
    EXPECT_EQ(KbUiNotify(nest.edit, kChildId, kKbUiNotifyGeneric, 5), kKbUiReplyHandled);
    EXPECT_EQ(nest.child.heard.size(), 1u);
    ASSERT_EQ(nest.edit.own.size(), 1u);
    EXPECT_EQ(nest.edit.own[0].id, kChildId);
}

TEST(NotificationRouting, OwnIdIsNoChildsId) {
    Nest nest;
    EXPECT_EQ(KbUiNotify(nest.edit, 7, kKbUiNotifyGeneric, 0), kKbUiReplyHandled);
    EXPECT_EQ(nest.edit.own.size(), 1u);
}

TEST(NotificationRouting, NegativeReplyKeepsItsSign) {
    Nest nest;
    nest.edit.ownReply = static_cast<KBUI_REPLY>(-2);
    EXPECT_EQ(nest.edit.SendMessage(KbUiMessage(), PackKbUiNotification(0, kKbUiNotifyGeneric), 0), -2);
}

TEST(NotificationRouting, UnknownNotificationsReplyNoneEverywhere) {
    RecordingHolder top;
    CKbUiEdit edit;
    CKbUiListBox list;
    CKbUiComboBox combo;
    CKbUiListCtrl table;
    CKbUiHeaderCtrl header;
    edit.Create(WS_CHILD, CRect(0, 0, 100, 20), &top, 7);
    list.Create(WS_CHILD, CRect(0, 0, 100, 20), &top, 8);
    combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 20), &top, 9);
    table.Create(WS_CHILD, CRect(0, 0, 100, 20), &top, 10);
    header.Create(WS_CHILD, CRect(0, 0, 100, 20), &top, 11);
    CPoint somewhere(1, 1);
    const auto datum = reinterpret_cast<unsigned __int64>(&somewhere);
    for (CWnd* control : {static_cast<CWnd*>(&edit), static_cast<CWnd*>(&list), static_cast<CWnd*>(&combo),
                          static_cast<CWnd*>(&table), static_cast<CWnd*>(&header)})
        for (const int value : {0, 1, 2, 3, 4, 5, 12, 13, 14, 16, 17, 18, 20, 21, 0xFFFF})
            EXPECT_EQ(KbUiNotify(control, 0, static_cast<KBUI_NOTIFY>(value), datum), kKbUiReplyNone)
                << value;
}
