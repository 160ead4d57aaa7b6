#include <ktui/docking/name_edit.h>

#include <afxglobals.h>

#include <memory>
#include <utility>

namespace {

constexpr UINT kEditId = 1127;
constexpr DWORD kPopupStyle = WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN;
constexpr DWORD kEditStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL;
const CSize kOffset(20, 10);     // from the parent's corner, without a position
constexpr int kWidth = 100;      // pixels
constexpr int kExtraHeight = 4;  // pixels around a line of text

/// Height of a line in the framework's regular font.
int lineHeight(CWnd& window) {
    CClientDC dc(&window);
    CFont* former = dc.SelectObject(&afxGlobalData.fontRegular);
    const CSize size = dc.GetTextExtent(L"|", 1);
    dc.SelectObject(former);
    return static_cast<int>(size.cy);
}

}  // namespace

BEGIN_MESSAGE_MAP(CNameEdit, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_EN_KILLFOCUS(kEditId, &CNameEdit::OnKillFocusEdit)
END_MESSAGE_MAP()

CNameEdit::CNameEdit() = default;

CNameEdit::~CNameEdit() {
    // Here, while WM_DESTROY still reaches this class.
    DestroyWindow();
}

int CNameEdit::Create(CWnd* receiver, CWnd* parent, const wchar_t* text, const CPoint* position) {
    CRect area;
    parent->GetWindowRect(&area);
    const CPoint corner = position != nullptr ? *position : area.TopLeft() + kOffset;
    const CRect rect(corner, CSize(kWidth, lineHeight(*parent) + kExtraHeight));
    m_receiver = receiver;
    const CString windowClass = afxGlobalData.RegisterWindowClass(L"KH:NameEdit");
    return CreateEx(WS_EX_TOPMOST, windowClass, text, kPopupStyle, rect, parent, 0);
}

int CNameEdit::OnCreate(LPCREATESTRUCT) {
    Default();
    auto edit = std::make_unique<CEdit>();
    if (!edit->Create(kEditStyle, CRect(0, 0, 1, 1), this, kEditId)) return -1;
    m_edit = edit.release();
    m_edit->SetFont(&afxGlobalData.fontRegular, TRUE);
    CString text;
    GetWindowText(text);
    m_edit->SetWindowText(text);
    m_edit->SetFocus();
    return 0;
}

BOOL CNameEdit::DestroyWindow() {
    m_receiver = nullptr;
    return CWnd::DestroyWindow();
}

void CNameEdit::OnDestroy() {
    CWnd::OnDestroy();
    const std::unique_ptr<CEdit> edit(std::exchange(m_edit, nullptr));
    if (edit) edit->DestroyWindow();
}

void CNameEdit::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (m_edit == nullptr) return;
    CRect client;
    GetClientRect(&client);
    m_edit->MoveWindow(&client);
    m_edit->SendMessage(EM_SETSEL, 0, -1);
}

void CNameEdit::finish(const wchar_t* text) {
    CWnd* receiver = std::exchange(m_receiver, nullptr);
    if (receiver != nullptr)
        receiver->SendMessage(kEndNameEdit, reinterpret_cast<WPARAM>(this), reinterpret_cast<LPARAM>(text));
}

BOOL CNameEdit::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN) {
        CString text;
        m_edit->GetWindowText(text);
        finish(text);
        return TRUE;
    }
    if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE) {
        finish(nullptr);
        return TRUE;
    }
    return CWnd::PreTranslateMessage(message);
}

void CNameEdit::OnKillFocusEdit() {
    if (m_receiver == nullptr || m_edit == nullptr) return;
    CString text;
    m_edit->GetWindowText(text);
    // Kept: the receiver stays known, unlike when a key has ended it.
    m_receiver->SendMessage(kEndNameEdit, reinterpret_cast<WPARAM>(this),
                            reinterpret_cast<LPARAM>(static_cast<const wchar_t*>(text)));
}
