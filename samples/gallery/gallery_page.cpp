#include "gallery_page.h"

#include "../common/invalid_field.h"
#include "resource.h"

namespace {

// Dialog units.
constexpr int kLeft = 6, kLabelWidth = 96, kControlLeft = 106, kControlWidth = 150, kRowGap = 4;
constexpr int kSwitchWidth = 124, kCommandWidth = 124, kButtonHeight = 14;
constexpr int kPageRight = 262;

const wchar_t* wordOf(KBUI_NOTIFY notification) {
    switch (notification) {
        case kKbUiNotifyGeneric: return L"Generic";
        case kKbUiNotifyHideDialog: return L"HideDialog";
        case kKbUiNotifyShowDialog: return L"ShowDialog";
        case kKbUiNotifySetFocusToControl: return L"SetFocusToControl";
        case kKbUiNotifyControlChange: return L"ControlChange";
        case kKbUiNotifyControlInvalid: return L"ControlInvalid";
        case kKbUiNotifyControlValid: return L"ControlValid";
        case kKbUiNotifyValidate: return L"Validate";
        case kKbUiNotifyEditorCommand: return L"EditorCommand";
        default: return nullptr;  // tips ask at each move of the pointer, and the log would drown
    }
}

/// The word for a WM_COMMAND notification of a control of class `name`, null for one that isn't told.
const wchar_t* commandWord(const CString& name, UINT code) {
    if (name.CompareNoCase(L"Edit") == 0) return code == EN_CHANGE ? L"EN_CHANGE" : nullptr;
    if (name.CompareNoCase(L"ListBox") == 0) return code == LBN_SELCHANGE ? L"LBN_SELCHANGE" : nullptr;
    if (name.CompareNoCase(L"Button") == 0) return code == BN_CLICKED ? L"BN_CLICKED" : nullptr;
    if (name.CompareNoCase(L"ComboBox") != 0) return nullptr;
    switch (code) {
        case CBN_SELCHANGE: return L"CBN_SELCHANGE";
        case CBN_DROPDOWN: return L"CBN_DROPDOWN";
        case CBN_CLOSEUP: return L"CBN_CLOSEUP";
        case CBN_SELENDOK: return L"CBN_SELENDOK";
        case CBN_SELENDCANCEL: return L"CBN_SELENDCANCEL";
        case CBN_EDITCHANGE: return L"CBN_EDITCHANGE";
        default: return nullptr;
    }
}

}  // namespace

CString Both(const wchar_t* english, const wchar_t* chinese) {
    return PRIMARYLANGID(LANGIDFROMLCID(::GetThreadLocale())) == LANG_CHINESE ? chinese : english;
}

BEGIN_MESSAGE_MAP(CGalleryPage, CKtUiDialog)
    ON_WM_DESTROY()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CGalleryPage::CGalleryPage() : CKtUiDialog(IDD_GALLERY_PAGE, nullptr, AfxGetInstanceHandle()) {
    SetDialogName(L"Gallery Page");
}

CGalleryPage::~CGalleryPage() = default;

bool CGalleryPage::CreatePage(CWnd& parent, const CRect& place, Log log) {
    m_log = std::move(log);
    if (!Create(IDD_GALLERY_PAGE, &parent)) return false;
    MoveWindow(place);
    ShowWindow(SW_SHOW);
    return true;
}

BOOL CGalleryPage::OnInitDialog() {
    CKtUiDialog::OnInitDialog();
    m_isBuilding = true;
    Build();
    m_isBuilding = false;
    return FALSE;
}

void CGalleryPage::OnDestroy() {
    for (const auto& ending : m_endings) ending();
    CKtUiDialog::OnDestroy();
}

CRect CGalleryPage::pixels(CRect units) const {
    ::MapDialogRect(m_hWnd, &units);
    return units;
}

CRect CGalleryPage::addRow(const CString& label, int height) {
    m_buttonX = 0;
    auto text = std::make_unique<CStatic>();
    text->Create(label, WS_CHILD | WS_VISIBLE | SS_NOPREFIX,
                 pixels({kLeft, m_y + 2, kLeft + kLabelWidth, m_y + 2 + 10}), this);
    text->SetFont(GetFont());
    m_controls.push_back(std::move(text));
    m_caption = label;
    m_names.emplace_back(m_nextId, label);
    const CRect place = pixels({kControlLeft, m_y, kControlLeft + kControlWidth, m_y + height});
    m_y += height + kRowGap;
    return place;
}

void CGalleryPage::finish(CWnd& control) { control.SetFont(GetFont()); }

CRect CGalleryPage::Room(int height) {
    const CRect place = pixels({kLeft, m_y, kPageRight, m_y + height});
    m_y += height + kRowGap;
    return place;
}

void CGalleryPage::Say(const CString& text) {
    constexpr int kLineHeight = 19;  // two lines
    m_buttonX = 0;
    auto words = std::make_unique<CStatic>();
    words->Create(text, WS_CHILD | WS_VISIBLE | SS_NOPREFIX,
                  pixels({kLeft, m_y, kPageRight, m_y + kLineHeight}), this);
    words->SetFont(GetFont());
    m_controls.push_back(std::move(words));
    m_y += kLineHeight + kRowGap;
}

UINT CGalleryPage::addButton(const CString& text, DWORD style, int width) {
    const bool isNewRow = m_buttonX == 0 || m_buttonX + width > kPageRight;
    if (isNewRow)
        m_buttonX = kLeft;
    else
        m_y -= kButtonHeight + kRowGap;  // back to the row of the button before
    const UINT id = m_nextId++;
    auto button = std::make_unique<CButton>();
    button->Create(text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style,
                   pixels({m_buttonX, m_y, m_buttonX + width, m_y + kButtonHeight}), this, id);
    button->SetFont(GetFont());
    m_controls.push_back(std::move(button));
    m_buttonX += width + kRowGap;
    m_y += kButtonHeight + kRowGap;
    return id;
}

void CGalleryPage::Switch(const CString& text, bool on, std::function<void(bool)> turned) {
    const UINT id = addButton(text, BS_AUTOCHECKBOX, kSwitchWidth);
    CheckDlgButton(static_cast<int>(id), on);
    m_clicked.push_back({id, [this, id, text, turned] {
                             const bool isOn = IsDlgButtonChecked(static_cast<int>(id)) == BST_CHECKED;
                             turned(isOn);
                             Tell(text + (isOn ? L": 1" : L": 0"));
                         }});
}

UINT CGalleryPage::Command(const CString& text, std::function<CString()> pressed) {
    const UINT id = addButton(text, BS_PUSHBUTTON, kCommandWidth);
    m_clicked.push_back({id, [this, text, pressed] {
                             const CString answer = pressed();
                             if (!answer.IsEmpty()) Tell(text + L": " + answer);
                         }});
    return id;
}

void CGalleryPage::Tell(const CString& line) {
    if (m_log && !m_isBuilding) m_log(line);
}

void CGalleryPage::PoseOpen(CWnd& combo) {
    PoseFocus(combo);
    combo.SendMessage(CB_SHOWDROPDOWN, TRUE);
}

void CGalleryPage::PoseFocus(CWnd& control) {
    m_posed = &control;
    control.SetFocus();
}

void CGalleryPage::EndPose() {
    if (m_posed != nullptr) m_posed->SendMessage(CB_SHOWDROPDOWN, FALSE);
    m_posed = nullptr;
    const HWND top = ::GetAncestor(m_hWnd, GA_ROOT), dialog = ::GetLastActivePopup(top);
    if (dialog != top && !::IsWindowEnabled(top)) ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

CString CGalleryPage::nameOf(unsigned id) const {
    for (const auto& [each, name] : m_names)
        if (each == id) return name + L": ";
    return {};
}

BOOL CGalleryPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam), code = HIWORD(wParam);
    if (code == BN_CLICKED)
        for (const Clicked& each : m_clicked)
            if (each.id == id) {
                each.action();
                return TRUE;
            }
    const auto control = reinterpret_cast<HWND>(lParam);
    wchar_t name[32] = {};
    if (control != nullptr) ::GetClassNameW(control, name, 32);
    if (const wchar_t* word = commandWord(name, code)) Tell(nameOf(id) + word);
    return CKtUiDialog::OnCommand(wParam, lParam);
}

void CGalleryPage::Mark(unsigned id, bool isInvalid) {
    if (isInvalid)
        m_invalid.insert(id);
    else
        m_invalid.erase(id);
    if (CWnd* control = GetDlgItem(static_cast<int>(id))) control->Invalidate();
}

/// A field with a bad value turns red, as a holder does it.
HBRUSH CGalleryPage::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    const HBRUSH usual = CKtUiDialog::OnCtlColor(dc, control, kind);
    if (m_invalid.count(static_cast<unsigned>(control->GetDlgCtrlID())) == 0) return usual;
    dc->SetBkColor(InvalidPaper());
    m_invalidBrush.DeleteObject();
    m_invalidBrush.CreateSolidBrush(InvalidPaper());
    return m_invalidBrush;
}

void CGalleryPage::Hear(KBUI_NOTIFY notification, unsigned id) {
    if (notification == kKbUiNotifyControlInvalid) Mark(id, true);
    if (notification == kKbUiNotifyControlValid) Mark(id, false);
    if (const wchar_t* word = wordOf(notification)) Tell(nameOf(id) + word);
}

KBUI_REPLY CGalleryPage::DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) {
    Hear(notification, id);
    return CKtUiDialog::DoKbUiMessage(notification, id, data);
}

std::vector<GalleryEntry> AllPages() {
    std::vector<GalleryEntry> all;
    for (const auto family : {InputPages, PickerPages, ButtonPages, ListPages, DialogPages, NavPages,
                              MessagePages, TipPages, PalettePages}) {
        std::vector<GalleryEntry> pages = family();
        all.insert(all.end(), pages.begin(), pages.end());
    }
    return all;
}
