#include "linetypes/linetype_file.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <set>
#include <string>

namespace {

constexpr std::size_t kLongestName = 255;
constexpr double kLongestDash = 1e9;

std::wstring_view trimmed(std::wstring_view text) {
    constexpr const wchar_t* kBlanks = L" \t\x00A0\x3000\x001A";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::wstring folded(std::wstring_view text) {
    std::wstring all(text);
    for (wchar_t& c : all) c = odFoldCase(c);
    return all;
}

bool isLegalName(std::wstring_view name) {
    if (name.size() > kLongestName) return false;
    for (const wchar_t c : name)
        if (c < L' ' || c == 0xFFFD ||
            std::wstring_view(L"<>/\\\":;?*|=`").find(c) != std::wstring_view::npos)
            return false;
    return true;
}

/// A length of a pattern, with a point whatever the user's locale; nothing for any other text.
std::optional<double> lengthOf(std::wstring_view text) {
    std::string digits;
    for (const wchar_t c : text) digits += c < 0x80 ? static_cast<char>(c) : '?';
    // A plus sign is legal in files, but not for the conversion.
    const char* begin = digits.c_str() + (digits.size() > 1 && digits[0] == '+' && digits[1] != '-' ? 1 : 0);
    const char* end = digits.c_str() + digits.size();
    double value = 0;
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error != std::errc() || stop != end || !(std::fabs(value) <= kLongestDash)) return std::nullopt;
    return value;
}

/// Reads one file line by line.
class Reader {
public:
    explicit Reader(std::wstring_view text) : m_text(text) {}

    LinetypeFile run() {
        std::wstring_view line;
        while (nextLine(line)) {
            if (line.empty() || line[0] == L';') continue;
            if (line[0] != L'*') {
                takePattern(line);
                continue;
            }
            if (m_file.definitions.size() >= kMostLinetypes) {
                report(LinetypeFault::kTooManyLinetypes);
                break;
            }
            endDefinition();
            beginDefinition(line.substr(1));
        }
        endDefinition();
        return std::move(m_file);
    }

private:
    bool nextLine(std::wstring_view& line) {
        if (m_at >= m_text.size()) return false;
        const std::size_t end = std::min(m_text.find_first_of(L"\r\n", m_at), m_text.size());
        line = trimmed(m_text.substr(m_at, end - m_at));
        m_at = end + (m_text.substr(end, 2) == L"\r\n" ? 2 : 1);
        ++m_line;
        return true;
    }

    void beginDefinition(std::wstring_view head) {
        const std::size_t comma = std::min(head.find(L','), head.size());
        const std::wstring_view name = trimmed(head.substr(0, comma));
        m_isSkipping = true;
        if (name.empty()) return report(LinetypeFault::kNoName);
        if (!isLegalName(name)) return report(LinetypeFault::kBadName, name);
        if (m_names.count(folded(name))) return report(LinetypeFault::kNameTwice, name);
        m_isSkipping = false;
        m_open.emplace();
        m_open->name = OdString(std::wstring(name));
        if (comma < head.size())
            m_open->description = OdString(std::wstring(trimmed(head.substr(comma + 1))));
        m_open->line = m_line;
    }

    /// A definition that has got no pattern so far gets none any more.
    void endDefinition() {
        if (m_open) report(LinetypeFault::kNoPattern, m_open->name.view(), m_open->line);
        m_open.reset();
    }

    void takePattern(std::wstring_view line) {
        if (!m_open) {
            // The pattern of a definition that was refused says nothing new.
            if (!m_isSkipping) report(LinetypeFault::kStrayLine);
            m_isSkipping = false;
            return;
        }
        LinetypeDefinition definition = std::move(*m_open);
        m_open.reset();
        if (!readItems(line, definition)) return;
        m_names.insert(folded(definition.name.view()));
        m_file.definitions.push_back(std::move(definition));
    }

    bool readItems(std::wstring_view line, LinetypeDefinition& definition) {
        const std::size_t comma = line.find(L',');
        const std::wstring_view alignment = trimmed(line.substr(0, comma));
        if (alignment != L"A" && alignment != L"a") return fail(LinetypeFault::kBadAlignment);
        std::wstring_view rest = comma == std::wstring_view::npos ? L"" : line.substr(comma + 1);
        while (!trimmed(rest).empty()) {
            rest = trimmed(rest);
            if (!(rest[0] == L'[' ? takeInsert(rest, definition) : takeLength(rest, definition)))
                return false;
        }
        return isWhole(definition);
    }

    /// Takes a bracket off `rest`, with the comma behind it. Brackets in quotes are text.
    bool takeInsert(std::wstring_view& rest, LinetypeDefinition& definition) {
        bool isQuoted = false;
        std::size_t end = 1;
        for (; end < rest.size() && (isQuoted || rest[end] != L']'); ++end)
            if (rest[end] == L'"') isQuoted = !isQuoted;
        if (end == rest.size()) return fail(LinetypeFault::kOpenBracket);
        definition.inserts.push_back(
            {static_cast<int>(definition.dashes.size()), OdString(std::wstring(rest.substr(1, end - 1)))});
        rest = trimmed(rest.substr(end + 1));
        if (!rest.empty() && rest[0] != L',') return fail(LinetypeFault::kBadNumber, rest);
        if (!rest.empty()) rest.remove_prefix(1);
        return true;
    }

    bool takeLength(std::wstring_view& rest, LinetypeDefinition& definition) {
        const std::size_t end = std::min(rest.find(L','), rest.size());
        const std::wstring_view text = trimmed(rest.substr(0, end));
        const std::optional<double> length = lengthOf(text);
        if (!length) return fail(LinetypeFault::kBadNumber, text);
        if (definition.dashes.size() >= kMostDashes) return fail(LinetypeFault::kTooManyDashes);
        definition.dashes.push_back(*length);
        rest = end < rest.size() ? rest.substr(end + 1) : std::wstring_view();
        return true;
    }

    bool isWhole(const LinetypeDefinition& definition) {
        if (definition.dashes.size() < 2) return fail(LinetypeFault::kTooFewDashes);
        if (definition.dashes[0] < 0) return fail(LinetypeFault::kBeginsWithGap);
        for (const double dash : definition.dashes)
            if (dash != 0) return true;
        return fail(LinetypeFault::kNoLength);
    }

    void report(LinetypeFault fault, std::wstring_view detail = {}, int line = 0) {
        if (m_file.problems.size() >= kMostLinetypeProblems) return;
        m_file.problems.push_back({fault, line ? line : m_line, OdString(std::wstring(detail))});
    }
    bool fail(LinetypeFault fault, std::wstring_view detail = {}) {
        report(fault, detail);
        return false;
    }

    std::wstring_view m_text;
    std::size_t m_at = 0;
    int m_line = 0;
    LinetypeFile m_file;
    std::optional<LinetypeDefinition> m_open;  ///< waits for its pattern
    bool m_isSkipping = false;                 ///< the pattern of a refused definition may follow
    std::set<std::wstring> m_names;
};

}  // namespace

LinetypeFile ReadLinetypeFile(std::string_view bytes, int codePage) {
    const OdString text = odTextOfBytes(bytes, codePage);
    return Reader(text.view()).run();
}
