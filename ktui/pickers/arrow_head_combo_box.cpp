#include <ktui/pickers/arrow_head_combo_box.h>

#include <ktdsres/resource_ids.h>
#include <ktui/host/appearance.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/arrowheads.h>
#include <ktui/pickers/strip_painter.h>
#include <ktui/res/resource_ids.h>

namespace {

constexpr int kFirstSelection = 1;
constexpr int kOblique = 5;

/// Name and cargo of an arrowhead.
struct ArrowheadName {
    CString name;
    int id = 0;
};

static_assert(CKtUiArrowHeadComboBox::kCount == kArrowheadCount);

using ArrowheadNames = std::array<ArrowheadName, kArrowheadCount>;

/// The names that all pickers share.
ArrowheadNames& sharedNames() {
    static ArrowheadNames names;
    return names;
}

/// Loads the names: the language may have changed since the last picker.
void loadNames() {
    for (std::size_t i = 0; i < kArrowheadCount; ++i) {
        const Arrowhead& arrowhead = Arrowheads()[i];
        sharedNames()[i] = {LoadToolkitString(arrowhead.textId, arrowhead.text), arrowhead.cargo};
    }
}

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiArrowHeadComboBox, CKtUiMRUComboBox)

CKtUiArrowHeadComboBox::CKtUiArrowHeadComboBox() : m_itemCount(kArrowheadCount), m_imageSize(kArrowheadSize) {
    m_lastSelection = kFirstSelection;
    LoadStrip(m_strip, IDB_ARROWHEADS);
    loadNames();
}

int CKtUiArrowHeadComboBox::AddArrowHeadToMRU(const wchar_t* text) {
    // Kept: an evicted cargo is used again while its item is still listed, and that item is then the answer.
    return AddItemToMRU(text, GenerateCargoFromMRU(m_itemCount));
}

int CKtUiArrowHeadComboBox::CalcItemHeight() {
    if (KtUiFollowsSystemAppearance()) m_imageSize = StripSize(m_hWnd, kArrowheadSize);
    return m_imageSize;
}

int CKtUiArrowHeadComboBox::GetOtherName(int which, CString& text) {
    if (which != 0)
        text = LoadToolkitString(IDS_OTHER_ARROWHEAD_ITEM, L"其他...");
    else if (m_mruFlags & kUseOther1)
        text = LoadToolkitString(IDS_USER_ARROWHEAD_ITEM, L"用户箭头...");
    else
        text = L"User arrow";  // Kept: not translated.
    return 1;
}

void CKtUiArrowHeadComboBox::OnAddItems() {
    for (const ArrowheadName& arrowhead : sharedNames()) {
        // Kept: the flag is named for the second origin arrowhead but decides about the oblique one.
        if (arrowhead.id == kOblique && !m_useOrigin2) continue;
        AddItemToList(arrowhead.name, arrowhead.id);
    }
}

void CKtUiArrowHeadComboBox::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    if (cargo < 0 || cargo >= m_itemCount) return;
    RefreshStrip(m_stripContext, m_strip, m_stripLook, m_imageSize, kArrowheadSize, IDB_ARROWHEADS,
                 IDB_LARGER_ARROWHEADS);
    const int top = ArrowheadStripTop(cargo, m_imageSize);
    if (top < 0) return;
    DrawStripPicture(dc, rect, m_stripContext, m_strip, top, m_imageSize, m_imageSize);
}
