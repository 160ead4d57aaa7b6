#include "messages.h"

#include <string>
#include <algorithm>

#include <kh_system.h>

#include <ktui/host/message_box.h>
#include <ktui/tips/messages/ktui_task_dialog.h>

#include "loss_texts.h"
#include "resource.h"
#include "resource_text.h"

namespace {

constexpr int kLinks = 0x0010, kRelative = 0x1000;
constexpr int kCancelButton = 8, kOkButton = 1;
constexpr int kFirstCommand = 101;
constexpr std::size_t kListedMends = 5;  // of those of a drawing
const wchar_t* const kSettings = L"Messages";
const wchar_t* const kOverwriteNewer = L"OverwriteNewer";

CString formatted(UINT id, const CString& argument) {
    CString text;
    text.Format(id, argument.GetString());
    return text;
}

const wchar_t* warningIcon() { return MAKEINTRESOURCEW(0xFFFF); }

/// A text for the toolkit's own task dialog, which takes an ampersand as the mark of a key.
CString plain(const CString& text) {
    CString shown = text;
    shown.Replace(L"&", L"&&");
    return shown;
}

CString inUse(const CString& path, const CString& holder) {
    CString text;
    text.Format(holder.IsEmpty() ? IDS_IN_USE : IDS_IN_USE_BY, path.GetString(), holder.GetString());
    return text;
}

/// What was mended, with its place.
CString placed(const OdDxfMend& mend) {
    CString text;
    // A binary file has no lines.
    if (mend.line != 0)
        text.Format(IDS_MENDED_LINE, mend.line, mend.text.c_str());
    else
        text.Format(IDS_MENDED_BYTE, std::to_wstring(mend.byte).c_str(), mend.text.c_str());
    return text;
}

/// A message of a heading and a text with the warning sign and an OK button.
void warn(CWnd& parent, UINT heading, const CString& text) {
    CKtUiTaskDialog dialog;
    dialog.SetWindowTitle(CKhSystem::instance()->productInfo()->messageCaption());
    dialog.SetMainInstruction(textOf(heading));
    dialog.SetContent(text);
    dialog.SetMainIcon(warningIcon());
    dialog.SetOptions(0x0008 | 0x0002 | kRelative);
    dialog.SetCommonButtons(kOkButton);
    dialog.DoModal(parent.m_hWnd);
}

/// A question with commands of two lines each and a Cancel button, which makes it the toolkit's own.
class Question : public CKtUiTaskDialog {
public:
    explicit Question(const CString& heading) {
        SetWindowTitle(CKhSystem::instance()->productInfo()->messageCaption());
        SetMainInstruction(plain(heading));
        SetOptions(kLinks | kRelative);
        SetCommonButtons(kCancelButton);
    }
    void Offer(UINT title, UINT explanation) {
        const int id = kFirstCommand + m_offered++;
        AddCommandControl(id, textOf(title));
        SetCommandControlExtend(id, textOf(explanation));
    }
    /// Index of the command chosen, -1 for none.
    int Ask(CWnd& parent) {
        const int answer = static_cast<int>(DoModal(parent.m_hWnd));
        return answer >= kFirstCommand ? answer - kFirstCommand : -1;
    }

private:
    int m_offered = 0;
};

}  // namespace

UnsavedChoice AskUnsavedChanges(CWnd& parent, const CString& name) {
    Question question(formatted(IDS_SAVE_CHANGES, name));
    question.Offer(IDS_SAVE_COMMAND, IDS_SAVE_EXPLAINED);
    question.Offer(IDS_DISCARD_COMMAND, IDS_DISCARD_EXPLAINED);
    switch (question.Ask(parent)) {
        case 0: return UnsavedChoice::kSave;
        case 1: return UnsavedChoice::kDiscard;
        default: return UnsavedChoice::kCancel;
    }
}

InUseChoice AskInUse(CWnd& parent, const CString& path, const CString& holder) {
    Question question(textOf(IDS_IN_USE_HEADING));
    question.SetContent(plain(inUse(path, holder)));
    question.SetMainIcon(warningIcon());
    question.Offer(IDS_READ_ONLY_COMMAND, IDS_READ_ONLY_EXPLAINED);
    question.Offer(IDS_ANYWAY_COMMAND, IDS_ANYWAY_EXPLAINED);
    switch (question.Ask(parent)) {
        case 0: return InUseChoice::kReadOnly;
        case 1: return InUseChoice::kAnyway;
        default: return InUseChoice::kCancel;
    }
}

void TellInUse(const CString& path, const CString& holder) {
    KtUiMessageBox(nullptr, formatted(IDS_SAVE_IN_USE, inUse(path, holder)), MB_ICONEXCLAMATION);
}

CString MendedText(const OdDxfReading& reading) {
    CString text;
    if (!reading.mends.empty())
        text.Format(IDS_MENDED_STATUS, static_cast<int>(reading.mendCount),
                    placed(reading.mends.front()).GetString());
    return text;
}

void TellUnreadable(CWnd& parent, const CString& path, const OdDbDxfError& error, const CString& kept) {
    CString reason;
    // What concerns the whole file has no line, and what stands in a binary one has a byte.
    if (error.byte != 0)
        reason.Format(IDS_READ_FAILED_AT_BYTE, path.GetString(), std::to_wstring(error.byte).c_str(),
                      error.text.c_str());
    else if (error.line == 0)
        reason.Format(IDS_FILE_UNREADABLE, path.GetString(), error.text.c_str());
    else
        reason.Format(IDS_READ_FAILED, path.GetString(), static_cast<int>(error.line), error.text.c_str());
    if (!kept.IsEmpty()) reason += L"\n\n" + formatted(IDS_DRAWING_KEPT, kept);
    warn(parent, IDS_UNREADABLE_HEADING, reason);
}

void TellMended(CWnd& parent, const CString& path, const OdDxfReading& reading) {
    CString list;
    const std::size_t listed = std::min(reading.mends.size(), kListedMends);
    for (std::size_t i = 0; i < listed; ++i) list += L"\n" + placed(reading.mends[i]);
    if (reading.mendCount > listed) {
        CString more;
        more.Format(IDS_MENDED_MORE, static_cast<int>(reading.mendCount - listed));
        list += L"\n" + more;
    }
    CString text;
    text.Format(IDS_MENDED, path.GetString(), list.GetString());
    warn(parent, IDS_MENDED_HEADING, text);
}

LossChoice AskLosses(CWnd& parent, const CString& path, const std::vector<OdDxfLoss>& losses) {
    CString text;
    text.Format(IDS_LOSS_EXPLAINED, path.GetString(), LossText(losses).GetString());
    Question question(textOf(IDS_LOSS_HEADING));
    question.SetContent(plain(text));
    question.SetMainIcon(warningIcon());
    question.Offer(IDS_LOSS_SAVE_COMMAND, IDS_LOSS_SAVE_EXPLAINED);
    question.Offer(IDS_LOSS_SAVE_AS_COMMAND, IDS_LOSS_SAVE_AS_EXPLAINED);
    switch (question.Ask(parent)) {
        case 0: return LossChoice::kSave;
        case 1: return LossChoice::kSaveAs;
        default: return LossChoice::kCancel;
    }
}

NewerFileChoice AskNewerFile(CWnd& parent, const CString& path) {
    if (AnyMessageAnswered()) return NewerFileChoice::kOverwrite;
    Question question(textOf(IDS_NEWER_HEADING));
    question.SetContent(plain(formatted(IDS_NEWER_EXPLAINED, path)));
    question.SetMainIcon(warningIcon());
    question.Offer(IDS_OVERWRITE_COMMAND, IDS_OVERWRITE_EXPLAINED);
    question.Offer(IDS_SAVE_AS_COMMAND, IDS_SAVE_AS_EXPLAINED);
    question.SetVerificationCheckboxText(textOf(IDS_NEVER_ASK_AGAIN));
    const int answer = question.Ask(parent);
    if (answer == 1) return NewerFileChoice::kSaveAs;
    if (answer != 0) return NewerFileChoice::kCancel;
    // Only an answer that can be given for the user is remembered.
    if (question.GetVerificationCheckboxState())
        CKhSystem::instance()->profileStore()->setProfileInt(kSettings, kOverwriteNewer, 1, 0);
    return NewerFileChoice::kOverwrite;
}

bool AnyMessageAnswered() {
    int always = 0;
    return CKhSystem::instance()->profileStore()->getProfileInt(kSettings, kOverwriteNewer, always, 0) &&
           always != 0;
}

void ForgetMessageAnswers() {
    CKhSystem::instance()->profileStore()->setProfileInt(kSettings, kOverwriteNewer, 0, 0);
}
