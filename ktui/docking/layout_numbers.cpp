#include <ktui/docking/layout_numbers.h>

#include <algorithm>

namespace layouts {

namespace {

constexpr std::int32_t kVersion = 0x444B0002;
enum Kind : std::int32_t { kLeaf = 1, kDivider = 2 };

std::int32_t sumOf(const std::vector<std::int32_t>& numbers, std::size_t count) {
    constexpr std::uint32_t kStart = 2166136261u, kFactor = 16777619u;
    std::uint32_t sum = kStart;
    for (std::size_t i = 0; i < count; ++i) sum = (sum ^ static_cast<std::uint32_t>(numbers[i])) * kFactor;
    return static_cast<std::int32_t>(sum);
}

using Numbers = std::vector<std::int32_t>;

void put(Numbers& to, const Tree& tree) {
    if (!tree.isSplit()) {
        to.insert(to.end(), {kLeaf, static_cast<std::int32_t>(tree.id), tree.shown && !tree.hides ? 1 : 0});
        return;
    }
    to.insert(to.end(), {kDivider, tree.upright ? 1 : 0, tree.share});
    for (const Tree& half : tree.halves) put(to, half);
}

void put(Numbers& to, const Group& group) {
    const auto active = std::ranges::find(group.tabs, group.active, &Tab::pane);
    to.insert(to.end(), {static_cast<std::int32_t>(group.id), static_cast<std::int32_t>(group.tabs.size()),
                         static_cast<std::int32_t>(active - group.tabs.begin())});
    for (const Tab& tab : group.tabs)
        to.insert(to.end(), {static_cast<std::int32_t>(tab.pane), tab.shown ? 1 : 0});
}

/// What hides at the edges, after their number.
void putHidden(Numbers& to, const std::vector<Row>& rows) {
    Numbers hidden;
    for (const Row& row : rows)
        for (const unsigned id : IdsIn(row.panes))
            if (const Tree& place = *Find(row.panes, id); place.hides)
                hidden.insert(
                    hidden.end(),
                    {static_cast<std::int32_t>(id), static_cast<std::int32_t>(row.side),
                     static_cast<std::int32_t>(place.size.cx), static_cast<std::int32_t>(place.size.cy)});
    constexpr std::size_t kNumbersOfOne = 4;
    to.push_back(static_cast<std::int32_t>(hidden.size() / kNumbersOfOne));
    to.insert(to.end(), hidden.begin(), hidden.end());
}

/// Takes numbers one after the other; from the first fault on everything it gives is 0.
class Source {
public:
    Source(const Numbers& numbers, std::size_t count) : m_numbers(numbers), m_count(count) {}

    std::int32_t next(std::int64_t low, std::int64_t high) {
        m_good = m_good && m_at < m_count && m_numbers[m_at] >= low && m_numbers[m_at] <= high;
        return m_good ? m_numbers[m_at++] : 0;
    }
    bool flag() { return next(0, 1) != 0; }
    void fail() { m_good = false; }
    bool good() const { return m_good; }
    bool done() const { return m_good && m_at == m_count; }

    Tree tree(int depth = 0) {
        Tree tree;
        if (next(kLeaf, depth < kDeepest ? kDivider : kLeaf) != kDivider) {
            tree.id = static_cast<unsigned>(next(1, kLastGroup));
            tree.shown = flag();
            return tree;
        }
        tree.upright = flag();
        tree.share = next(0, kWhole);
        for (int i = 0; i < 2 && m_good; ++i) tree.halves.push_back(this->tree(depth + 1));
        return tree;
    }

private:
    const Numbers& m_numbers;
    std::size_t m_count, m_at = 0;
    bool m_good = true;
};

Row takeRow(Source& source) {
    Row row;
    row.side = static_cast<Side>(source.next(0, kSides - 1));
    row.extent = source.next(0, kMostPixels);
    row.panes = source.tree();
    return row;
}

Frame takeFrame(Source& source) {
    Frame frame;
    const int left = source.next(-kMostPixels, kMostPixels), top = source.next(-kMostPixels, kMostPixels);
    const int right = source.next(left, 2 * kMostPixels), bottom = source.next(top, 2 * kMostPixels);
    frame.place = CRect(left, top, right, bottom);
    frame.panes = source.tree();
    return frame;
}

Group takeGroup(Source& source) {
    Group group;
    group.id = static_cast<unsigned>(source.next(kFirstGroup, kLastGroup));
    const std::int32_t tabs = source.next(1, kMostOf), active = source.next(0, tabs - 1);
    for (std::int32_t i = 0; i < tabs && source.good(); ++i) {
        const auto pane = static_cast<unsigned>(source.next(1, kLastPane));
        group.tabs.push_back({pane, source.flag()});
        if (i == active) group.active = pane;
    }
    return group;
}

/// The manager keeps what hides as a place that isn't shown. It hides at the side of its row, also when it
/// was put at another edge.
void takeHidden(Source& source, Record& record) {
    const auto id = static_cast<unsigned>(source.next(1, kLastGroup));
    source.next(0, kSides - 1);
    const int width = source.next(0, kMostPixels), height = source.next(0, kMostPixels);
    Tree* place = nullptr;
    for (Row& row : record.rows)
        if (Tree* found = Find(row.panes, id)) place = found;
    if (place == nullptr || place->shown) return source.fail();
    place->shown = place->hides = true;
    place->size = CSize(width, height);
}

}  // namespace

std::vector<std::int32_t> ToNumbers(const Record& record) {
    Numbers numbers{kVersion, static_cast<std::int32_t>(record.rows.size())};
    for (const Row& row : record.rows) {
        numbers.insert(numbers.end(), {static_cast<std::int32_t>(row.side), row.extent});
        put(numbers, row.panes);
    }
    numbers.push_back(static_cast<std::int32_t>(record.frames.size()));
    for (const Frame& frame : record.frames) {
        const RECT& place = frame.place;
        for (const LONG edge : {place.left, place.top, place.right, place.bottom})
            numbers.push_back(static_cast<std::int32_t>(edge));
        put(numbers, frame.panes);
    }
    numbers.push_back(static_cast<std::int32_t>(record.groups.size()));
    for (const Group& group : record.groups) put(numbers, group);
    putHidden(numbers, record.rows);
    numbers.push_back(sumOf(numbers, numbers.size()));
    return numbers;
}

bool FromNumbers(const std::vector<std::int32_t>& numbers, Record& record) {
    if (numbers.empty() || sumOf(numbers, numbers.size() - 1) != numbers.back()) return false;
    Source source(numbers, numbers.size() - 1);
    source.next(kVersion, kVersion);
    Record read;
    for (std::int32_t i = source.next(0, kMostOf); i > 0 && source.good(); --i)
        read.rows.push_back(takeRow(source));
    for (std::int32_t i = source.next(0, kMostOf); i > 0 && source.good(); --i)
        read.frames.push_back(takeFrame(source));
    for (std::int32_t i = source.next(0, kMostOf); i > 0 && source.good(); --i)
        read.groups.push_back(takeGroup(source));
    for (std::int32_t i = source.next(0, kMostOf); i > 0 && source.good(); --i) takeHidden(source, read);
    if (!source.done()) return false;
    record = std::move(read);
    return true;
}

}  // namespace layouts
