#include <ktui/docking/kbui_palette.h>

#include <ktui/docking/bar_background.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/name_edit.h>
#include <ktui/docking/xt_tool_tab_ctrl.h>

#include <afxsettingsstore.h>

#include <algorithm>
#include <memory>

namespace {

constexpr unsigned kEditable = 1;
const CSize kNameEditRoom(100, 20);  // pixels that a name edit is pushed back by

/// The key of a palette's name.
CString keyOf(const CString& path, int id) {
    CString key;
    // Kept: the path's address in the place of the path. Format knows this conversion by a small letter only;
    // what it prints is the same.
    key.Format(L"%palette-%d", static_cast<LPCTSTR>(path), id);
    return key;
}

}  // namespace

unsigned CKbUiPalette::m_classWord = 0;

IMPLEMENT_DYNCREATE(CKbUiPalette, CWnd)

BEGIN_MESSAGE_MAP(CKbUiPalette, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(kBeginNameEdit, &CKbUiPalette::OnBeginNameEdit)
    ON_MESSAGE(kEndNameEdit, &CKbUiPalette::OnEndNameEdit)
END_MESSAGE_MAP()

CKbUiPalette::CKbUiPalette() { m_classWord = 0; }

CKbUiPalette::~CKbUiPalette() { delete m_extra; }

int CKbUiPalette::Create(CKbUiPaletteSet* set) { return Create(WS_CHILD | WS_VISIBLE, GetName(), set, 0); }

int CKbUiPalette::Create(unsigned long style, const wchar_t* name, CKbUiPaletteSet* set, unsigned long) {
    if (set == nullptr || !CWnd::Create(nullptr, name, style, CRect(0, 0, 1, 1), set, 0)) return 0;
    SetName(name);
    m_paletteSet = set;
    m_style = kEditable;
    return 1;
}

void CKbUiPalette::SetPaletteStyle(unsigned long) { m_style = kEditable; }

void CKbUiPalette::SetName(CString name) {
    m_name = name;
    if (m_paletteSet == nullptr) return;
    const int tab = m_paletteSet->GetTabIndex(this);
    if (tab < 0) return;
    CXToolTabCtrl& strip = m_paletteSet->GetStrip();
    strip.SetTabText(tab, name);
    strip.Invalidate(TRUE);
    strip.UpdateWindow();
}

void CKbUiPalette::OnSetActive() {
    if (m_paletteSet == nullptr) return;
    CKbUiPalette* active = m_paletteSet->GetActivePalette();
    if (active == this) return;
    if (active != nullptr) active->OnKillActive();
    m_paletteSet->SetActivePalette(this);
}

int CKbUiPalette::OnKillActive() { return 0; }

CString CKbUiPalette::GetClassName() {
    wchar_t name[260] = {};
    ::GetClassNameW(m_hWnd, name, 260);
    return name;
}

int CKbUiPalette::GetMinimumSize(CSize& size) {
    if (m_paletteSet == nullptr) return 0;
    m_paletteSet->GetMinimumSize(size);
    return 1;
}

int CKbUiPalette::GetMaximumSize(CSize& size) {
    if (m_paletteSet == nullptr) return 0;
    m_paletteSet->GetMaximumSize(size);
    return 1;
}

bool CKbUiPalette::CanFrameworkTakeFocus() { return m_paletteSet != nullptr && !m_paletteSet->IsDocked(); }

void CKbUiPalette::EditName() {
    if (m_style == kEditable) SendMessage(kBeginNameEdit, 0, 0);
}

void CKbUiPalette::EditName(CPoint& point) {
    if (m_style == kEditable) SendMessage(kBeginNameEdit, reinterpret_cast<WPARAM>(&point), 0);
}

int CKbUiPalette::NameEditValidation(CEdit* edit) { return edit != nullptr; }

BOOL CKbUiPalette::OnEraseBkgnd(CDC* dc) {
    FillBarBackground(*this, *dc);
    return TRUE;
}

BOOL CKbUiPalette::OnSetCursor(CWnd* window, UINT hit, UINT message) {
    return CWnd::OnSetCursor(window, hit, message);
}

void CKbUiPalette::OnLButtonDown(UINT flags, CPoint point) { CWnd::OnLButtonDown(flags, point); }

CPoint CKbUiPalette::placeOfTab() const {
    const CXToolTabCtrl& strip = m_paletteSet->GetStrip();
    const int tab = m_paletteSet->GetTabIndex(const_cast<CKbUiPalette*>(this));
    if (tab < 0) return CPoint(0, 0);
    CRect client;
    strip.GetClientRect(&client);
    const CRect& rect = strip.GetTab(tab)->m_rect;
    return CPoint((rect.top + rect.bottom) / 2, client.Height() - (rect.left + rect.right) / 2);
}

CPoint CKbUiPalette::nameEditPlace(const CPoint* point) const {
    if (point == nullptr) return placeOfTab();
    const CXToolTabCtrl& strip = m_paletteSet->GetStrip();
    CPoint place = *point;
    ClientToScreen(&place);
    strip.ScreenToClient(&place);
    CRect client;
    strip.GetClientRect(&client);
    place.x = std::max(std::min(place.x, client.right - kNameEditRoom.cx), client.left);
    place.y = std::max(std::min(place.y, client.bottom - kNameEditRoom.cy), client.top);
    return place;
}

LRESULT CKbUiPalette::OnBeginNameEdit(WPARAM point, LPARAM) {
    if (m_paletteSet == nullptr) return 0;
    CXToolTabCtrl& strip = m_paletteSet->GetStrip();
    CPoint place = nameEditPlace(reinterpret_cast<const CPoint*>(point));
    strip.ClientToScreen(&place);
    auto edit = std::make_unique<CNameEdit>();
    if (!edit->Create(this, &strip, m_name, &place)) return 0;
    edit.release();
    return 1;
}

LRESULT CKbUiPalette::OnEndNameEdit(WPARAM edit, LPARAM text) {
    const std::unique_ptr<CNameEdit> ended(reinterpret_cast<CNameEdit*>(edit));
    if (!ended) return 0;
    ended->ForgetReceiver();
    if (text != 0) SetName(reinterpret_cast<const wchar_t*>(text));
    ended->DestroyWindow();
    return 1;
}

int CKbUiPalette::Save(IUnknown*) {
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, FALSE);
    if (settings.CreateKey(keyOf(AFXGetRegPath(L"Palette", nullptr), GetDlgCtrlID())))
        settings.Write(L"Name", static_cast<LPCTSTR>(GetName()));
    return 1;
}

int CKbUiPalette::Load(IUnknown*) {
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, TRUE);
    CString name;
    if (settings.Open(keyOf(AFXGetRegPath(L"Palette", nullptr), GetDlgCtrlID())) &&
        settings.Read(L"Name", name))
        SetName(name);
    return 1;
}
