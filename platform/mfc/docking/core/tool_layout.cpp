#include "tool_layout.h"

#include <algorithm>

namespace kmfc::docking {

namespace {

ToolLayout started(size_t count) {
    ToolLayout layout;
    layout.items.assign(count, CRect(0, 0, 0, 0));
    layout.endsRow.assign(count, false);
    return layout;
}

/// The largest button, across a row or a column.
CSize largest(const std::vector<ToolItem>& items) {
    CSize size(0, 0);
    for (const ToolItem& item : items) {
        if (item.hidden || item.separator) continue;
        size.cx = std::max(size.cx, item.size.cx);
        size.cy = std::max(size.cy, item.size.cy);
    }
    return size;
}

ToolLayout in_a_row(const std::vector<ToolItem>& items, const ToolMetrics& metrics) {
    ToolLayout layout = started(items.size());
    const int high = largest(items).cy;
    int x = metrics.margin + metrics.gripper;
    for (size_t i = 0; i < items.size(); ++i) {
        if (items[i].hidden) continue;
        const int wide = items[i].separator ? metrics.separator : items[i].size.cx;
        layout.items[i].SetRect(x, metrics.margin, x + wide, metrics.margin + high);
        x += wide;
    }
    layout.size = CSize(x + metrics.margin, high + 2 * metrics.margin);
    layout.gripper.SetRect(0, 0, metrics.gripper, metrics.gripper != 0 ? layout.size.cy : 0);
    return layout;
}

ToolLayout in_a_column(const std::vector<ToolItem>& items, const ToolMetrics& metrics) {
    ToolLayout layout = started(items.size());
    const int wide = largest(items).cx;
    int y = metrics.margin + metrics.gripper;
    for (size_t i = 0; i < items.size(); ++i) {
        if (items[i].hidden) continue;
        const int high = items[i].separator ? metrics.separator : items[i].size.cy;
        layout.items[i].SetRect(metrics.margin, y, metrics.margin + wide, y + high);
        y += high;
    }
    layout.size = CSize(wide + 2 * metrics.margin, y + metrics.margin);
    layout.gripper.SetRect(0, 0, metrics.gripper != 0 ? layout.size.cx : 0, metrics.gripper);
    return layout;
}

/// Goes through the buttons from row to row.
class Wrapper {
public:
    Wrapper(const std::vector<ToolItem>& items, const ToolMetrics& metrics, int width)
        : m_items(items),
          m_margin(metrics.margin),
          m_gap(metrics.separator),
          m_high(largest(items).cy),
          m_room(std::max(width - metrics.margin, 0)),
          m_layout(started(items.size())),
          m_x(metrics.margin),
          m_y(metrics.margin) {}

    ToolLayout wrapped() {
        for (size_t i = 0; i < m_items.size(); ++i) {
            if (m_items[i].hidden) continue;
            if (m_items[i].separator)
                m_separator = m_isRowBegun ? static_cast<int>(i) : m_separator;
            else
                put(i);
        }
        m_layout.size = CSize(m_widest + m_margin, m_y + m_high + m_margin);
        return std::move(m_layout);
    }

private:
    void put(size_t i) {
        const int gap = m_separator >= 0 ? m_gap : 0, wide = m_items[i].size.cx;
        if (m_isRowBegun && m_x + gap + wide > m_room) {
            m_layout.endsRow[m_last] = true;
            m_x = m_margin;
            m_y += m_high;
        } else if (gap != 0) {
            m_layout.items[static_cast<size_t>(m_separator)].SetRect(m_x, m_y, m_x + gap, m_y + m_high);
            m_x += gap;
        }
        m_separator = -1;
        m_layout.items[i].SetRect(m_x, m_y, m_x + wide, m_y + m_high);
        m_x += wide;
        m_widest = std::max(m_widest, m_x);
        m_last = i;
        m_isRowBegun = true;
    }

    const std::vector<ToolItem>& m_items;
    const int m_margin, m_gap, m_high, m_room;
    ToolLayout m_layout;
    int m_x, m_y, m_widest = 0;
    int m_separator = -1;  ///< the one before the next button, or -1
    size_t m_last = 0;     ///< the button that was put last
    bool m_isRowBegun = false;
};

}  // namespace

ToolLayout lay_tools(const std::vector<ToolItem>& items, const ToolMetrics& metrics, ToolShape shape,
                     int width) {
    switch (shape) {
        case ToolShape::column: return in_a_column(items, metrics);
        case ToolShape::wrapped: return Wrapper(items, metrics, width).wrapped();
        default: return in_a_row(items, metrics);
    }
}

void shorten_tools(ToolLayout& layout, const std::vector<ToolItem>& items, const ToolMetrics& metrics,
                   ToolShape shape, int room) {
    const bool upright = shape == ToolShape::column;
    const int whole = upright ? layout.size.cy : layout.size.cx;
    if (shape == ToolShape::wrapped || whole <= room) return;
    // A bar that is shorter still than its gripper and the button keeps both.
    const int end = std::max(room - metrics.margin - metrics.more, metrics.margin + metrics.gripper);
    size_t kept = 0;
    while (kept < items.size() && (upright ? layout.items[kept].bottom : layout.items[kept].right) <= end)
        ++kept;
    while (kept > 0 && (items[kept - 1].separator || items[kept - 1].hidden)) --kept;
    for (size_t i = kept; i < items.size(); ++i) layout.items[i].SetRectEmpty();
    if (upright)
        layout.more.SetRect(metrics.margin, end, layout.size.cx - metrics.margin, end + metrics.more);
    else
        layout.more.SetRect(end, metrics.margin, end + metrics.more, layout.size.cy - metrics.margin);
}

}  // namespace kmfc::docking
