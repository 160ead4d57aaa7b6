// How CKbUiComboBox paints: the themed face of a drop-down list, and plain items.
#include <ktui/input/kbui_combo_box.h>

#include <ktui/host/control_font.h>
#include <ktui/host/theme_api.h>
#include <ktui/host/under_cursor.h>
#include <ktui/input/combo_face.h>

static_assert(kItemSelected == ODS_SELECTED && kItemDisabled == ODS_DISABLED &&
              kItemHotLight == ODS_HOTLIGHT && kItemInEdit == ODS_COMBOBOXEDIT);

namespace {

/// Theme data of a window, closed with the object.
class ThemeData {
public:
    ThemeData(HWND window, const wchar_t* classes)
        : m_theme(ActiveThemeApi().openThemeData(window, classes)) {}
    ~ThemeData() {
        if (m_theme) ActiveThemeApi().closeThemeData(m_theme);
    }
    ThemeData(const ThemeData&) = delete;
    ThemeData& operator=(const ThemeData&) = delete;
    explicit operator bool() const { return m_theme != nullptr; }
    operator HTHEME() const { return m_theme; }

private:
    HTHEME m_theme;
};

bool IsButtonPressed(HWND combo) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    return ::GetComboBoxInfo(combo, &info) && (info.stateButton & STATE_SYSTEM_PRESSED);
}

ComboFace FaceOf(const CComboBox& combo) {
    const HWND window = combo.m_hWnd;
    return ChooseComboFace({!combo.IsWindowEnabled(), ::SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0,
                            IsButtonPressed(window), IsUnderCursor(window)});
}

/// Paints face and button; answers the rectangle that is left for the item.
CRect PaintThemedFace(HTHEME theme, HWND window, HDC dc, int partState, bool disabled) {
    const ThemeApi& api = ActiveThemeApi();
    CRect client;
    ::GetClientRect(window, &client);
    if (api.isThemeBackgroundPartiallyTransparent(theme, kComboReadOnlyPart, partState))
        api.drawThemeParentBackground(window, dc, &client);
    api.drawThemeBackground(theme, dc, kComboReadOnlyPart, partState, &client, nullptr);

    CRect button = client;
    button.left = button.right - ::GetSystemMetrics(SM_CXVSCROLL);
    api.drawThemeBackground(theme, dc, kComboButtonPart, disabled ? kComboDisabled : kComboNormal, &button,
                            nullptr);

    CRect face = client;
    face.right = button.left;
    CRect content = face;
    api.getThemeBackgroundContentRect(theme, dc, kComboReadOnlyPart, partState, &face, &content);
    return content;
}

}  // namespace

void CKbUiComboBox::OnPaint() {
    CPaintDC dc(this);
    const ComboFace face = FaceOf(*this);
    CRect content;
    {
        const ThemeData theme(m_hWnd, L"COMBOBOX");
        if (!theme) return;
        content = PaintThemedFace(theme, m_hWnd, dc.m_hDC, face.partState, !IsWindowEnabled());
    }
    if (::GetFocus() == m_hWnd && !(face.itemState & kItemSelected)) dc.DrawFocusRect(&content);
    drawFace(dc, content, face.itemState);
}

void CKbUiComboBox::drawFace(CDC& dc, const RECT& content, unsigned itemState) {
    const LRESULT selection = SendMessage(CB_GETCURSEL);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_COMBOBOX;
    item.CtlID = static_cast<UINT>(GetDlgCtrlID());
    item.itemID = static_cast<UINT>(selection);
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = itemState;
    item.hwndItem = m_hWnd;
    item.hDC = dc.m_hDC;
    item.rcItem = content;
    item.itemData = static_cast<ULONG_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(selection)));
    const ControlFont font(dc, *this);
    DrawItem(&item);
}

void CKbUiComboBox::markFocus(const DRAWITEMSTRUCT& item) {
    // The platform leaves the mark of an owner-drawn field to whoever draws it, and DrawItem draws none.
    constexpr UINT kFocusedFace = ODS_COMBOBOXEDIT | ODS_FOCUS;
    const bool isFocused = (item.itemState & (kFocusedFace | ODS_NOFOCUSRECT)) == kFocusedFace;
    if (isFocused && IsStatic()) CDC::FromHandle(item.hDC)->DrawFocusRect(&item.rcItem);
}

void CKbUiComboBox::DrawItem(LPDRAWITEMSTRUCT item) {
    if (static_cast<int>(item->itemID) < 0) return;
    CDC* dc = CDC::FromHandle(item->hDC);
    const bool inEdit = (item->itemState & kItemInEdit) != 0;
    const bool selected = (item->itemState & kItemSelected) != 0;
    if (!inEdit) dc->FillSolidRect(&item->rcItem, ::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));

    CString text;
    GetLBString(static_cast<int>(item->itemID), text);
    if (text.IsEmpty()) return;
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(::GetSysColor(selected && !inEdit ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    dc->DrawText(text, &item->rcItem, DT_SINGLELINE | DT_VCENTER);
}
