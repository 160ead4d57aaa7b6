#include <ktui/pickers/shx_font_list.h>

#include <kh_font_list.h>
#include <kh_system.h>
#include <ktui/pickers/font_icon.h>
#include <ktui/res/resource_ids.h>

namespace {

constexpr int kTextTop = 1;  // pixels below the top of an item
constexpr COLORREF kSelectedText = 0xFFFFFF;
constexpr COLORREF kText = 0;

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiShxFontList, CListBox)

CKtUiShxFontList::CKtUiShxFontList() : m_shxIcon(LoadFontIcon(IDI_SHX_FONT, LR_DEFAULTCOLOR)) {}

CKtUiShxFontList::~CKtUiShxFontList() { ::DestroyIcon(m_shxIcon); }

void CKtUiShxFontList::FillList(bool bigFonts) {
    const CKhFontList* fonts = CKhSystem::instance()->runtimeHost()->shxFontList();
    if (!fonts) return;
    ResetContent();
    for (int i = 0; i < fonts->count(); ++i) {
        const CKhFont* font = fonts->at(i);
        // Kept: without big fonts means without TrueType fonts, and big fonts are listed too.
        if (bigFonts ? font->isBigFont() : !font->isTrueType()) AddString(font->name());
    }
}

void CKtUiShxFontList::DrawItem(LPDRAWITEMSTRUCT item) {
    CDC* dc = CDC::FromHandle(item->hDC);
    const bool isSelected = (item->itemState & ODS_SELECTED) != 0;
    CBrush background(::GetSysColor(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    dc->FillRect(&item->rcItem, &background);
    if (item->itemID == static_cast<UINT>(-1)) return;
    const CPoint corner(static_cast<int>(item->rcItem.left), static_cast<int>(item->rcItem.top));
    DrawFontIcon(*dc, corner, kFontIconSize, m_shxIcon);
    CString text;
    GetText(static_cast<int>(item->itemID), text);
    // Kept: black and white, not the colours of the system.
    const COLORREF formerColor = dc->SetTextColor(isSelected ? kSelectedText : kText);
    const int formerMode = dc->SetBkMode(TRANSPARENT);
    dc->TextOut(static_cast<int>(corner.x) + kFontIconSize, static_cast<int>(corner.y) + kTextTop, text);
    dc->SetBkMode(formerMode);
    dc->SetTextColor(formerColor);
}

void CKtUiShxFontList::MeasureItem(LPMEASUREITEMSTRUCT) {}
