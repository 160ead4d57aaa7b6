#include <ktui/pickers/mru_combo_box.h>

#include <ktdsres/resource_ids.h>
#include <ktui/host/appearance.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/mru_list_box.h>

namespace {

constexpr int kItemHeightMargin = 4;             // pixels above and below the font together
constexpr UINT kDpiChangedAfterParent = 0x02E3;  // told to children when the window's monitor is another
constexpr int kTipHeightMargin = 4;              // pixels at the top and at the bottom

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiMRUComboBox, CKtUiComboBox)

BEGIN_MESSAGE_MAP(CKtUiMRUComboBox, CKtUiComboBox)
    ON_WM_CREATE()
    ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CKtUiMRUComboBox::OnDropDown)
    ON_CONTROL_REFLECT_EX(CBN_CLOSEUP, &CKtUiMRUComboBox::OnCloseUp)
    ON_CONTROL_REFLECT_EX(CBN_SELENDOK, &CKtUiMRUComboBox::OnSelEndOk)
END_MESSAGE_MAP()

CKtUiMRUComboBox::CKtUiMRUComboBox() { SetListBox(new CKtUiMRUListBox, TRUE); }

BOOL CKtUiMRUComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    m_isBeingCreated = true;
    const BOOL created = CKtUiComboBox::Create(style, rect, parent, id);
    m_isBeingCreated = false;
    m_mruFlags |= kMadeByCreate;
    return created;
}

void CKtUiMRUComboBox::PreSubclassWindow() {
    CKtUiComboBox::PreSubclassWindow();
    if (m_isBeingCreated || (m_mruFlags & kMadeByCreate)) return;
    OnComboBoxInit();
    m_lastSelection = static_cast<int>(SendMessage(CB_GETCURSEL));
}

int CKtUiMRUComboBox::OnCreate(LPCREATESTRUCT create) {
    const int result = CKtUiComboBox::OnCreate(create);
    if (result == -1) return result;
    const LRESULT font = GetParent()->SendMessage(WM_GETFONT);
    SendMessage(WM_SETFONT, static_cast<WPARAM>(font), 1);
    OnComboBoxInit();
    return result;
}

BOOL CKtUiMRUComboBox::OnDropDown() {
    if (m_mruFlags & kUseOther1) addOtherItem(0);
    if (m_mruFlags & kUseOther2) addOtherItem(1);
    return FALSE;
}

void CKtUiMRUComboBox::addOtherItem(int which) {
    CString text;
    GetOtherName(which, text);
    const auto wanted = reinterpret_cast<LPARAM>(text.GetString());
    if (SendMessage(CB_FINDSTRINGEXACT, 0, wanted) != CB_ERR) return;
    // Kept: both Other items carry the first one's cargo.
    AddItemToList(text.GetString(), kCargoOther);
}

BOOL CKtUiMRUComboBox::OnCloseUp() {
    const int selection = static_cast<int>(SendMessage(CB_GETCURSEL));
    if (selection == CB_ERR) return FALSE;
    const int which = chosenOther(selection);
    if (which < 0)
        SetLastSelection(static_cast<int>(SendMessage(CB_GETCURSEL)));
    else
        SelectOther(which);
    return FALSE;
}

/// Which Other item `selection` is, or -1; puts the former selection back so that it shows behind the dialog.
int CKtUiMRUComboBox::chosenOther(int selection) {
    int which = -1;
    if ((m_mruFlags & kUseOther1) && FindItemByCargo(kCargoOther) == selection) {
        which = 0;
        SendMessage(CB_SETCURSEL, static_cast<WPARAM>(m_lastSelection));
    }
    if (m_mruFlags & kUseOther2) {
        const int second = FindItemByCargo(kCargoOther2);
        if (second == selection) which = 1;
        SendMessage(CB_DELETESTRING, static_cast<WPARAM>(second));
    }
    return which;
}

BOOL CKtUiMRUComboBox::OnSelEndOk() {
    SetLastSelection(static_cast<int>(SendMessage(CB_GETCURSEL)));
    return FALSE;
}

BOOL CKtUiMRUComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) followOpenList(HIWORD(wParam));
    return CKtUiComboBox::OnChildNotify(message, wParam, lParam, result);
}

/// Keeps what a cancel puts back. The platform leaves it open whether it does so itself.
void CKtUiMRUComboBox::followOpenList(UINT notification) {
    switch (notification) {
        case CBN_DROPDOWN:
            m_isListOpen = true;
            m_formerSelection = GetCurSel();
            break;
        case CBN_SELENDCANCEL:
            // One comes with the loss of the focus as well, for a list that isn't open.
            if (m_isListOpen && GetCurSel() != m_formerSelection) SetCurSel(m_formerSelection);
            break;
        case CBN_CLOSEUP: m_isListOpen = false; break;
        default: break;
    }
}

/// What the program selects while the list is open is no choice that the user can cancel.
void CKtUiMRUComboBox::followProgram(UINT message, WPARAM wParam) {
    if (message == CB_SETCURSEL) m_formerSelection = static_cast<int>(wParam);
    if (message == CB_RESETCONTENT) m_formerSelection = -1;
}

LRESULT CKtUiMRUComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // Kept: the item selected before the message decides, not the one it selects.
    if (message == CB_SETCURSEL) SetLastSelection(static_cast<int>(wParam));
    const bool movedToOtherDpi = message == kDpiChangedAfterParent && KtUiFollowsSystemAppearance();
    if (message == WM_THEMECHANGED || movedToOtherDpi) RecalcHeight();
    followProgram(message, wParam);
    return CKtUiComboBox::WindowProc(message, wParam, lParam);
}

int CKtUiMRUComboBox::GetItemColors(DRAWITEMSTRUCT&, DWORD&, DWORD&, DWORD&) { return 0; }

int CKtUiMRUComboBox::CalcItemHeight() {
    LOGFONTW font = {};
    ::SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof font, &font, 0);
    return static_cast<int>(font.lfHeight < 0 ? -font.lfHeight : font.lfHeight) + kItemHeightMargin;
}

int CKtUiMRUComboBox::GetOptionName(int which, CString& text) {
    text = which == 0 ? L"ByLayer" : L"ByBlock";
    return 1;
}

int CKtUiMRUComboBox::GetOtherName(int which, CString& text) {
    text = which == 0 ? LoadToolkitString(IDS_OTHER_ITEM, L"其他...")
                      : LoadToolkitString(IDS_LINETYPE_MANAGER_ITEM, L"线型资源管理器...");
    return 1;
}

void CKtUiMRUComboBox::OnAddItems() {}

void CKtUiMRUComboBox::OnComboBoxInit() {
    RecalcHeight();
    AddItems();
}

int CKtUiMRUComboBox::OnSelectOther(int, int lastSel, int& newIndex) {
    newIndex = lastSel;
    return 0;
}

int CKtUiMRUComboBox::ExtraWidth() { return ImageWidth(); }

int CKtUiMRUComboBox::ImageWidth() { return m_itemHeight; }

void CKtUiMRUComboBox::RecalcHeight() {
    m_itemHeight = CalcItemHeight();
    const LPARAM height = m_itemHeight & 0xFFFF;
    SendMessage(CB_SETITEMHEIGHT, 0, height);
    SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
}

void CKtUiMRUComboBox::AddItems() {
    for (int slot = m_mru.count() - 1; slot >= 0; --slot)
        AddItemToList(m_mru.text(slot).GetString(), m_mru.cargo(slot));
    CString text;
    if (m_mruFlags & kUseOption1) {
        GetOptionName(0, text);
        AddItemToList(text.GetString(), m_cargoOption1);
    }
    if (m_mruFlags & kUseOption2) {
        GetOptionName(1, text);
        AddItemToList(text.GetString(), m_cargoOption2);
    }
    OnAddItems();
}

int CKtUiMRUComboBox::AddItemToList(const wchar_t* text, __int64 cargo) {
    return InsertItemInList(-1, text, cargo);
}

int CKtUiMRUComboBox::InsertItemInList(int index, const wchar_t* text, __int64 cargo) {
    const LRESULT inserted =
        SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
    if (inserted < 0) return -1;
    SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(inserted), static_cast<LPARAM>(cargo));
    return static_cast<int>(inserted);
}

int CKtUiMRUComboBox::AddItemToMRU(const wchar_t* text, int cargo) {
    const int found = FindItemByCargo(cargo);
    if (found >= 0) return found;
    m_mru.add(text, cargo);
    return AddItemToList(text, cargo);
}

void CKtUiMRUComboBox::RemoveItemFromMRU(int cargo) { m_mru.remove(cargo); }

int CKtUiMRUComboBox::FindItemByCargo(__int64 cargo) {
    const int count = static_cast<int>(SendMessage(CB_GETCOUNT));
    for (int index = 0; index < count; ++index)
        if (SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)) == cargo) return index;
    return -1;
}

int CKtUiMRUComboBox::FindCargoInMRU(int cargo) const { return m_mru.contains(cargo) ? 1 : 0; }

int CKtUiMRUComboBox::GenerateCargoFromMRU(int seed) const { return m_mru.unusedCargo(seed); }

__int64 CKtUiMRUComboBox::GetCurrentItemCargo() { return GetItemCargo(SendMessage(CB_GETCURSEL)); }

__int64 CKtUiMRUComboBox::GetItemCargo(__int64 index) {
    if (index < 0 || index >= SendMessage(CB_GETCOUNT)) return kCargoNone;
    return SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index));
}

void CKtUiMRUComboBox::SetLastSelection(int index) {
    if (!IsOtherCargo(GetCurrentItemCargo())) m_lastSelection = index;
}

void CKtUiMRUComboBox::SelectOther(int which) {
    int chosen = -1;
    const int accepted = OnSelectOther(which, m_lastSelection, chosen);
    SendMessage(CB_SETCURSEL, static_cast<WPARAM>(accepted ? chosen : m_lastSelection));
}

void CKtUiMRUComboBox::GetContentExtent(const wchar_t* text, int& cx, int& cy) {
    CKtUiComboBox::GetContentExtent(text, cx, cy);
    cx += ExtraWidth();
}

BOOL CKtUiMRUComboBox::OnGetTipRect(CRect& rect) {
    rect.InflateRect(0, kTipHeightMargin);
    m_tipRect = rect;
    return FALSE;
}

void CKtUiMRUComboBox::MeasureItem(LPMEASUREITEMSTRUCT item) {
    item->itemHeight = static_cast<UINT>(CalcItemHeight());
}
