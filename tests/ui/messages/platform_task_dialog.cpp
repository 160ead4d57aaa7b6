#include "platform_task_dialog.h"

#include <cstring>

#include "replaced_import.h"

namespace ui_test {

std::optional<TaskDialogAnswer> task_dialog_answer;

std::vector<TaskDialogRequest>& task_dialog_requests() {
    static std::vector<TaskDialogRequest> requests;
    return requests;
}

namespace {

std::wstring text_of(const wchar_t* text) { return text != nullptr ? text : L""; }

decltype(&::TaskDialogIndirect) system_dialog;

HRESULT WINAPI seen_dialog(const TASKDIALOGCONFIG* config, int* button, int* radio, WINBOOL* verified) {
    TaskDialogRequest request;
    request.parent = config->hwndParent;
    request.flags = config->dwFlags;
    request.commonButtons = config->dwCommonButtons;
    request.title = text_of(config->pszWindowTitle);
    request.heading = text_of(config->pszMainInstruction);
    request.content = text_of(config->pszContent);
    request.hasVerification = config->pszVerificationText != nullptr;
    request.verification = text_of(config->pszVerificationText);
    request.icon = config->hMainIcon;
    for (UINT i = 0; i < config->cButtons; ++i)
        request.commands.emplace_back(+config->pButtons[i].nButtonID, +config->pButtons[i].pszButtonText);
    request.defaultButton = config->nDefaultButton;
    request.width = config->cxWidth;
    task_dialog_requests().push_back(request);
    if (!task_dialog_answer) return system_dialog(config, button, radio, verified);
    *button = task_dialog_answer->button;
    *verified = task_dialog_answer->verified;
    return task_dialog_answer->result;
}

FARPROC WINAPI find_procedure(HMODULE module, const char* name) {
    const FARPROC found = ::GetProcAddress(module, name);
    if (reinterpret_cast<ULONG_PTR>(name) < 0x10000 || std::strcmp(name, "TaskDialogIndirect") != 0)
        return found;
    system_dialog = reinterpret_cast<decltype(system_dialog)>(reinterpret_cast<void*>(found));
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&seen_dialog));
}

// For the whole program: the class layer looks once.
const ReplacedImport lookup(::GetModuleHandleW(L"kmfc.dll"), "GetProcAddress", &find_procedure);

}  // namespace

}  // namespace ui_test
