// Layouts by chance, all within the rules.
#pragma once

#include <ktui/docking/layout_record.h>

#include <algorithm>
#include <random>

namespace random_layout {

using namespace layouts;

class Maker {
public:
    explicit Maker(unsigned seed) : m_random(seed) {}

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    bool coin() { return upTo(1) == 1; }

    /// Panes 1 to `count`, some in tabs, some floating with or without a place among the docked ones.
    Record make(unsigned count) {
        Record record;
        std::vector<unsigned> ids;
        for (unsigned id = 1; id <= count; ++id) {
            record.panes.push_back({id, CString(L"Pane <&\"> ") + static_cast<wchar_t>(L'A' + id % 26),
                                    CRect(CPoint(upTo(900) - 300, upTo(700)), CSize(upTo(400), upTo(300))),
                                    upTo(3) - 1});
            ids.push_back(id);
        }
        std::shuffle(ids.begin(), ids.end(), m_random);
        std::vector<unsigned> docked, floating;
        while (!ids.empty()) {
            const unsigned id = takeUnit(ids, record);
            const int where = upTo(9);
            if (where == 0 && id < kFirstGroup) continue;  // stands nowhere
            if (where < 7) docked.push_back(id);
            if (where >= 6) floating.push_back(id);
        }
        while (!docked.empty()) {
            Row row{static_cast<Side>(upTo(3)), upTo(400), {}};
            row.panes = tree(takeSome(docked));
            settle(row.panes, floating);
            record.rows.push_back(std::move(row));
        }
        while (!floating.empty()) {
            Frame frame;
            frame.place = CRect(CPoint(upTo(2000) - 500, upTo(1500) - 300), CSize(upTo(600), upTo(500)));
            frame.panes = tree(takeSome(floating));
            record.frames.push_back(std::move(frame));
        }
        Tidy(record);
        return record;
    }

private:
    unsigned takeUnit(std::vector<unsigned>& ids, Record& record) {
        const std::size_t tabs = upTo(3) == 0 ? static_cast<std::size_t>(upTo(2) + 2) : 1;
        if (tabs == 1 || ids.size() < tabs) {
            const unsigned id = ids.back();
            ids.pop_back();
            return id;
        }
        Group group;
        group.id = kFirstGroup + static_cast<unsigned>(record.groups.size());
        for (std::size_t i = 0; i < tabs; ++i) {
            group.tabs.push_back({ids.back(), coin()});
            ids.pop_back();
        }
        group.active = group.tabs[static_cast<std::size_t>(upTo(static_cast<int>(tabs) - 1))].pane;
        record.groups.push_back(group);
        return group.id;
    }
    std::vector<unsigned> takeSome(std::vector<unsigned>& ids) {
        const auto count = std::min(ids.size(), static_cast<std::size_t>(upTo(3) + 1));
        const std::vector<unsigned> some(ids.end() - static_cast<std::ptrdiff_t>(count), ids.end());
        ids.resize(ids.size() - count);
        return some;
    }
    Tree tree(std::vector<unsigned> ids) {
        Tree made;
        if (ids.size() == 1) {
            made.id = ids.front();
            made.shown = coin();
            return made;
        }
        const auto cut = ids.begin() + 1 + upTo(static_cast<int>(ids.size()) - 2);
        made.upright = coin();
        made.share = upTo(kWhole);
        made.halves = {tree({ids.begin(), cut}), tree({cut, ids.end()})};
        return made;
    }
    /// What floats isn't shown where it was docked; of what is shown some hides at the edge.
    void settle(Tree& tree, const std::vector<unsigned>& floating) {
        for (Tree& half : tree.halves) settle(half, floating);
        if (tree.isSplit()) return;
        if (std::find(floating.begin(), floating.end(), tree.id) != floating.end()) tree.shown = false;
        tree.hides = tree.shown && upTo(3) == 0;
        if (tree.hides) tree.size = CSize(upTo(300), upTo(300));
    }

    std::mt19937 m_random;
};

constexpr unsigned kSeed = 20261123;

}  // namespace random_layout
