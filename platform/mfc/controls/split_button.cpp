#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CSplitButton, CButton)

BEGIN_MESSAGE_MAP(CSplitButton, CButton)
    ON_NOTIFY_REFLECT_EX(BCN_DROPDOWN, &CSplitButton::OnDropDownReflected)
END_MESSAGE_MAP()

CSplitButton::CSplitButton(UINT nMenuId, UINT nSubMenuId) { SetDropDownMenu(nMenuId, nSubMenuId); }
CSplitButton::CSplitButton(CMenu* pMenu) { SetDropDownMenu(pMenu); }
CSplitButton::~CSplitButton() = default;

BOOL CSplitButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if ((dwStyle & BS_TYPEMASK) != BS_DEFSPLITBUTTON)
        dwStyle = (dwStyle & ~static_cast<DWORD>(BS_TYPEMASK)) | BS_SPLITBUTTON;
    return CButton::Create(lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CSplitButton::SetDropDownMenu(UINT nMenuId, UINT nSubMenuId) {
    m_pMenu = nullptr;
    m_loaded.DestroyMenu();
    m_loaded.LoadMenu(nMenuId);
    m_nSubMenu = nSubMenuId;
}

void CSplitButton::SetDropDownMenu(CMenu* pMenu) {
    m_loaded.DestroyMenu();
    m_pMenu = pMenu;
}

BUTTON_SPLITINFO CSplitButton::split_info(UINT mask) const {
    BUTTON_SPLITINFO info = {};
    info.mask = mask;
    GetSplitInfo(&info);
    return info;
}

BOOL CSplitButton::GetSplitInfo(PBUTTON_SPLITINFO pInfo) const {
    return static_cast<BOOL>(SendMessage(BCM_GETSPLITINFO, 0, reinterpret_cast<LPARAM>(pInfo)));
}
BOOL CSplitButton::SetSplitInfo(PBUTTON_SPLITINFO pInfo) {
    return static_cast<BOOL>(SendMessage(BCM_SETSPLITINFO, 0, reinterpret_cast<LPARAM>(pInfo)));
}

UINT CSplitButton::GetSplitStyle() const { return split_info(BCSIF_STYLE).uSplitStyle; }
BOOL CSplitButton::SetSplitStyle(UINT nStyle) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_STYLE;
    info.uSplitStyle = nStyle;
    return SetSplitInfo(&info);
}

BOOL CSplitButton::GetSplitSize(LPSIZE pSize) const {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_SIZE;
    if (!GetSplitInfo(&info)) return FALSE;
    *pSize = info.size;
    return TRUE;
}
BOOL CSplitButton::SetSplitSize(LPSIZE pSize) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_SIZE;
    info.size = *pSize;
    return SetSplitInfo(&info);
}

// The system keeps the glyph's character in place of the image list.
TCHAR CSplitButton::GetSplitGlyph() const {
    return static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(split_info(BCSIF_GLYPH).himlGlyph));
}
BOOL CSplitButton::SetSplitGlyph(TCHAR chGlyph) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_GLYPH;
    info.himlGlyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(chGlyph));
    return SetSplitInfo(&info);
}

CImageList* CSplitButton::GetSplitImageList() const {
    return CImageList::FromHandle(split_info(BCSIF_IMAGE).himlGlyph);
}
BOOL CSplitButton::SetSplitImageList(CImageList* pImageList) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_IMAGE;
    info.himlGlyph = kmfc::safe_handle(pImageList);
    return SetSplitInfo(&info);
}

BOOL CSplitButton::OnDropDownReflected(NMHDR* pNMHDR, LRESULT* pResult) {
    OnDropDown(pNMHDR, pResult);
    // The parent may hear of it too.
    return FALSE;
}

void CSplitButton::OnDropDown(NMHDR*, LRESULT* pResult) {
    CMenu* menu = m_pMenu;
    if (m_loaded.m_hMenu != nullptr) menu = m_loaded.GetSubMenu(static_cast<int>(m_nSubMenu));
    if (menu != nullptr && menu->m_hMenu != nullptr) {
        CRect place;
        GetWindowRect(&place);
        TPMPARAMS around = {};
        around.cbSize = sizeof around;
        around.rcExclude = place;
        menu->TrackPopupMenuEx(TPM_LEFTALIGN | TPM_LEFTBUTTON | TPM_VERTICAL, place.left, place.bottom,
                               GetParent(), &around);
    }
    if (pResult != nullptr) *pResult = 0;
}
