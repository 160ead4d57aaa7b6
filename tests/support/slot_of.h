// Where a virtual operation stands in its class's table, for tests of orders that classes built elsewhere
// need.
#pragma once

#include <cstring>

#include <gtest/gtest.h>

namespace ui_test {

/// Place of a virtual operation in its class's table: a pointer to one holds the offset plus 1.
template <class Operation>
long long slotOf(Operation operation) {
    long long raw = 0;
    std::memcpy(&raw, &operation, sizeof raw);
    EXPECT_EQ(raw % 8, 1) << "not virtual";
    return raw / 8;
}

}  // namespace ui_test
