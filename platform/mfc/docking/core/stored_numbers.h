// How layouts are stored as numbers: a sum at the end, and a reader that refuses what is out of range.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kmfc::docking {

/// The sum that stands behind the numbers of a record.
inline std::int32_t sum_of(const std::vector<std::int32_t>& numbers) {
    std::uint32_t sum = 2166136261u;
    for (const std::int32_t number : numbers) sum = (sum ^ static_cast<std::uint32_t>(number)) * 16777619u;
    return static_cast<std::int32_t>(sum);
}

/// Takes numbers one after the other; from the first fault on everything it gives is 0.
class NumberReader {
public:
    explicit NumberReader(const std::vector<std::int32_t>& numbers) : m_numbers(numbers) {}

    std::int32_t next(std::int64_t low, std::int64_t high) {
        if (m_at >= m_numbers.size()) m_good = false;
        if (!m_good) return 0;
        const std::int32_t number = m_numbers[m_at++];
        if (number < low || number > high) m_good = false;
        return m_good ? number : 0;
    }
    std::int32_t any() { return next(INT32_MIN, INT32_MAX); }
    bool good() const { return m_good; }
    bool done() const { return m_good && m_at == m_numbers.size(); }
    void fail() { m_good = false; }

private:
    const std::vector<std::int32_t>& m_numbers;
    std::size_t m_at = 0;
    bool m_good = true;
};

}  // namespace kmfc::docking
