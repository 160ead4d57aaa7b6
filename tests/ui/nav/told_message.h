// The messages that the toolkit shows, whole: caption, text, buttons and icon.
#pragma once

#include <string>

#include "../messages/platform_task_dialog.h"

/// Buttons of a message, as the system numbers them.
enum ToldButtons { kToldOk = 1, kToldYesNo = 6, kToldOkCancel = 9 };

struct ToldMessage {
    std::wstring caption, text;
    int buttons;
    HICON icon;  ///< null for none
    bool operator==(const ToldMessage&) const = default;
};

inline void PrintTo(const ToldMessage& message, std::ostream* out) {
    *out << CStringA(message.caption.c_str()).GetString() << " | "
         << CStringA(message.text.c_str()).GetString() << " | buttons " << message.buttons << " | icon "
         << message.icon;
}

/// Every message since ForgetMessages.
inline std::vector<ToldMessage> ToldMessages() {
    std::vector<ToldMessage> all;
    for (const auto& request : ui_test::task_dialog_requests())
        all.push_back(
            {request.title, request.heading + request.content, request.commonButtons, request.icon});
    return all;
}
inline void ForgetMessages() { ui_test::task_dialog_requests().clear(); }

inline HICON WarningSign() { return ::LoadIconW(nullptr, IDI_EXCLAMATION); }
