#include "help/help_at_hand.h"

#include <ktui/dialogs/kbui_dialog.h>

namespace {

CString ownTopic(HWND window, const HelpIds& ids) {
    CString topic;
    if (const auto* dialog = dynamic_cast<CKbUiDialog*>(CWnd::FromHandlePermanent(window)))
        dialog->GetDialogHelpTag(topic);
    topic.Trim();
    if (!topic.IsEmpty()) return topic;
    const auto found = ids.find(::GetWindowContextHelpId(window));
    return found != ids.end() ? found->second : CString();
}

bool isDialog(HWND window) {
    wchar_t name[8] = {};
    ::GetClassNameW(window, name, 8);
    return ::wcscmp(name, L"#32770") == 0;
}

/// That of a dialog which the system's own dialog or a property sheet holds: of the first one shown that has
/// any. The bars of a frame are dialogs too, and none of its help.
CString heldTopic(HWND window, const HelpIds& ids) {
    if (!isDialog(window)) return {};
    for (HWND held = nullptr; (held = ::FindWindowExW(window, held, L"#32770", nullptr)) != nullptr;) {
        const CString topic = ::IsWindowVisible(held) ? ownTopic(held, ids) : CString();
        if (!topic.IsEmpty()) return topic;
    }
    return {};
}

}  // namespace

CString HelpTopicOf(HWND window, const HelpIds& ids) {
    for (; window != nullptr; window = ::GetParent(window)) {
        CString topic = ownTopic(window, ids);
        if (topic.IsEmpty()) topic = heldTopic(window, ids);
        if (!topic.IsEmpty()) return topic;
    }
    return {};
}
