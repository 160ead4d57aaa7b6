#include "kmfc/string_storage.h"

#include <cstdlib>
#include <new>

#include "kmfc/exceptions.h"

namespace {

struct EmptyBlock {
    kmfc::StringHeader header;
    wchar_t zero;
};

constinit EmptyBlock empty_block = {{{1}, 0, 0}, L'\0'};

size_t block_size(int capacity, int unit) {
    if (capacity <= 0) AfxThrowMemoryException();
    return sizeof(kmfc::StringHeader) + (static_cast<size_t>(capacity) + 1) * static_cast<size_t>(unit);
}

}  // namespace

namespace kmfc {

StringHeader* empty_string_header() { return &empty_block.header; }

StringHeader* allocate_string(int capacity, int unit) {
    void* memory = std::malloc(block_size(capacity, unit));
    if (!memory) AfxThrowMemoryException();
    return new (memory) StringHeader{{1}, 0, capacity};
}

StringHeader* reallocate_string(StringHeader* header, int capacity, int unit) {
    void* memory = std::realloc(static_cast<void*>(header), block_size(capacity, unit));
    if (!memory) AfxThrowMemoryException();
    auto* moved = static_cast<StringHeader*>(memory);
    moved->capacity = capacity;
    return moved;
}

void release_string(StringHeader* header) {
    if (header->capacity == 0) return;
    if (header->owners.fetch_sub(1, std::memory_order_acq_rel) <= 1) std::free(header);
}

}  // namespace kmfc
