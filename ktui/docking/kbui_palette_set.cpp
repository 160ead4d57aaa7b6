// The set as a window: its creation, its size, its name, its state.
#include <ktui/docking/kbui_palette_set.h>

#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set_data.h>
#include <ktui/docking/name_edit.h>
#include <ktui/docking/tab_strip_layout.h>
#include <ktui/host/appearance.h>

#include <afxglobals.h>
#include <afxsettingsstore.h>

namespace {

constexpr DWORD kStripStyle = 0x1000001E;  // visible, upright, tabs fitted, with tips
constexpr UINT kStripId = 111;
constexpr COLORREF kStripColor = 0xEAECED;
constexpr UINT kEditPaletteNameCommand = 32772;
constexpr UINT kEditNameCommand = 32773;
const CSize kLeastSize(100, 140);  // pixels

}  // namespace

IMPLEMENT_DYNCREATE(CKbUiPaletteSet, CKbUiDockControlBar)

BEGIN_MESSAGE_MAP(CKbUiPaletteSet, CKbUiDockControlBar)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_CONTEXTMENU()
    ON_MESSAGE(kBeginNameEdit, &CKbUiPaletteSet::OnBeginNameEdit)
    ON_MESSAGE(kEndNameEdit, &CKbUiPaletteSet::OnEndNameEdit)
END_MESSAGE_MAP()

CKbUiPaletteSet::CKbUiPaletteSet(int dockFlags)
    : CKbUiDockControlBar(dockFlags), m_data(std::make_unique<KbUiPaletteSetData>(this)) {}

CKbUiPaletteSet::~CKbUiPaletteSet() {
    // Its palettes go while the set's window is still there.
    m_data->m_tabs.DestroyWindow();
}

int CKbUiPaletteSet::Create(const wchar_t* name, unsigned long windowStyle, const RECT& rect, CWnd* parent,
                            unsigned long paletteSetStyle) {
    m_data->m_style = paletteSetStyle;
    return Create(nullptr, name, windowStyle, rect, parent, static_cast<UINT>(GetDlgCtrlID()), nullptr);
}

int CKbUiPaletteSet::OnCreate(LPCREATESTRUCT create) {
    if (CKbUiDockControlBar::OnCreate(create) == -1) return -1;
    CXToolTabCtrl& strip = m_data->m_tabs;
    strip.Create(kStripStyle, CRect(0, 0, 0, 0), this, kStripId);
    strip.SetBackground(KtUiAppearanceColor(kStripColor, COLOR_3DFACE));
    strip.SetPaletteSet(this);
    return 0;
}

CXToolTabCtrl& CKbUiPaletteSet::GetStrip() const { return m_data->m_tabs; }

void CKbUiPaletteSet::OnSize(UINT type, int cx, int cy) {
    CKbUiDockControlBar::OnSize(type, cx, cy);
    if (m_data->m_tabs.m_hWnd == nullptr) return;
    const CSize client(cx, cy);
    CKbUiPalette* active = GetPaletteCount() > 0 ? GetActivePalette() : nullptr;
    const bool withStrip = showsStrip();
    if (withStrip)
        placeStrip(client);
    else
        m_data->m_tabs.MoveWindow(0, 0, 0, 0);
    m_data->m_tabs.BringWindowToTop();
    if (active == nullptr) return;
    if (withStrip)
        placePalette(*active, client);
    else
        active->MoveWindow(0, 0, cx, cy);
    active->Invalidate(TRUE);
}

CString CKbUiPaletteSet::GetName() const {
    CString name;
    GetWindowText(name);
    return name;
}

int CKbUiPaletteSet::SetName(const wchar_t* name) {
    SetWindowText(name);
    return 1;
}

unsigned long CKbUiPaletteSet::GetPaletteSetStyle() const { return m_data->m_style; }
void CKbUiPaletteSet::SetPaletteSetStyle(unsigned long style) { m_data->m_style = style; }

void CKbUiPaletteSet::GetMinimumSize(CSize& size) { size = kLeastSize; }

void CKbUiPaletteSet::GetMaximumSize(CSize& size) {
    size = CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

void CKbUiPaletteSet::GetFullRect(CRect& rect) const { GetWindowRect(&rect); }
void CKbUiPaletteSet::GetAdjustedClientRect(CRect& rect) const { GetClientRect(&rect); }
CFont* CKbUiPaletteSet::GetWindowFont() const { return &afxGlobalData.fontRegular; }

BOOL CKbUiPaletteSet::PreTranslateMessage(MSG* message) {
    if (message->message == WM_COMMAND && message->wParam == kEditPaletteNameCommand) {
        EditPaletteName();
        return TRUE;
    }
    if (message->message == WM_COMMAND && message->wParam == kEditNameCommand) {
        EditName();
        return TRUE;
    }
    return CKbUiDockControlBar::PreTranslateMessage(message);
}

int CKbUiPaletteSet::NameEditValidation(CEdit* edit) { return edit != nullptr; }

void CKbUiPaletteSet::EditName() { SendMessage(kBeginNameEdit, 0, 0); }

void CKbUiPaletteSet::EditPaletteName() {
    CKbUiPalette* palette = GetPalette(m_data->m_contextPalette);
    SetActivePalette(m_data->m_contextPalette);
    if (palette != nullptr) palette->SendMessage(kBeginNameEdit, 0, 0);
}

LRESULT CKbUiPaletteSet::OnBeginNameEdit(WPARAM, LPARAM) {
    auto edit = std::make_unique<CNameEdit>();
    if (!edit->Create(this, IsDocked() ? this : GetParent(), GetName(), nullptr)) return 0;
    edit.release();
    return 1;
}

LRESULT CKbUiPaletteSet::OnEndNameEdit(WPARAM edit, LPARAM text) {
    const std::unique_ptr<CNameEdit> ended(reinterpret_cast<CNameEdit*>(edit));
    if (!ended) return 0;
    ended->ForgetReceiver();
    if (text != 0) SetWindowText(reinterpret_cast<const wchar_t*>(text));
    ended->DestroyWindow();
    return 1;
}

CString CKbUiPaletteSet::stateKey() const {
    CString key;
    key.Format(L"%sBasePane-%d", static_cast<LPCTSTR>(AFXGetRegPath(L"BasePanes", nullptr)), GetDlgCtrlID());
    return key;
}

int CKbUiPaletteSet::Save(IUnknown*) {
    if (!CDockablePane::SaveState(nullptr, -1, static_cast<UINT>(-1))) return 0;
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, FALSE);
    if (settings.CreateKey(stateKey())) settings.Write(L"Name", static_cast<LPCTSTR>(GetName()));
    return 1;
}

int CKbUiPaletteSet::Load(IUnknown*) {
    if (!CDockablePane::LoadState(nullptr, -1, static_cast<UINT>(-1))) return 0;
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, TRUE);
    CString name;
    if (settings.Open(stateKey()) && settings.Read(L"Name", name)) SetWindowText(name);
    return 1;
}
