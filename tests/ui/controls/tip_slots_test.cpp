// The virtual operations of the controls with tips stand in a fixed order, which classes built elsewhere rely
// on.
#include <ktui/controls/kbui_list_box.h>
#include <ktui/controls/kbui_list_ctrl.h>
#include <ktui/input/kbui_combo_box.h>
#include <ktui/input/kbui_edit.h>

#include <vector>

#include "slot_of.h"
#include "ui_test.h"

namespace {

using ui_test::slotOf;

/// Opens the protected operations of `Class`.
template <class Class>
struct Opened : Class {
    static std::vector<long long> tipSlots() {
        return {slotOf(&Opened::DoKbUiMessage), slotOf(&Opened::OnDrawTip),
                slotOf(&Opened::OnDrawTipText), slotOf(&Opened::OnGetTipSupport),
                slotOf(&Opened::OnGetTipRect),  slotOf(&Opened::OnGetTipText),
                slotOf(&Opened::OnHitTipRect)};
    }
};

/// Expects the operations of the tip to follow `before` one by one.
template <class Class>
void expectInOrder(std::vector<long long> before) {
    const std::vector<long long> tip = Opened<Class>::tipSlots();
    before.insert(before.end(), tip.begin(), tip.end());
    for (std::size_t i = 1; i < before.size(); ++i)
        EXPECT_EQ(before[i], before[0] + static_cast<long long>(i)) << i;
}

}  // namespace

TEST(TipSlots, StandInTheirOrder) {
    expectInOrder<CKbUiEdit>({slotOf(&CKbUiEdit::GetContentExtent), slotOf(&CKbUiEdit::SetStyleMask)});
    expectInOrder<CKbUiListBox>({slotOf(&CKbUiListBox::GetContentExtent)});
    expectInOrder<CKbUiHeaderCtrl>({slotOf(&CKbUiHeaderCtrl::GetContentExtent)});
    expectInOrder<CKbUiListCtrl>({slotOf(&CKbUiListCtrl::GetContentExtent)});
    expectInOrder<CKbUiComboBox>(
        {slotOf(&CKbUiComboBox::GetLBString), slotOf(&CKbUiComboBox::GetContentExtent)});
}
