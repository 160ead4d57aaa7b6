#include <ktui/pickers/font_combo_box.h>

#include <kh_font_list.h>
#include <kh_system.h>
#include <ktui/host/appearance.h>
#include <ktui/host/window_context.h>
#include <ktui/pickers/font_icon.h>
#include <ktui/res/resource_ids.h>

#include <algorithm>

namespace {

constexpr int kEmptyListItemHeight = 15;  // pixels

CKhFontList* hostFonts() { return CKhSystem::instance()->runtimeHost()->shxFontList(); }

__int64 cargoOf(CKhFont* font) { return static_cast<__int64>(reinterpret_cast<INT_PTR>(font)); }

/// The font whose address is `cargo`; null for 0 and for the reserved values, which are negative.
CKhFont* fontOf(__int64 cargo) {
    return cargo > 0 ? reinterpret_cast<CKhFont*>(static_cast<INT_PTR>(cargo)) : nullptr;
}

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiFontComboBox, CKtUiMRUComboBox)

BEGIN_MESSAGE_MAP(CKtUiFontComboBox, CKtUiMRUComboBox)
    ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CKtUiFontComboBox::OnDropDown)
    ON_CONTROL_REFLECT_EX(CBN_SELCHANGE, &CKtUiFontComboBox::OnSelChange)
    ON_CONTROL_REFLECT_EX(CBN_SELENDCANCEL, &CKtUiFontComboBox::OnSelEndCancel)
END_MESSAGE_MAP()

CKtUiFontComboBox::CKtUiFontComboBox()
    : m_trueTypeIcon(LoadFontIcon(IDI_TRUE_TYPE_FONT, LR_SHARED)),
      m_shxIcon(LoadFontIcon(IDI_SHX_FONT, LR_SHARED)) {
    m_mruFlags &= ~kUseOther1;
}

CKtUiFontComboBox::~CKtUiFontComboBox() {
    // Kept: this frees no icon, and the shared ones need no freeing.
    ::DeleteObject(m_trueTypeIcon);
    ::DeleteObject(m_shxIcon);
}

void CKtUiFontComboBox::setBuddy(CComboBox* buddy, bool hide) {
    m_buddy = buddy;
    m_hideFlaggedStyles = hide;
}

void CKtUiFontComboBox::setCurrentFont(const wchar_t* name) {
    const CKhFontList* fonts = hostFonts();
    const CKhFontStyle* style = fonts ? fonts->find(name) : nullptr;
    if (!style) return;
    // Kept: a font that isn't listed clears the selection, and the buddy keeps the former font's styles.
    SetCurSel(FindStringExact(-1, style->font()->name()));
    showStyles();
    if (m_buddy) m_buddy->SetCurSel(m_buddy->FindStringExact(-1, style->styleName()));
}

void CKtUiFontComboBox::getCurrentFont(CString& name) {
    const CKhFont* font = fontOf(GetCurrentItemCargo());
    if (!font) return;
    CString text;
    const CKhFontStyle* style = selectedStyle(text) ? font->styleByName(text) : nullptr;
    name = style ? style->fileName() : font->name();
}

/// Puts the style selected in the buddy into `text`; false if there is none.
bool CKtUiFontComboBox::selectedStyle(CString& text) const {
    if (!m_buddy || !m_buddy->IsWindowEnabled()) return false;
    const int index = m_buddy->GetCurSel();
    if (index == CB_ERR) return false;
    m_buddy->GetLBText(index, text);
    return true;
}

int CKtUiFontComboBox::CalcItemHeight() {
    if (KtUiFollowsSystemAppearance())
        return std::max(FontIconSize(m_hWnd), CKtUiMRUComboBox::CalcItemHeight());
    return GetCount() > 0 ? GetItemHeight(0) : kEmptyListItemHeight;
}

void CKtUiFontComboBox::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    const CKhFont* font = fontOf(cargo);
    if (!font) return;
    const int size = KtUiFollowsSystemAppearance() ? FontIconSize(m_hWnd) : CalcItemHeight();
    if (font->isShx())
        DrawFontIconFor(dc, rect.TopLeft(), size, m_shxIcon, IDI_SHX_FONT);
    else
        DrawFontIconFor(dc, rect.TopLeft(), size, m_trueTypeIcon, IDI_TRUE_TYPE_FONT);
}

void CKtUiFontComboBox::OnAddItems() {
    const CKhFontList* fonts = hostFonts();
    if (!fonts) return;
    for (int i = 0; i < fonts->count(); ++i) {
        CKhFont* font = fonts->at(i);
        if (font->isBigFont()) continue;
        const int item = AddString(font->name());
        if (item >= 0) SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(item), cargoOf(font));
    }
}

BOOL CKtUiFontComboBox::OnDropDown() {
    int widest = 0;
    const HeldWindowContext held(*this);
    const int count = GetCount();
    for (int i = 0; i < count; ++i) {
        CString text;
        GetLBString(i, text);
        int width = 0;
        int height = 0;
        GetContentExtent(text, width, height);
        widest = std::max(widest, width);
    }
    SetDroppedWidth(static_cast<UINT>(widest));
    m_formerFont = m_shownFont;
    m_formerStyle.Empty();
    selectedStyle(m_formerStyle);
    // Kept: the Other items of the base class aren't added, whatever its flags say.
    return FALSE;
}

BOOL CKtUiFontComboBox::OnSelChange() {
    showStyles();
    return FALSE;
}

/// The former font is selected again by now; the buddy follows it.
BOOL CKtUiFontComboBox::OnSelEndCancel() {
    // One comes with the loss of the focus as well, for a list that isn't open.
    if (!m_buddy || !GetDroppedState() || m_shownFont == m_formerFont) return FALSE;
    m_shownFont = m_formerFont;
    if (GetCurSel() == CB_ERR) {
        m_buddy->ResetContent();
        m_buddy->EnableWindow(FALSE);
        return FALSE;
    }
    showStyles();
    m_buddy->SetCurSel(m_formerStyle.IsEmpty() ? -1 : m_buddy->FindStringExact(-1, m_formerStyle));
    return FALSE;
}

void CKtUiFontComboBox::showStyles() {
    if (!m_buddy || GetCurSel() == CB_ERR) return;
    m_shownFont = GetCurrentItemCargo();
    m_buddy->ResetContent();
    m_buddy->EnableWindow(TRUE);
    const CKhFont* font = fontOf(GetCurrentItemCargo());
    if (!font || font->isShx() || font->styleCount() == 0) {
        m_buddy->EnableWindow(FALSE);
        return;
    }
    addStyles(*font);
    // Kept: with every style left out the buddy stays enabled and empty.
    m_buddy->SetCurSel(0);
}

void CKtUiFontComboBox::addStyles(const CKhFont& font) {
    for (int i = 0; i < font.styleCount(); ++i) {
        const CKhFontStyle* style = font.styleAt(i);
        if (!style->isFlagged() || !m_hideFlaggedStyles) m_buddy->AddString(style->styleName());
    }
}
