// What the windows that hold controls do alike in the notification protocol: the way of a message to the
// control and back, the tip windows, and the decision which tip to show. Private to the library.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <ktui/host/notification.h>

class CKbUiTextTip;

/// What a dialog and a dialog bar do differently.
struct TipHolderRules {
    bool rectReplyCounts;  ///< a control that replies 0 to the question for the rectangle gets no tip
    UINT lastMessage;      ///< the last set-up message of the tool-tip control, with its words
    WPARAM lastWord;
    LPARAM lastDatum;
};

/// Works on the fields of the window that holds the controls; made for one call.
class TipHolder {
public:
    TipHolder(CWnd& window, int& useTips, CKbUiTextTip*& textTip, CToolTipCtrl*& toolTip,
              const TipHolderRules& rules)
        : m_window(window), m_useTips(useTips), m_textTip(textTip), m_toolTip(toolTip), m_rules(rules) {}

    /// Keeps `useTips`; makes the tip windows with 1 unless they are there, and destroys them with any other
    /// value.
    void SetUseTips(int useTips);
    /// Turns tips off and frees both tip objects.
    void End();
    /// Passes a "KbUIMessage" on to the control that it names. The reply, or 0 if the window decides itself.
    LRESULT Route(WPARAM wParam, LPARAM lParam);
    /// Shows, keeps or hides the tip for the place of the pointer in `control`.
    KBUI_REPLY UpdateTip(CWnd& control);
    /// Shows the tool-tip control a message that the window is about to get.
    void Relay(const MSG& message);

private:
    void create();
    void destroy();
    KBUI_REPLY offerNativeTip(CWnd& control, unsigned id, LPARAM update);
    KBUI_REPLY showDrawnTip(CWnd& control, unsigned id, CRect rect);
    KBUI_REPLY showTextTip(CWnd& control, unsigned id, CRect rect);
    /// Puts the tip's window over `rect` (screen) and shows it.
    void showAt(CWnd& control, const CRect& rect);

    CWnd& m_window;
    int& m_useTips;
    CKbUiTextTip*& m_textTip;
    CToolTipCtrl*& m_toolTip;
    const TipHolderRules& m_rules;
};

/// The cases of DoKbUiMessage that all windows that hold controls share; a friend of theirs.
class NotificationHolder {
public:
    template <class Window>
    static KBUI_REPLY Answer(Window& window, KBUI_NOTIFY notification, unsigned id, __int64 data) {
        switch (notification) {
            case kKbUiNotifyGeneric: return window.OnNotifyGeneric(id, data);
            case kKbUiNotifyAppMainWindow:
                *reinterpret_cast<CWnd**>(data) = window.AppMainWindow();
                return kKbUiReplyHandled;
            case kKbUiNotifyAppResourceInstance:
                *reinterpret_cast<HINSTANCE*>(data) = window.AppResourceInstance();
                return kKbUiReplyHandled;
            case kKbUiNotifyUpdateTip: return window.OnNotifyUpdateTip(reinterpret_cast<CWnd*>(data));
            case kKbUiNotifyControlChange: return window.OnNotifyControlChange(id, data);
            default: return kKbUiReplyNone;
        }
    }
};
