// Any numbers from the registry become a layout of panes whose parts fill the frame and never overlap, or are
// refused with the layout before untouched; what is read is written back as it was.
//
// Each three bytes of the input are a number: a small one, or with the highest bit set a shifted one.
#include <docking/core/layout_record.h>

#include "text_lines.h"

namespace {

using namespace kmfc::docking;

constexpr std::int32_t kVersion = 0x444B0002;

/// The sum that a record ends in.
std::int32_t sumOf(const std::vector<std::int32_t>& numbers) {
    std::uint32_t sum = 2166136261u;
    for (const std::int32_t number : numbers) sum = (sum ^ static_cast<std::uint32_t>(number)) * 16777619u;
    return static_cast<std::int32_t>(sum);
}

/// A record of the right version and sum, whatever stands between them.
std::vector<std::int32_t> numbersOf(const std::uint8_t* data, std::size_t size) {
    std::vector<std::int32_t> numbers{kVersion};
    for (std::size_t i = 0; i + 2 < size; i += 3) {
        const auto low = static_cast<std::int32_t>(data[i] | data[i + 1] << 8);
        const bool isShifted = (data[i + 2] & 0x80) != 0;
        numbers.push_back(
            isShifted ? static_cast<std::int32_t>(static_cast<std::uint32_t>(low) << (data[i + 2] & 31))
                      : low - (data[i + 2] & 1) * 65536);
    }
    numbers.push_back(sumOf(numbers));
    return numbers;
}

bool isInside(const CRect& part, const CRect& area) {
    return part.Width() >= 0 && part.Height() >= 0 && part.left >= area.left && part.top >= area.top &&
           part.right <= area.right && part.bottom <= area.bottom;
}

void expectFilled(const Arrangement& now, const CRect& area) {
    std::vector<CRect> all{now.center};
    for (const PlacedPane& pane : now.panes) all.push_back(pane.rect);
    for (const PlacedDivider& divider : now.dividers) all.push_back(divider.rect);
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (!isInside(all[i], area)) fail("something leaves the frame");
        sum += std::int64_t{all[i].Width()} * all[i].Height();
        CRect both;
        for (std::size_t k = 0; k < i; ++k)
            if (both.IntersectRect(&all[i], &all[k])) fail("something overlaps");
    }
    if (sum != std::int64_t{area.Width()} * area.Height()) fail("the areas don't add up");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::int32_t> numbers = numbersOf(data, size);
    LayoutRecord record;
    record.docked.dock(SplitTree(4711), Side::right, 77, false);
    const std::vector<std::int32_t> before = encode(record);
    if (!decode(numbers, record)) {
        if (encode(record) != before) fail("a refused record changed the layout");
        return 0;
    }
    if (encode(record) != numbers) fail("a record comes back as another");
    std::vector<std::int32_t> damaged = numbers;
    damaged[damaged.size() / 2] ^= 1;
    LayoutRecord untouched;
    if (decode(damaged, untouched)) fail("a damaged record is taken");
    Rules rules;
    rules.center = CSize(30, 20);
    rules.least = [](PaneKey pane) {
        return CSize(static_cast<int>(pane % 50), static_cast<int>(pane % 40));
    };
    for (const CSize extent : {CSize(0, 0), CSize(37, 900), CSize(1000, 700)}) {
        const CRect area(CPoint(-5, 10), extent);
        expectFilled(record.docked.arrange(area, rules), area);
    }
    return 0;
}
