#include <ktui/pickers/predef_block_combo_box.h>

#include <ktui/host/appearance.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/predef_blocks.h>
#include <ktui/pickers/strip_painter.h>
#include <ktui/res/resource_ids.h>

namespace {

constexpr int kFirstSelection = 1;

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiPredefBlockComboBox, CKtUiMRUComboBox)

CKtUiPredefBlockComboBox::CKtUiPredefBlockComboBox()
    : m_itemCount(kPicturedBlockCount), m_imageSize(kBlockPictureWidth) {
    m_lastSelection = kFirstSelection;
    LoadStrip(m_strip, IDB_BLOCKS);
}

int CKtUiPredefBlockComboBox::AddPredefBlockToMRU(const wchar_t* text) {
    return AddItemToMRU(text, GenerateCargoFromMRU(m_itemCount + 1));
}

int CKtUiPredefBlockComboBox::CalcItemHeight() {
    if (KtUiFollowsSystemAppearance()) m_imageSize = StripSize(m_hWnd, kBlockPictureWidth);
    return m_imageSize;
}

void CKtUiPredefBlockComboBox::OnAddItems() {
    for (const PredefBlock& block : PredefBlocks())
        AddItemToList(LoadToolkitString(block.textId, block.text), block.cargo);
}

void CKtUiPredefBlockComboBox::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    if (cargo < 0 || cargo > m_itemCount) return;
    RefreshStrip(m_stripContext, m_strip, m_stripLook, m_imageSize, kBlockPictureWidth, IDB_BLOCKS,
                 IDB_LARGER_BLOCKS);
    const int top = BlockStripTop(cargo, m_imageSize);
    if (top < 0) return;
    DrawStripPicture(dc, rect, m_stripContext, m_strip, top, m_imageSize, m_imageSize + 1);
}
