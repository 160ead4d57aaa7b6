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

}  // namespace

CString HelpTopicOf(HWND window, const HelpIds& ids) {
    for (; window != nullptr; window = ::GetParent(window)) {
        const CString topic = ownTopic(window, ids);
        if (!topic.IsEmpty()) return topic;
    }
    return {};
}
