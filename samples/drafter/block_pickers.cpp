#include "block_pickers.h"

#include "arrowhead_blocks.h"
#include "choice_dialog.h"

namespace {

constexpr int kUserCallout = 6;
// Blocks beyond what the pickers' stores hold are numbered from here.
constexpr int kFurtherBlocks = 1000;

CString entryText(CKtUiMRUComboBox& picker, int index) {
    CString text;
    picker.GetLBString(index, text);
    return text;
}

/// The index that a picker's store gave to `block`. A full store answers with the entry of an evicted block,
/// which is another one; the block is then entered beside the store.
int ownEntry(CKtUiMRUComboBox& picker, int index, const OdString& block) {
    if (index >= 0 && entryText(picker, index).CompareNoCase(block) == 0) return index;
    return picker.AddItemToList(block, kFurtherBlocks + picker.GetCount());
}

}  // namespace

IMPLEMENT_DYNAMIC(CArrowheadPicker, CKtUiArrowHeadComboBox)
IMPLEMENT_DYNAMIC(CCalloutPicker, CKtUiPredefBlockComboBox)

CArrowheadPicker::CArrowheadPicker() {
    SetUseOrigin2(1);
    SetUseOther(1);
}

int CArrowheadPicker::enter(const OdString& block) {
    const int number = ArrowheadOfBlock(block);
    if (number >= 0) return FindItemByCargo(number);
    const int known = FindStringExact(-1, block);
    return known >= 0 ? known : ownEntry(*this, AddArrowHeadToMRU(block), block);
}

void CArrowheadPicker::Show(const OdString& block) {
    const int index = enter(block);
    SetCurSel(index);
    SetLastSelection(index);
}

OdString CArrowheadPicker::Picked() {
    const __int64 number = GetCurrentItemCargo();
    if (number < 0) return {};
    const bool isOwn = number >= CKtUiArrowHeadComboBox::kCount;
    return isOwn ? OdString(entryText(*this, GetCurSel())) : ArrowheadBlockName(static_cast<int>(number));
}

int CArrowheadPicker::OnSelectOther(int, int, int& newIndex) {
    const OdString block = AskForBlock(GetParent());
    if (block.isEmpty()) return 0;
    newIndex = enter(block);
    return newIndex >= 0;
}

int CCalloutPicker::enter(const OdString& block) {
    if (block.isEmpty()) return -1;
    const int number = CalloutOfBlock(block);
    if (number >= 0) return FindItemByCargo(number);
    const int known = FindStringExact(-1, block);
    return known >= 0 ? known : ownEntry(*this, AddPredefBlockToMRU(block), block);
}

void CCalloutPicker::Show(const OdString& block) {
    m_shown = block;
    SetCurSel(enter(block));
}

OdString CCalloutPicker::Picked() {
    const __int64 number = GetCurrentItemCargo();
    if (number < 0 || number == kUserCallout) return m_shown;
    const bool isOwn = number > kUserCallout;
    return isOwn ? OdString(entryText(*this, GetCurSel())) : CalloutBlockName(static_cast<int>(number));
}

void CCalloutPicker::OnClosed() {
    if (GetCurrentItemCargo() == kUserCallout) {
        const OdString block = AskForBlock(GetParent());
        Show(block.isEmpty() ? m_shown : block);
    } else {
        m_shown = Picked();
    }
}
