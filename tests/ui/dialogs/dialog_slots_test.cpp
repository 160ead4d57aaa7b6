// The virtual operations of the dialogs stand in a fixed order, which classes built elsewhere rely on.
#include <ktui/dialogs/kbui_dialog_bar.h>
#include <ktui/dialogs/kbui_file_dialog.h>
#include <ktui/dialogs/ktui_tab_dialogs.h>

#include <vector>

#include "slot_of.h"
#include "ui_test.h"

namespace {

using ui_test::slotOf;
using Slots = std::vector<long long>;

void expectInOrder(const Slots& slots) {
    for (std::size_t i = 1; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slots[0] + static_cast<long long>(i)) << i;
}

/// Opens the protected operations of `Class`.
struct OpenedBase : CKbUiBaseDialog {
    static Slots slots() {
        return {slotOf(&OpenedBase::DoKbUiMessage),
                slotOf(&OpenedBase::OnNotifyControlChange),
                slotOf(&OpenedBase::OnNotifyControlValid),
                slotOf(&OpenedBase::OnNotifyGeneric),
                slotOf(&OpenedBase::OnNotifyUpdateTip),
                slotOf(&OpenedBase::FindContextHelpFullPath),
                slotOf(&OpenedBase::OnInitDialogBegin),
                slotOf(&OpenedBase::OnInitDialogFinish),
                slotOf(&OpenedBase::AppMainWindow),
                slotOf(&OpenedBase::AppResourceInstance),
                slotOf(&OpenedBase::AppRootKey),
                slotOf(&OpenedBase::EnableFloatingWindows),
                slotOf(&OpenedBase::IsMultiDocumentActivationEnabled),
                slotOf(&OpenedBase::EnableMultiDocumentActivation),
                slotOf(&OpenedBase::DoDialogHelp),
                slotOf(&OpenedBase::ExchangeData)};
    }
};

struct OpenedPage : CKbUiTabChildDialog {
    static Slots slots() {
        return {slotOf(&OpenedPage::OnDialogHelp),       slotOf(&OpenedPage::OnTabActivation),
                slotOf(&OpenedPage::OnTabChanging),      slotOf(&OpenedPage::OnMainDialogApply),
                slotOf(&OpenedPage::OnMainDialogCancel), slotOf(&OpenedPage::OnMainDialogOK),
                slotOf(&OpenedPage::OnMainDialogHelp)};
    }
};

struct OpenedMain : CKbUiTabMainDialog {
    static Slots slots() {
        return {slotOf(&OpenedMain::OnDialogHelp), slotOf(&OpenedMain::AddApplicationTabs)};
    }
};

struct OpenedBar : CKbUiDialogBar {
    static Slots slots() {
        return {slotOf(&OpenedBar::DoKbUiMessage),        slotOf(&OpenedBar::OnNotifyControlChange),
                slotOf(&OpenedBar::OnNotifyControlValid), slotOf(&OpenedBar::OnNotifyGeneric),
                slotOf(&OpenedBar::OnNotifyUpdateTip),    slotOf(&OpenedBar::AppMainWindow),
                slotOf(&OpenedBar::AppResourceInstance),  slotOf(&OpenedBar::AppRootKey)};
    }
};

struct OpenedFile : CKbUiFileDialog {
    static Slots slots() {
        return {slotOf(&OpenedFile::DoKbUiMessage),        slotOf(&OpenedFile::OnNotifyControlChange),
                slotOf(&OpenedFile::OnNotifyControlValid), slotOf(&OpenedFile::OnNotifyGeneric),
                slotOf(&OpenedFile::OnNotifyUpdateTip),    slotOf(&OpenedFile::FindContextHelpFullPath),
                slotOf(&OpenedFile::OnInitDialogBegin),    slotOf(&OpenedFile::OnInitDialogFinish),
                slotOf(&OpenedFile::AppMainWindow),        slotOf(&OpenedFile::AppResourceInstance),
                slotOf(&OpenedFile::AppRootKey),           slotOf(&OpenedFile::EnableFloatingWindows),
                slotOf(&OpenedFile::OnDialogHelp),         slotOf(&OpenedFile::DoDialogHelp)};
    }
};

}  // namespace

TEST(DialogSlots, OfTheBaseDialogStandInTheirOrder) { expectInOrder(OpenedBase::slots()); }

TEST(DialogSlots, OfAPageFollowThoseOfTheDialog) { expectInOrder(OpenedPage::slots()); }

TEST(DialogSlots, TheMainDialogsOneFollowsThoseOfTheDialog) { expectInOrder(OpenedMain::slots()); }

TEST(DialogSlots, OfTheDialogBarStandInTheirOrder) { expectInOrder(OpenedBar::slots()); }

TEST(DialogSlots, OfTheFileDialogStandInTheirOrder) { expectInOrder(OpenedFile::slots()); }

TEST(DialogSlots, TheExtensionManagersBeginWithItsDestructor) {
    // A destructor has two places: with and without giving the memory back.
    EXPECT_EQ(slotOf(&CKbUiTabExtensionManager::GetDialogName), 2);
    EXPECT_EQ(slotOf(&CKbUiTabExtensionManager::AddTab), 3);
}
