#include <charconv>
#include <map>

#include "plotting/plot_style_packing.h"
#include "plotting/plot_style_table.h"

namespace {

constexpr int kObjectFill = 73, kObjectEnd = 4, kObjectJoin = 5;

/// A value in the form that every locale reads.
std::string textOf(double value) {
    char digits[32];
    const auto result = std::to_chars(digits, digits + sizeof digits, value);
    return std::string(digits, result.ptr);
}

std::string quoted(const OdString& text) {
    std::string line = "\"";
    line += odUtf8(text.view());
    for (char& c : line)
        if (c == '\n' || c == '\r' || c == '\0') c = ' ';
    return line;
}

class TableWriter {
public:
    explicit TableWriter(const PlotStyleTable& table) : m_table(table) {
        for (const PlotStyle& style : table.styles)
            if (style.lineweight) m_lineweights.emplace(*style.lineweight, 0);
        int place = 0;
        for (auto& entry : m_lineweights) entry.second = place++;
    }

    std::string run() {
        put("", "description", quoted(m_table.description));
        put("", "aci_table_available", m_table.isColorDependent ? "TRUE" : "FALSE");
        put("", "scale_factor", "1.0");
        put("", "apply_factor", "FALSE");
        put("", "custom_lineweight_display_units", "0");
        if (m_table.isColorDependent) colorNames();
        m_text += "plot_style{\n";
        for (std::size_t i = 0; i < m_table.styles.size(); ++i) style(i, m_table.styles[i]);
        m_text += "}\ncustom_lineweight_table{\n";
        for (const auto& [width, place] : m_lineweights) put(" ", std::to_string(place), textOf(width));
        m_text += "}\n";
        return std::move(m_text);
    }

private:
    void put(std::string_view indent, std::string_view key, std::string_view value) {
        m_text.append(indent).append(key).append("=").append(value).append("\n");
    }

    void colorNames() {
        m_text += "aci_table{\n";
        for (std::size_t i = 0; i < m_table.styles.size(); ++i)
            put(" ", std::to_string(i), quoted(m_table.styles[i].name));
        m_text += "}\n";
    }

    void style(std::size_t place, const PlotStyle& style) {
        m_text.append(" ").append(std::to_string(place)).append("{\n");
        put("  ", "name", quoted(style.name));
        put("  ", "localized_name", quoted(style.name));
        put("  ", "description", quoted(style.description));
        put("  ", "color", std::to_string(colorOf(style)));
        put("  ", "color_policy", "1");
        put("  ", "physical_pen_number", "0");
        put("  ", "virtual_pen_number", "0");
        put("  ", "screen", std::to_string(style.screening));
        put("  ", "linepattern_size", "0.5");
        put("  ", "linetype", std::to_string(style.linetype.value_or(kObjectLinetype)));
        put("  ", "adaptive_linetype", "TRUE");
        const int lineweight = style.lineweight ? m_lineweights.at(*style.lineweight) + 1 : 0;
        put("  ", "lineweight", std::to_string(lineweight));
        put("  ", "fill_style", std::to_string(kObjectFill));
        put("  ", "end_style", std::to_string(kObjectEnd));
        put("  ", "join_style", std::to_string(kObjectJoin));
        m_text += " }\n";
    }

    /// The colour as files have it: a signed number whose high byte tells the kind.
    static std::int32_t colorOf(const PlotStyle& style) {
        constexpr std::uint32_t kTrueColor = 0xC2000000, kIndexed = 0xC3000000;
        if (style.rgb) return static_cast<std::int32_t>(kTrueColor | (*style.rgb & 0xFFFFFF));
        if (style.colorIndex)
            return static_cast<std::int32_t>(kIndexed |
                                             (static_cast<std::uint32_t>(*style.colorIndex) & 0xFF));
        return -1;
    }

    const PlotStyleTable& m_table;
    std::map<double, int> m_lineweights;  ///< width to place
    std::string m_text;
};

}  // namespace

std::string WritePlotStyleTable(const PlotStyleTable& table) {
    return PackPlotStyleText(TableWriter(table).run(), table.isColorDependent);
}
