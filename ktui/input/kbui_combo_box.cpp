#include <ktui/input/kbui_combo_box.h>

#include <utility>

#include <ktui/controls/kbui_list_box.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/text_extent.h>
#include <ktui/host/theme_api.h>
#include <ktui/input/kbui_edit.h>
#include <ktui/input/combo_face.h>

namespace {

constexpr unsigned kEditOwned = 1;
constexpr unsigned kListOwned = 2;
constexpr unsigned kChildrenTaken = 4;

constexpr DWORD kKindMask = 0xF;  // the bits of a combo box style that tell its kind
constexpr DWORD kOwnerDrawMask = CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE;
constexpr int kTextHeightMargin = 2;  // pixels

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiComboBox, CComboBox)

BEGIN_MESSAGE_MAP(CKbUiComboBox, CComboBox)
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiComboBox::OnKbUiMessage)
    ON_WM_CTLCOLOR()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CKbUiComboBox::CKbUiComboBox() : m_lastMousePoint(0, 0), m_tipRect(0, 0, 0, 0) {}

CKbUiComboBox::~CKbUiComboBox() {
    if (m_listBox) m_listBox->SetComboBox(nullptr);
    releaseListBox();
    releaseEditBox();
}

HBRUSH CKbUiComboBox::OnCtlColor(CDC* dc, CWnd* window, UINT kind) {
    if (!(m_flags & kChildrenTaken)) {
        if (kind == CTLCOLOR_EDIT) takeOverEdit(*window);
        if (kind == CTLCOLOR_LISTBOX) takeOverList(*window);
    }
    const bool hasList = m_listBox && m_listBox->m_hWnd;
    const bool hasEdit = m_editBox && m_editBox->m_hWnd;
    if (hasList && (IsStatic() || hasEdit)) m_flags |= kChildrenTaken;
    return CComboBox::OnCtlColor(dc, window, kind);
}

void CKbUiComboBox::SetEditBox(CKbUiEdit* edit, int owned) {
    releaseEditBox();
    m_editBox = nullptr;
    // Kept: clearing the part leaves its owned bit.
    if (edit) {
        m_editBox = edit;
        m_flags = owned ? m_flags | kEditOwned : m_flags & ~kEditOwned;
    }
    m_flags &= ~kChildrenTaken;
}

void CKbUiComboBox::SetListBox(CKbUiListBox* list, int owned) {
    if (m_listBox) m_listBox->SetComboBox(nullptr);
    releaseListBox();
    m_listBox = nullptr;
    if (list) {
        m_listBox = list;
        m_flags = owned ? m_flags | kListOwned : m_flags & ~kListOwned;
        list->SetComboBox(this);
    }
    m_flags &= ~kChildrenTaken;
}

void CKbUiComboBox::releaseEditBox() {
    if (!m_editBox) return;
    if (m_editBox->m_hWnd) m_editBox->UnsubclassWindow();
    if (m_flags & kEditOwned) delete std::exchange(m_editBox, nullptr);
}

void CKbUiComboBox::releaseListBox() {
    if (!m_listBox) return;
    if (m_listBox->m_hWnd) m_listBox->UnsubclassWindow();
    if (m_flags & kListOwned) delete std::exchange(m_listBox, nullptr);
}

void CKbUiComboBox::takeOverEdit(const CWnd& window) {
    if (!m_editBox) {
        m_editBox = new CKbUiEdit;
        m_flags |= kEditOwned;
    }
    if (m_editBox->m_hWnd) return;
    m_editBox->SubclassWindow(window.m_hWnd);
    m_editBox->SetKbUiParent(GetKbUiParent());
}

void CKbUiComboBox::takeOverList(const CWnd& window) {
    if (!m_listBox) {
        m_listBox = new CKbUiListBox;
        m_listBox->SetComboBox(this);
        m_flags |= kListOwned;
    }
    if (m_listBox->m_hWnd) return;
    m_listBox->SubclassWindow(window.m_hWnd);
    m_listBox->SetKbUiParent(GetKbUiParent());
}

DWORD CKbUiComboBox::GetStyleMask() const { return m_editBox ? m_editBox->GetStyleMask() : 0; }

BOOL CKbUiComboBox::IsStyleMaskSet(DWORD mask) const {
    return m_editBox ? m_editBox->IsStyleMaskSet(mask) : FALSE;
}

void CKbUiComboBox::SetStyleMask(DWORD mask) {
    if (m_editBox) m_editBox->SetStyleMask(mask);
}

void CKbUiComboBox::GetLBString(int index, CString& text) {
    text.Empty();
    const int length = index < 0 ? CB_ERR : GetLBTextLen(index);
    if (length <= 0) return;
    GetLBText(index, text.GetBufferSetLength(length));
    text.ReleaseBuffer();
}

void CKbUiComboBox::GetContentExtent(const wchar_t* text, int& cx, int& cy) { GetTextExtent(text, cx, cy); }

void CKbUiComboBox::GetTextExtent(const wchar_t* text, int& cx, int& cy) {
    if (MeasureControlText(*this, text, cx, cy, TextForm::kSystemLine)) cy += kTextHeightMargin;
}

BOOL CKbUiComboBox::SetToolTipText(const wchar_t* text) {
    m_toolTipText = text;
    return TRUE;
}

BOOL CKbUiComboBox::IsVistaTheme() { return ActiveThemeApi().isThemeActive(); }

BOOL CKbUiComboBox::IsInEdit(unsigned itemState) { return IsFaceItemState(itemState); }

BOOL CKbUiComboBox::IsStatic() const { return (GetStyle() & kKindMask) >= CBS_DROPDOWNLIST; }

BOOL CKbUiComboBox::IsOwnerDraw() const { return (GetStyle() & kOwnerDrawMask) != 0; }

BOOL CKbUiComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CComboBox::Create(style, rect, parent, id);
}

BOOL CKbUiComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const BOOL handled = CComboBox::OnChildNotify(message, wParam, lParam, result);
    if (message == WM_DRAWITEM) markFocus(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    return handled;
}

KBUI_REPLY CKbUiComboBox::DoKbUiMessage(KBUI_NOTIFY notification, unsigned, __int64 datum) {
    return notification == kKbUiNotifyGetTipText ? serveTipText(datum) : kKbUiReplyNone;
}

bool CKbUiComboBox::isThemedFace() const { return IsOwnerDraw() && IsStatic() && IsVistaTheme(); }

LRESULT CKbUiComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case CB_SETCURSEL: Invalidate(TRUE); break;
        case WM_PAINT:
            if (!isThemedFace()) break;
            OnPaint();
            return 1;
        case WM_DESTROY:
            releaseListBox();
            releaseEditBox();
            break;
        default: break;
    }
    return CComboBox::WindowProc(message, wParam, lParam);
}
