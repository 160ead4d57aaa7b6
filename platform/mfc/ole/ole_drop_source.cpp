#include <kmfc/ole_drop.h>

#include <kmfc/dialog.h>

IMPLEMENT_DYNAMIC(COleDropSource, CCmdTarget)

namespace {

constexpr DWORD kDragDelay = 200;  // milliseconds after which a drag begins where it is

enum class Begin { kWait, kDrag, kGiveUp };

/// What a message says of a drag that is about to begin.
Begin Judge(const MSG& message, const CRect& start) {
    switch (message.message) {
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN: return Begin::kGiveUp;
        case WM_KEYDOWN: return message.wParam == VK_ESCAPE ? Begin::kGiveUp : Begin::kWait;
        case WM_MOUSEMOVE:
            return start.PtInRect(message.pt) || start.TopLeft() == message.pt ? Begin::kWait : Begin::kDrag;
        default: return Begin::kWait;
    }
}

}  // namespace

SCODE COleDropSource::QueryContinueDrag(BOOL bEscapePressed, DWORD dwKeyState) {
    if (bEscapePressed || (dwKeyState & m_dwButtonCancel)) return DRAGDROP_S_CANCEL;
    return dwKeyState & m_dwButtonDrop ? S_OK : DRAGDROP_S_DROP;
}

SCODE COleDropSource::GiveFeedback(DROPEFFECT) { return DRAGDROP_S_USEDEFAULTCURSORS; }

BOOL COleDropSource::OnBeginDrag(CWnd* pWnd) {
    const bool isRight = ::GetKeyState(VK_RBUTTON) < 0 && ::GetKeyState(VK_LBUTTON) >= 0;
    m_dwButtonDrop = isRight ? MK_RBUTTON : MK_LBUTTON;
    m_dwButtonCancel = isRight ? MK_LBUTTON : MK_RBUTTON;
    if (pWnd) pWnd->SetCapture();
    const ULONGLONG begin = ::GetTickCount64();
    Begin decision = Begin::kWait;
    while (decision == Begin::kWait) {
        const ULONGLONG passed = ::GetTickCount64() - begin;
        if (passed >= kDragDelay) {
            decision = Begin::kDrag;
            break;
        }
        MSG message = {};
        const auto isInput = [&message](UINT first, UINT last) {
            return ::PeekMessageW(&message, nullptr, first, last, PM_REMOVE) != FALSE;
        };
        if (isInput(WM_MOUSEFIRST, WM_MOUSELAST) || isInput(WM_KEYFIRST, WM_KEYLAST))
            decision = Judge(message, m_rectStartDrag);
        else
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(kDragDelay - passed), QS_INPUT);
    }
    if (pWnd) ::ReleaseCapture();
    return decision == Begin::kDrag;
}
