#include <ktui/tips/messages/task_dialog_layout.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace {

constexpr double kHeadingFactor = 1.6;
constexpr double kGrowth = 1.1;
constexpr double kTallest = 1.1;  // height over width
constexpr int kWidthWithCommands = 420, kWidthWithout = 350;
constexpr int kStandardDpi = 96;
constexpr int kIconSize = 32;
constexpr int kGlyphWidth = 40;  // what the arrow of a link takes
constexpr int kLinkGap = 3;      // above each link
constexpr int kExtendedGap = 5;  // between the title of a link and its second text
constexpr int kButtonGap = 5;
constexpr int kRowGap = 1;
// As wide as the text of a verification box gets before it wraps.
const wchar_t* const kProbeText = L"A A A A A A A A A A A A A A A A A A A A ";

/// value * numerator / denominator, rounded to the nearest integer, halves away from zero.
int scaled(int value, int numerator, int denominator) {
    const long long product = static_cast<long long>(value) * numerator;
    const long long half = denominator / 2;
    return static_cast<int>((product < 0 ? product - half : product + half) / denominator);
}

/// One run of the layout: y moves down as blocks are placed.
class Layout {
public:
    Layout(const TaskDialogContents& contents, const TaskDialogMetrics& metrics,
           const TaskDialogMeasurer& measurer, int width)
        : m_contents(contents), m_metrics(metrics), m_measurer(measurer), m_unit(metrics.fontHeight) {
        m_result.width = width;
        m_result.textLeft = contents.hasIcon ? 2 * m_unit + metrics.fixed(kIconSize) : m_unit;
    }

    TaskDialogLayout run() {
        placeTexts();
        if (m_contents.hasLinks()) placeLinks();
        if (hasFooter())
            placeFooter();
        else
            m_y += m_metrics.half();
        m_result.height = m_y;
        return m_result;
    }

private:
    int right() const { return m_result.width - m_unit; }
    bool hasFooter() const {
        return !m_contents.verification.IsEmpty() || m_contents.commonButtons != 0 ||
               m_contents.hasPushCommands();
    }

    void noteHeight(int height, int limit) {
        if (height > limit) m_result.flags |= kTaskDialogTooTall;
    }

    CRect placeText(const CString& text, TaskDialogFont font, int limit) {
        const int height = static_cast<int>(m_measurer.Wrapped(text, font, right() - m_result.textLeft).cy);
        noteHeight(height, limit);
        const CRect rect(m_result.textLeft, m_y, right(), m_y + height);
        m_y += m_metrics.half() + height;
        return rect;
    }

    void placeTexts() {
        if (!m_contents.heading.IsEmpty()) {
            m_y += m_unit;
            m_result.heading = placeText(m_contents.heading, TaskDialogFont::kHeading, 2 * m_metrics.big());
        }
        m_y += m_unit;
        if (!m_contents.body.IsEmpty())
            m_result.body = placeText(m_contents.body, TaskDialogFont::kText, 2 * m_unit);
        m_y += m_metrics.half() + m_unit;
    }

    void placeLinks() {
        for (std::size_t i = 0; i < m_contents.commands.size(); ++i) placeLink(static_cast<int>(i));
        m_y += m_metrics.half();
    }

    void placeLink(int index) {
        const CTaskDialogButton& command = m_contents.commands[static_cast<std::size_t>(index)];
        m_y += m_metrics.fixed(kLinkGap);
        const bool glyph = (m_contents.options & kTaskDialogLinks) != 0;
        const int left = m_result.textLeft + (glyph ? m_metrics.fixed(kGlyphWidth) : m_metrics.half());
        const int room = right() - m_metrics.half() - left;
        int height = static_cast<int>(m_measurer.Wrapped(command.m_text, TaskDialogFont::kHeading, room).cy);
        noteHeight(height, 2 * m_metrics.big());
        if (!command.m_extendedText.IsEmpty()) {
            const int extended =
                static_cast<int>(m_measurer.Wrapped(command.m_extendedText, TaskDialogFont::kText, room).cy);
            noteHeight(extended, 2 * m_unit);
            height += m_metrics.fixed(kExtendedGap) + extended;
        }
        const CRect rect(m_result.textLeft, m_y, right(), m_y + height + 2 * m_unit);
        m_result.buttons.push_back({command.m_id, rect, true, index, -1});
        m_y += rect.Height();
    }

    void placeFooter() {
        m_result.footerTop = m_y;
        m_y += m_unit;
        m_buttonHeight = scaled(m_metrics.baseY, 12, 8);
        m_buttonWidth = scaled(m_metrics.baseX, 36, 4);
        placeCheckBox();
        placeButtons();
        const int rowsHeight = (m_buttonHeight + kRowGap) * m_rows;
        CRect& box = m_result.checkBox;
        const int boxHeight = box.Height();
        if (m_rows > 1) {
            m_result.flags |= kTaskDialogManyRows;
            if (boxHeight < rowsHeight) box.OffsetRect(0, (rowsHeight - boxHeight) / 2);
        }
        m_y += std::max(rowsHeight, boxHeight) + m_metrics.half();
    }

    void placeCheckBox() {
        CRect& box = m_result.checkBox;
        const int left = m_unit + m_buttonHeight;
        box = CRect(left, m_y, left, m_y);
        if (m_contents.verification.IsEmpty()) return;
        const int limit =
            static_cast<int>(m_measurer.Wrapped(kProbeText, TaskDialogFont::kText, right() - left).cx);
        const SIZE text = m_measurer.Wrapped(m_contents.verification, TaskDialogFont::kText, limit);
        const int height = std::max(static_cast<int>(text.cy), m_buttonHeight);
        // Kept: a button's height counts as well, so that a box is too tall where two lines of the font are
        // lower than a button.
        noteHeight(height, 2 * m_unit);
        box.right = left + text.cx;
        box.bottom = m_y + height;
        // The box itself lies in the margin that the measure left.
        box.left = m_unit;
    }

    void placeButtons() {
        const std::size_t first = m_result.buttons.size();
        const int start = static_cast<int>(m_result.checkBox.right) + m_metrics.fixed(kButtonGap);
        int x = start;
        if (m_contents.hasPushCommands())
            for (std::size_t i = 0; i < m_contents.commands.size(); ++i) {
                const CTaskDialogButton& command = m_contents.commands[i];
                const int width = static_cast<int>(m_measurer.Line(command.m_text).cx) + 2 * m_unit;
                addButton(x, std::min(width, right() - start),
                          {command.m_id, {}, false, static_cast<int>(i), -1});
            }
        for (int i = 0; i < kTaskDialogCommonButtonCount; ++i) {
            const TaskDialogCommonButton& button = kTaskDialogCommonButtons[i];
            if (m_contents.commonButtons & button.mask)
                addButton(x, m_buttonWidth, {button.id, {}, false, -1, i});
        }
        wrap(first, start);
        alignRight(first);
    }

    void addButton(int& x, int width, TaskDialogPlacedButton button) {
        button.rect = CRect(x, m_y, x + width, m_y + m_buttonHeight);
        m_result.buttons.push_back(button);
        x += width + m_metrics.fixed(kButtonGap);
    }

    /// Moves what passes the right limit into rows below.
    void wrap(std::size_t first, int start) {
        auto& buttons = m_result.buttons;
        bool alone = true;
        for (std::size_t i = first; i < buttons.size(); ++i) {
            if (buttons[i].rect.right > right() && !alone) {
                ++m_rows;
                const int back = static_cast<int>(buttons[i].rect.left) - start;
                for (std::size_t j = i; j < buttons.size(); ++j)
                    buttons[j].rect.OffsetRect(-back, m_buttonHeight + kRowGap);
            }
            // Whatever starts a row is cut to the room.
            buttons[i].rect.right = std::min<LONG>(buttons[i].rect.right, right());
            alone = false;
        }
    }

    void alignRight(std::size_t first) {
        auto& buttons = m_result.buttons;
        LONG rightmost = 0;
        for (std::size_t i = first; i < buttons.size(); ++i)
            rightmost = std::max(rightmost, buttons[i].rect.right);
        for (std::size_t i = first; i < buttons.size(); ++i)
            buttons[i].rect.OffsetRect(right() - static_cast<int>(rightmost), 0);
    }

    const TaskDialogContents& m_contents;
    const TaskDialogMetrics& m_metrics;
    const TaskDialogMeasurer& m_measurer;
    const int m_unit;
    int m_y = 0;
    int m_buttonHeight = 0, m_buttonWidth = 0;
    int m_rows = 1;
    TaskDialogLayout m_result;
};

bool isGoodEnough(const TaskDialogLayout& layout, const TaskDialogContents& contents,
                  const TaskDialogMetrics& metrics) {
    const bool shapely = layout.height <= kTallest * layout.width && layout.height <= metrics.workHeight;
    return shapely && (contents.hasLinks() || !(layout.flags & kTaskDialogManyRows));
}

}  // namespace

const TaskDialogCommonButton kTaskDialogCommonButtons[kTaskDialogCommonButtonCount] = {
    {1, 1, 54581, L"确定"},      {2, 6, 54582, L"是(&Y)"}, {4, 7, 54583, L"否(&N)"},
    {16, 4, 54584, L"重试(&R)"}, {8, 2, 54585, L"取消"},   {32, 8, 54586, L"关闭(&C)"},
};

int TaskDialogHeadingHeight(int height) { return static_cast<int>(std::lround(height * kHeadingFactor)); }

int TaskDialogMetrics::big() const { return TaskDialogHeadingHeight(fontHeight); }

int TaskDialogMetrics::fixed(int pixels) const { return scaled(pixels, dpi, kStandardDpi); }

TaskDialogLayout LayOutTaskDialog(const TaskDialogContents& contents, const TaskDialogMetrics& metrics,
                                  const TaskDialogMeasurer& measurer, int width) {
    return Layout(contents, metrics, measurer, width).run();
}

TaskDialogLayout FitTaskDialog(const TaskDialogContents& contents, const TaskDialogMetrics& metrics,
                               const TaskDialogMeasurer& measurer) {
    const bool requested = contents.requestedWidth >= 1;
    int width = contents.commands.empty() ? metrics.fixed(kWidthWithout) : metrics.fixed(kWidthWithCommands);
    if (requested) width = std::min(contents.requestedWidth, metrics.workWidth);
    for (int trials = 1;; ++trials) {
        TaskDialogLayout layout = LayOutTaskDialog(contents, metrics, measurer, width);
        layout.trials = trials;
        if (layout.flags == 0 || requested || width >= metrics.workWidth) return layout;
        if (isGoodEnough(layout, contents, metrics)) return layout;
        width = std::min(static_cast<int>(std::lround(width * kGrowth)), metrics.workWidth);
    }
}

TaskDialogOrder OrderTaskDialogChildren(const TaskDialogLayout& layout, bool linksOn, int defaultId) {
    TaskDialogOrder order;
    std::vector<int> list(layout.buttons.size());
    std::iota(list.begin(), list.end(), 0);
    if (!layout.checkBox.IsRectEmpty()) {
        const auto behindLinks = std::find_if(list.begin(), list.end(), [&](int i) {
            return !layout.buttons[static_cast<std::size_t>(i)].isLink;
        });
        list.emplace(linksOn ? behindLinks : list.begin(), TaskDialogOrder::kCheckBox);
    }
    const auto named = std::find_if(list.begin(), list.end(), [&](int i) {
        return i != TaskDialogOrder::kCheckBox && layout.buttons[static_cast<std::size_t>(i)].id == defaultId;
    });
    order.defaultWasNamed = named != list.end();
    if (order.defaultWasNamed) {
        order.defaultButton = *named;
        std::rotate(list.begin(), named, list.end());
    } else if (!layout.buttons.empty()) {
        order.defaultButton = list[0] != TaskDialogOrder::kCheckBox ? list[0] : list[1];
    }
    order.children = std::move(list);
    return order;
}
