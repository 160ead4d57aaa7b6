// Where the page of a help topic lies. Knows no window.
//
// Pages are files FOLDER\en\TOPIC.html and FOLDER\zh\TOPIC.html; that of the start page is "index".
#pragma once

#include <functional>
#include <string>

#include "standin_api.h"

/// The topic of the start page.
constexpr const wchar_t* kHelpStartTopic = L"index";

/// Whether `topic` can name a page: letters, digits, '-' and '_' of the ASCII set, 1 to 64 of them.
STANDIN_API bool isHelpTopic(const std::wstring& topic);

/// The page of `topic` (empty for the start page) in `language` ("en", "zh") below `folder`, or the English
/// one if that language has none; empty if there is neither. `exists` says whether a file is there.
STANDIN_API std::wstring findHelpPage(const std::wstring& folder, const std::wstring& language,
                                      const std::wstring& topic,
                                      const std::function<bool(const std::wstring&)>& exists);
