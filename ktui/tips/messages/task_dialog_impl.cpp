#include <ktui/tips/messages/task_dialog_impl.h>

#include <algorithm>

CTaskDialogImpl::~CTaskDialogImpl() {
    if (m_mainIcon != nullptr) ::DestroyIcon(m_mainIcon);
}

void CTaskDialogImpl::copyContents(const CTaskDialogImpl& other) {
    if (this == &other) return;
    setMainIcon(other.m_mainIcon != nullptr ? ::CopyIcon(other.m_mainIcon) : nullptr);
    m_commonButtons = other.m_commonButtons;
    m_options = other.m_options;
    m_width = other.m_width;
    m_defaultCommand = other.m_defaultCommand;
    m_commands = other.m_commands;
    m_content = other.m_content;
    m_mainInstruction = other.m_mainInstruction;
    m_windowTitle = other.m_windowTitle;
    m_verificationText = other.m_verificationText;
    m_verificationState = other.m_verificationState;
    m_selectedCommand = other.m_selectedCommand;
}

void CTaskDialogImpl::setMainIcon(HICON icon) {
    if (m_mainIcon != nullptr) ::DestroyIcon(m_mainIcon);
    m_mainIcon = icon;
    if (icon != nullptr) m_options |= kTaskDialogCustomIcon;
}

bool CTaskDialogImpl::hasExtendedText() const {
    return std::any_of(m_commands.begin(), m_commands.end(),
                       [](const CTaskDialogButton& command) { return !command.m_extendedText.IsEmpty(); });
}

bool CTaskDialogImpl::isCancellable() const {
    constexpr int kCancelButton = 8;
    return (m_options & kTaskDialogCancellable) || (m_commonButtons & kCancelButton) ||
           std::any_of(m_commands.begin(), m_commands.end(),
                       [](const CTaskDialogButton& command) { return command.m_id == IDCANCEL; });
}

TaskDialogContents CTaskDialogImpl::contents() const {
    return {m_mainInstruction, m_content, m_verificationText,    m_commands,
            m_commonButtons,   m_options, m_mainIcon != nullptr, m_width};
}
