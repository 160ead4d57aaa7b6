#include "help/help_service.h"

#include <ktut.h>
#include <shellapi.h>

#include "help/help_pages.h"
#include "own_resources.h"
#include "resource.h"
#include "standin_message.h"

namespace {

bool fileExists(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

/// Hands the page to the program that shows such files.
bool openBySystem(const CString& page) {
    constexpr INT_PTR kFailures = 32;  // what ShellExecute answers at most when it fails
    return reinterpret_cast<INT_PTR>(
               ::ShellExecuteW(nullptr, L"open", page, nullptr, nullptr, SW_SHOWNORMAL)) > kFailures;
}

const wchar_t* userLanguage() {
    return PRIMARYLANGID(LANGIDFROMLCID(::GetThreadLocale())) == LANG_CHINESE ? L"zh" : L"en";
}

void tell(UINT textId, const CString& first, const CString& second) {
    const OwnResources resources;
    CString text;
    text.LoadString(textId);
    text.Replace(L"%1", first);
    text.Replace(L"%2", second);
    ShowStandinMessage(text, MB_ICONINFORMATION);
}

}  // namespace

CString HelpService::folder() const {
    return m_folder.IsEmpty() ? CString(ktutCombinePath(ktutProgramFolder(), L"help").c_str()) : m_folder;
}

void HelpService::show(const wchar_t* topic) {
    CString wanted = topic;
    if (wanted.IsEmpty()) wanted = HelpTopicOf(::GetFocus(), m_ids);
    const CString page =
        findHelpPage(folder().GetString(), userLanguage(), wanted.GetString(), fileExists).c_str();
    if (page.IsEmpty()) {
        if (wanted.IsEmpty()) wanted = kHelpStartTopic;
        return tell(IDS_HELP_NO_PAGE, wanted, folder());
    }
    if (!(m_opener ? m_opener(page) : openBySystem(page))) tell(IDS_HELP_NOT_OPENED, page, CString());
}
