#include "command_line.h"

namespace {

constexpr const wchar_t* kCleanSwitch = L"--clean";
constexpr const wchar_t* kBlanks = L" \t";

void trim(std::wstring& text) {
    text.erase(0, text.find_first_not_of(kBlanks));
    text.erase(text.find_last_not_of(kBlanks) + 1);
}

/// Takes the first word, which quotes hold together, from a line that begins with one.
std::wstring takeWord(std::wstring& line) {
    std::wstring word;
    bool isQuoted = false;
    std::size_t at = 0;
    for (; at < line.size(); ++at) {
        if (line[at] == L'"')
            isQuoted = !isQuoted;
        else if (!isQuoted && std::wstring(kBlanks).find(line[at]) != std::wstring::npos)
            break;
        else
            word += line[at];
    }
    line.erase(0, at);
    trim(line);
    return word;
}

}  // namespace

DrafterCommandLine ReadCommandLine(std::wstring line,
                                   const std::function<bool(const std::wstring&)>& isFile) {
    DrafterCommandLine read;
    trim(line);
    std::wstring rest = line;
    if (takeWord(rest) == kCleanSwitch) {
        read.isClean = true;
        line = rest;
    }
    if (line.find(L'"') == std::wstring::npos && !line.empty() && isFile(line)) {
        read.files.push_back(line);
        return read;
    }
    while (!line.empty())
        if (const std::wstring word = takeWord(line); !word.empty()) read.files.push_back(word);
    return read;
}
