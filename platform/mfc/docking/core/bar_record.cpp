#include "bar_record.h"

#include <set>

#include "stored_numbers.h"

namespace kmfc::docking {

namespace {

constexpr std::int32_t kVersion = 0x42415201;
constexpr int kMostBars = 1000, kMostRows = 1000, kMostPixels = 100'000;
constexpr int kLastId = 0xFFFE;

BarRecord read_bar(NumberReader& reader) {
    BarRecord bar;
    bar.id = static_cast<PaneKey>(reader.next(1, kLastId));
    bar.side = static_cast<Side>(reader.next(0, kSides - 1));
    bar.place.row = reader.next(0, kMostRows);
    bar.place.isOwnRow = reader.next(0, 1) != 0;
    bar.place.offset = reader.next(0, kMostPixels);
    bar.shown = reader.next(0, 1) != 0;
    bar.floats = reader.next(0, 1) != 0;
    bar.rect.left = reader.next(-kMostPixels, kMostPixels);
    bar.rect.top = reader.next(-kMostPixels, kMostPixels);
    bar.rect.right = reader.next(bar.rect.left, 2 * kMostPixels);
    bar.rect.bottom = reader.next(bar.rect.top, 2 * kMostPixels);
    return bar;
}

}  // namespace

std::vector<std::int32_t> encode_bars(const std::vector<BarRecord>& bars) {
    std::vector<std::int32_t> numbers{kVersion, static_cast<std::int32_t>(bars.size())};
    for (const BarRecord& bar : bars) {
        numbers.insert(numbers.end(),
                       {static_cast<std::int32_t>(bar.id), static_cast<std::int32_t>(bar.side), bar.place.row,
                        bar.place.isOwnRow ? 1 : 0, bar.place.offset, bar.shown ? 1 : 0, bar.floats ? 1 : 0});
        for (const LONG edge : {bar.rect.left, bar.rect.top, bar.rect.right, bar.rect.bottom})
            numbers.push_back(static_cast<std::int32_t>(edge));
    }
    numbers.push_back(sum_of(numbers));
    return numbers;
}

bool decode_bars(const std::vector<std::int32_t>& numbers, std::vector<BarRecord>& bars) {
    if (numbers.size() < 2) return false;
    const std::vector<std::int32_t> body(numbers.begin(), numbers.end() - 1);
    if (sum_of(body) != numbers.back()) return false;
    NumberReader reader(body);
    reader.next(kVersion, kVersion);
    std::vector<BarRecord> read;
    std::set<PaneKey> met;
    for (std::int32_t left = reader.next(0, kMostBars); left > 0 && reader.good(); --left) {
        read.push_back(read_bar(reader));
        if (!met.insert(read.back().id).second) reader.fail();
    }
    if (!reader.done()) return false;
    bars = std::move(read);
    return true;
}

}  // namespace kmfc::docking
