#include <ktui/input/kbui_search_box.h>

#include <ktdsres/resource_ids.h>
#include <ktui/host/accessible.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/string_resources.h>

namespace {

// Ids of the controls inside.
constexpr UINT kClearButton = 1125;
constexpr UINT kSearchButton = 1126;
constexpr UINT kEditor = 1127;

constexpr DWORD kEditorStyle = WS_CHILD | ES_AUTOHSCROLL;
constexpr DWORD kClearButtonStyle = WS_CHILD | BS_OWNERDRAW;
constexpr DWORD kSearchButtonStyle = kClearButtonStyle | WS_VISIBLE;

template <class Control>
void DestroyControl(Control*& control) {
    if (!control) return;
    control->DestroyWindow();
    delete control;
    control = nullptr;
}

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiSearchBox, CKbUiEdit)

BEGIN_MESSAGE_MAP(CKbUiSearchBox, CKbUiEdit)
    ON_BN_CLICKED(kClearButton, &CKbUiSearchBox::OnClearButton)
    ON_BN_CLICKED(kSearchButton, &CKbUiSearchBox::OnSearchButton)
    ON_EN_CHANGE(kEditor, &CKbUiSearchBox::OnEditorChange)
    ON_EN_KILLFOCUS(kEditor, &CKbUiSearchBox::KillEditFocus)
    ON_CONTROL_REFLECT_EX(EN_SETFOCUS, &CKbUiSearchBox::SetEditFocus)
    ON_WM_SIZE()
    ON_MESSAGE(WM_GETOBJECT, &CKbUiSearchBox::OnGetObject)
    ON_REGISTERED_MESSAGE(accessibleMessage, &CKbUiSearchBox::OnAccessible)
END_MESSAGE_MAP()

CKbUiSearchBox::CKbUiSearchBox() : m_notification(LoadToolkitString(IDS_START_SEARCH, L"开始查找")) {}

CKbUiSearchBox::~CKbUiSearchBox() {
    // The window's last messages still belong to this class.
    DestroyWindow();
}

BOOL CKbUiSearchBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    if (!CEdit::Create(style | ES_AUTOHSCROLL, rect, parent, id)) return FALSE;
    ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
    return CreateControls();
}

void CKbUiSearchBox::PreSubclassWindow() {
    CKbUiEdit::PreSubclassWindow();
    CreateControls();
}

void CKbUiSearchBox::GetControlRect(CRect& editor, CRect& button) {
    CRect client;
    GetClientRect(&client);
    editor = button = client;
    // What is left of the editor is a square and the pixel between them.
    editor.right = client.right + client.top - client.bottom;
    button.left = editor.right + 1;
}

BOOL CKbUiSearchBox::CreateControls() {
    // Kept: may be called through a null pointer.
    if (!GetSafeHwnd() || m_editor) return TRUE;
    CRect client, editor, button;
    GetClientRect(&client);
    if (client.Width() == 0) return TRUE;
    GetControlRect(editor, button);
    if (editor.Width() <= 0) return TRUE;
    // What lies on the control must not be painted over when its own text changes.
    ModifyStyle(0, WS_CLIPCHILDREN);
    if (!createEditor(editor) || !createButtons(button)) {
        destroyControls();
        return FALSE;
    }
    m_editor->SetWindowText(m_defaultText);
    SetWindowText(m_notification);
    return TRUE;
}

bool CKbUiSearchBox::createEditor(const CRect& place) {
    m_editor = new CKbUiSearchBoxEditor;
    return m_editor->Create(kEditorStyle, place, this, kEditor) != FALSE;
}

bool CKbUiSearchBox::createButtons(const CRect& place) {
    m_searchButton = new CKbUiSearchBoxSearchButton;
    m_clearButton = new CKbUiSearchBoxClearButton;
    return m_searchButton->Create(L"", kSearchButtonStyle, place, this, kSearchButton) &&
           m_clearButton->Create(L"", kClearButtonStyle, place, this, kClearButton);
}

void CKbUiSearchBox::destroyControls() {
    DestroyControl(m_searchButton);
    DestroyControl(m_clearButton);
    DestroyControl(m_editor);
}

BOOL CKbUiSearchBox::IsEditEmpty() {
    CString text;
    GetWindowText(text);
    return text.IsEmpty() || text == m_notification || text == m_defaultText;
}

BOOL CKbUiSearchBox::SetEditFocus() {
    if (!m_editor) return FALSE;
    CString text;
    m_editor->GetWindowText(text);
    if (text == m_defaultText)
        m_editor->SetSel(0, -1, TRUE);
    else
        m_editor->SetSel(text.GetLength(), text.GetLength(), TRUE);
    m_editor->SendMessage(EM_SCROLLCARET);
    m_editor->SetFont(GetFont());
    m_editor->ShowWindow(SW_SHOW);
    m_editor->SetFocus();
    return FALSE;
}

void CKbUiSearchBox::KillEditFocus() {
    CString text;
    m_editor->GetWindowText(text);
    if (text.IsEmpty()) {
        text = m_defaultText;
        m_editor->SetWindowText(text);
    }
    if (text == m_defaultText) m_editor->ShowWindow(SW_HIDE);
}

void CKbUiSearchBox::EditChanged() {
    CString text;
    m_editor->GetWindowText(text);
    if (text.IsEmpty() || text == m_defaultText) text = m_notification;
    SetWindowText(text);
    UpdateButton();
}

void CKbUiSearchBox::ClearEditor() {
    if (!m_editor) return;
    m_editor->SetWindowText(m_defaultText);
    SetWindowText(m_notification);
    UpdateButton();
}

void CKbUiSearchBox::ClearButtonClicked() { ClearEditor(); }

void CKbUiSearchBox::SearchButtonClicked() {}

void CKbUiSearchBox::UpdateButton() {
    const bool isEmpty = IsEditEmpty() != FALSE;
    if (m_searchButton) m_searchButton->ShowWindow(isEmpty ? SW_SHOW : SW_HIDE);
    if (m_clearButton) m_clearButton->ShowWindow(isEmpty ? SW_HIDE : SW_SHOW);
}

void CKbUiSearchBox::OnSize(UINT type, int cx, int cy) {
    CKbUiEdit::OnSize(type, cx, cy);
    if (!m_searchButton) return;
    CRect editor, button;
    GetControlRect(editor, button);
    m_editor->MoveWindow(&editor);
    m_searchButton->MoveWindow(&button);
    m_clearButton->MoveWindow(&button);
}

LRESULT CKbUiSearchBox::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = AnswerGetObject(*this, wParam, lParam);
    return answer ? answer : Default();
}

LRESULT CKbUiSearchBox::OnAccessible(WPARAM wParam, LPARAM lParam) {
    if (static_cast<KbUiAccessibleRequest>(wParam) != KbUiAccessibleRequest::kFacts) return 0;
    auto& item = *reinterpret_cast<KbUiAccessibleItem*>(lParam);
    item.name = m_notification;
    item.role = ROLE_SYSTEM_TEXT;
    if (!IsEditEmpty()) GetWindowText(item.value);
    return 1;
}

LRESULT CKbUiSearchBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DESTROY) return CKbUiEdit::WindowProc(message, wParam, lParam);
    destroyControls();
    return 0;
}
