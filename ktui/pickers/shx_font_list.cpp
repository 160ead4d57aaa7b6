#include <ktui/pickers/shx_font_list.h>

#include <kh_font_list.h>
#include <kh_system.h>
#include <ktui/host/appearance.h>
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
    const int height = FontIconSize(m_hWnd);
    if (KtUiFollowsSystemAppearance() && GetItemHeight(0) <= height)
        SetItemHeight(0, static_cast<UINT>(height + 1));
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
    const bool isGrey = KtUiFollowsSystemAppearance() && !IsWindowEnabled();
    CBrush background(::GetSysColor(isGrey ? COLOR_BTNFACE : isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    dc->FillRect(&item->rcItem, &background);
    if (item->itemID == static_cast<UINT>(-1)) return;
    const CPoint corner(static_cast<int>(item->rcItem.left), static_cast<int>(item->rcItem.top));
    const int size = FontIconSize(m_hWnd);
    DrawFontIconFor(*dc, corner, size, m_shxIcon, IDI_SHX_FONT);
    CString text;
    GetText(static_cast<int>(item->itemID), text);
    // Kept: black and white, not the colours of the system, unless the host follows it.
    const COLORREF ink = isGrey       ? ::GetSysColor(COLOR_GRAYTEXT)
                         : isSelected ? KtUiAppearanceColor(kSelectedText, COLOR_HIGHLIGHTTEXT)
                                      : KtUiAppearanceColor(kText, COLOR_WINDOWTEXT);
    const COLORREF formerColor = dc->SetTextColor(ink);
    const int formerMode = dc->SetBkMode(TRANSPARENT);
    dc->TextOut(static_cast<int>(corner.x) + size, static_cast<int>(corner.y) + kTextTop, text);
    dc->SetBkMode(formerMode);
    dc->SetTextColor(formerColor);
}

void CKtUiShxFontList::MeasureItem(LPMEASUREITEMSTRUCT) {}
