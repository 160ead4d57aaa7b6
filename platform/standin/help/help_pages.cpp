#include "help/help_pages.h"

#include <algorithm>

namespace {

constexpr std::size_t kLongestTopic = 64;
constexpr const wchar_t* kEnglish = L"en";

bool isTopicCharacter(wchar_t character) {
    return (character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z') ||
           (character >= L'0' && character <= L'9') || character == L'-' || character == L'_';
}

}  // namespace

bool isHelpTopic(const std::wstring& topic) {
    return !topic.empty() && topic.size() <= kLongestTopic &&
           std::all_of(topic.begin(), topic.end(), isTopicCharacter);
}

std::wstring findHelpPage(const std::wstring& folder, const std::wstring& language, const std::wstring& topic,
                          const std::function<bool(const std::wstring&)>& exists) {
    const std::wstring wanted = topic.empty() ? kHelpStartTopic : topic;
    if (!isHelpTopic(wanted)) return {};
    for (const std::wstring& each : {language, std::wstring(kEnglish)}) {
        std::wstring page = folder;
        page.append(L"\\").append(each).append(L"\\").append(wanted).append(L".html");
        if (exists(page)) return page;
    }
    return {};
}
