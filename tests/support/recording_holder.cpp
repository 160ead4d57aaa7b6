#include "recording_holder.h"

#include <algorithm>

namespace ui_test {

namespace {

const UINT kbUiMessage = ::RegisterWindowMessageW(kKbUiMessageName);

}  // namespace

BEGIN_MESSAGE_MAP(RecordingHolder, CWnd)
    ON_REGISTERED_MESSAGE(kbUiMessage, &RecordingHolder::OnKbUiMessage)
END_MESSAGE_MAP()

int RecordingHolder::count(KBUI_NOTIFY notification) const {
    return static_cast<int>(std::count_if(heard.begin(), heard.end(), [&](const Heard& message) {
        return message.notification == notification;
    }));
}

BOOL RecordingHolder::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL handled = CWnd::OnCommand(wParam, lParam);
    if (handled || lParam == 0) return handled;
    wchar_t className[32] = {};
    ::GetClassNameW(reinterpret_cast<HWND>(lParam), className, 32);
    const bool isEdit = ::lstrcmpiW(className, L"edit") == 0;
    if (isEdit && HIWORD(wParam) == EN_CHANGE) ++changes;
    if (!isEdit && HIWORD(wParam) == CBN_CLOSEUP) ++closeUps;
    if (!isEdit && HIWORD(wParam) == CBN_DROPDOWN) ++dropDowns;
    return handled;
}

LRESULT RecordingHolder::OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
    heard.push_back({KbUiNotifyId(wParam), KbUiNotification(wParam), lParam});
    return reply;
}

}  // namespace ui_test
