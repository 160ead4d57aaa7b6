#include "plotting/plot_style_table.h"

#include <charconv>
#include <cmath>
#include <map>
#include <set>

#include "plotting/plot_style_packing.h"

namespace {

constexpr std::int64_t kFromObject = -1;       // colour
constexpr std::uint32_t kIndexedColor = 0xC3;  // in the high byte; 0xC2 is a true colour
constexpr std::size_t kDeepest = 8;

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

template <class T>
std::optional<T> numberOf(std::string_view text) {
    T value{};
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || stop != text.data() + text.size()) return std::nullopt;
    return value;
}

/// What a style says before the table of lineweights is known.
struct RawStyle {
    PlotStyle style;
    int lineweight = 0;  ///< place in the table of lineweights from 1, 0 for the object's own
};

/// Reads the text of a table line by line: `key{`, `}`, `key=value`, `key="text`.
class TableText {
public:
    explicit TableText(std::string_view utf8) : m_text(utf8) {}

    PlotStyleFault run(PlotStyleTable& table) {
        for (std::size_t at = 0; at < m_text.size();) {
            const std::size_t end = std::min(m_text.find('\n', at), m_text.size());
            if (!take(m_text.substr(at, end - at)))
                return m_hasStyles ? PlotStyleFault::kDamaged : PlotStyleFault::kNotATable;
            at = end + 1;
        }
        if (!m_hasStyles) return PlotStyleFault::kNotATable;
        if (!m_path.empty()) return PlotStyleFault::kTruncated;
        finish();
        table = std::move(m_table);
        return PlotStyleFault::kNone;
    }

private:
    /// Takes one line; false if it can't be part of a table.
    bool take(std::string_view whole) {
        const std::string_view line = trimmed(whole);
        if (line.empty()) return true;
        const std::size_t equals = line.find('=');
        if (equals != std::string_view::npos) {
            takeValue(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
            return true;
        }
        if (line == "}") {
            if (m_path.empty()) return false;
            m_path.pop_back();
            return true;
        }
        // Anything else outside of blocks is some other text's.
        return line.back() == '{' ? open(trimmed(line.substr(0, line.size() - 1))) : false;
    }

    bool open(std::string_view name) {
        if (m_path.size() >= kDeepest) return false;
        m_path.emplace_back(name);
        if (m_path.size() == 1 && name == "plot_style") m_hasStyles = true;
        if (m_path.size() == 2 && m_path[0] == "plot_style") m_styles.emplace_back();
        return true;
    }

    void takeValue(std::string_view key, std::string_view value) {
        if (m_path.empty()) {
            if (key == "description") m_table.description = textOf(value);
            if (key == "aci_table_available") m_table.isColorDependent = value == "TRUE";
        } else if (m_path.size() == 1 && m_path[0] == "custom_lineweight_table") {
            const auto place = numberOf<int>(key);
            const auto width = numberOf<double>(value);
            if (place && width && std::isfinite(*width)) m_lineweights[*place] = *width;
        } else if (m_path.size() == 2 && m_path[0] == "plot_style") {
            takeStyleValue(m_styles.back(), key, value);
        }
    }

    static void takeStyleValue(RawStyle& raw, std::string_view key, std::string_view value) {
        PlotStyle& style = raw.style;
        if (key == "name") style.name = textOf(value);
        if (key == "description") style.description = textOf(value);
        const auto number = numberOf<std::int64_t>(value);
        if (!number) return;
        if (key == "color") takeColor(style, *number);
        if (key == "screen" && *number >= 0 && *number <= 100) style.screening = static_cast<int>(*number);
        if (key == "lineweight" && *number >= 0 && *number <= 1000)
            raw.lineweight = static_cast<int>(*number);
        if (key == "linetype" && *number >= 0 && *number < kObjectLinetype)
            style.linetype = static_cast<int>(*number);
    }

    static void takeColor(PlotStyle& style, std::int64_t value) {
        style.rgb.reset();
        style.colorIndex.reset();
        if (value == kFromObject) return;
        const auto bits = static_cast<std::uint32_t>(value);
        if (bits >> 24 == kIndexedColor)
            style.colorIndex = static_cast<int>(bits & 0xFF);
        else
            style.rgb = bits & 0xFFFFFF;
    }

    /// A text, which begins with a quotation mark that nothing closes. Control characters count as blanks.
    static OdString textOf(std::string_view value) {
        if (value.starts_with('"')) value.remove_prefix(1);
        std::string text(value);
        for (char& c : text)
            if (c >= 0 && c < ' ') c = ' ';
        text.resize(text.find_last_not_of(' ') + 1);
        return odWide(text);
    }

    /// Styles without a name, and second ones of a name, are left out.
    void finish() {
        std::set<std::string> names;
        for (RawStyle& raw : m_styles) {
            if (raw.style.name.isEmpty() || !names.insert(odUtf8(raw.style.name.view())).second) continue;
            const auto width = m_lineweights.find(raw.lineweight - 1);
            if (raw.lineweight > 0 && width != m_lineweights.end()) raw.style.lineweight = width->second;
            m_table.styles.push_back(std::move(raw.style));
        }
    }

    std::string_view m_text;
    PlotStyleTable m_table;
    std::vector<std::string> m_path;  ///< names of the blocks around
    std::vector<RawStyle> m_styles;
    std::map<int, double> m_lineweights;
    bool m_hasStyles = false;
};

}  // namespace

PlotStyleFault ReadPlotStyleTable(std::string_view bytes, int codePage, PlotStyleTable& table) {
    std::string text;
    const PlotStyleFault fault = UnpackPlotStyleText(bytes, text);
    if (fault != PlotStyleFault::kNone) return fault;
    return TableText(odUtf8(odTextOfBytes(text, codePage).view())).run(table);
}
