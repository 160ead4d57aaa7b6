// How a control of the toolkit and the window that holds it talk.
//
// One registered message, "KbUIMessage", carries everything: wParam holds the control's id in its low word
// and a KBUI_NOTIFY above it, lParam the datum that the table of values names, and the result is a
// KBUI_REPLY. The message is sent, never posted, so the result is the answer. A window that takes part has an
// entry for the message in its map and a virtual DoKbUiMessage, which a client overrides to hear more.
//
// A window that gets the message offers it first to its own child with that id. That is how a sender reaches
// a control when it knows only the dialog and the id.
#pragma once

#include <afx.h>
#include <ktui/ktui_api.h>

/// What a message is about. The datum is given behind each value.
enum KBUI_NOTIFY : int {
    kKbUiNotifyNone = 0,                 ///< not used
    kKbUiNotifyGeneric = 1,              ///< __int64: an event of the control's own
    kKbUiNotifyAppMainWindow = 2,        ///< CWnd** out: asks for the main window
    kKbUiNotifyAppResourceInstance = 3,  ///< HINSTANCE* out: asks for the resource module
    kKbUiNotifyGetTipSupport = 6,        ///< CPoint*, client: what tip is there at this point?
    kKbUiNotifyGetTipText = 7,           ///< CString* out: the tip's text
    kKbUiNotifyGetTipRect = 8,           ///< CRect* in and out, client: the tip's rectangle
    kKbUiNotifyHitTipRect = 9,           ///< CPoint*, client: is the point on the tip's subject?
    kKbUiNotifyDrawTip = 10,             ///< CDC*: paint an owner-drawn tip
    kKbUiNotifyDrawTipText = 11,         ///< CKbUiDrawTipText*: paint a text tip
    kKbUiNotifyUpdateTip = 12,           ///< CWnd*, the control: the mouse moved over it
    kKbUiNotifyHideDialog = 13,          ///< 0: hide, an editor command began
    kKbUiNotifyShowDialog = 14,          ///< 0: show, the editor command ended
    kKbUiNotifySetFocusToControl = 15,   ///< 0: take the focus and select the text
    kKbUiNotifyControlChange = 16,       ///< __int64: the control's content changed
    kKbUiNotifyControlInvalid = 17,      ///< the control's content became invalid
    kKbUiNotifyControlValid = 18,        ///< the control's content became valid
    kKbUiNotifyValidate = 19,            ///< 0: validate now and reply
    kKbUiNotifyEditorCommand = 20        ///< 1 began, 0 completed, -1 cancelled; to the main window
};

/// The answer to a message.
enum KBUI_REPLY : int {
    kKbUiReplyNone = 0,       ///< not handled; as tip support: no tip here
    kKbUiReplyHandled = 1,    ///< handled; as tip support: a text tip, the same item as last time
    kKbUiReplyInvalid = 2,    ///< the validation failed
    kKbUiReplyValid = 3,      ///< the validation passed
    kKbUiReplyTextTip = 4,    ///< tip support: a text tip, a new item
    kKbUiReplyNativeTip = 5,  ///< tip support: let the dialog's tool-tip control show it
    kKbUiReplyDrawnTip = 6,   ///< tip support: an owner-drawn tip, a new item
    kKbUiReplyKeepTip = 7     ///< tip support: an owner-drawn tip, the same item as last time
};

/// Name under which the message is registered with the platform.
constexpr const wchar_t* kKbUiMessageName = L"KbUIMessage";

/// Puts a control id (its low 16 bits count) and a notification into one wParam.
constexpr WPARAM PackKbUiNotification(unsigned id, KBUI_NOTIFY notification) {
    return (id & 0xFFFFu) | (static_cast<unsigned>(notification) & 0xFFFFu) << 16;
}

/// The notification in a wParam: its bits 16 to 31. Values that no member names are possible.
constexpr KBUI_NOTIFY UnpackKbUiNotification(WPARAM wParam) {
    return static_cast<KBUI_NOTIFY>((wParam >> 16) & 0xFFFFu);
}

/// The control id in a wParam: its low 16 bits.
constexpr unsigned UnpackKbUiNotifyId(WPARAM wParam) { return static_cast<unsigned>(wParam & 0xFFFFu); }

#ifdef _WIN32

class CWnd;

/// The registered message's number, the same in every module of the session.
KTUI_API UINT KbUiMessage();

/// The notification in the wParam of a "KbUIMessage".
KTUI_API KBUI_NOTIFY KbUiNotification(WPARAM wParam);

/// The control id in the wParam of a "KbUIMessage", 0 to 0xFFFF.
KTUI_API unsigned KbUiNotifyId(WPARAM wParam);

/// Sends `notification` about control `id` with `datum` to `window` and answers its reply. A window that
/// takes no part in the protocol, or that has no handle, replies kKbUiReplyNone.
KTUI_API KBUI_REPLY KbUiNotify(CWnd& window, unsigned id, KBUI_NOTIFY notification, unsigned __int64 datum);
/// The same with a pointer; null replies kKbUiReplyNone.
KTUI_API KBUI_REPLY KbUiNotify(CWnd* window, unsigned id, KBUI_NOTIFY notification, unsigned __int64 datum);

/// Passes a "KbUIMessage" that `holder` received on to the child that its id names. Answers the child's
/// reply, or 0 if the id is 0 or no child has it; `holder` then decides itself.
KTUI_API LRESULT OfferKbUiMessageToChild(const CWnd& holder, WPARAM wParam, LPARAM lParam);

#endif
