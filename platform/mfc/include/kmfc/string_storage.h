// The block behind a CString: a header with the characters right after it.
//
// A string object is one pointer to its characters, so that it can be handed to a "..." parameter; the header
// sits in front of them. Blocks are shared between copies and counted; a block with more than one owner is
// never written to. The block of the empty string is static, has no capacity and is never counted.
#pragma once

#include <atomic>

#include "kmfc/diagnostics.h"

namespace kmfc {

/// Header of a block; `capacity` characters and a closing zero follow it.
struct StringHeader {
    std::atomic<int> owners;  ///< strings that share the block; kLocked when it may not be shared
    int length;               ///< characters in use, without the closing zero
    int capacity;             ///< characters there is room for, without the closing zero; 0 only when static

    static constexpr int kLocked = -1;  ///< one owner that keeps the block to itself
};

/// The header of the static block for empty strings; its character is zero at any character width.
KMFC_API StringHeader* empty_string_header();

/// A block of one owner with room for `capacity` (at least 1) characters of `unit` bytes each and length 0.
/// Throws CMemoryException when memory is short or `capacity` is not positive.
KMFC_API StringHeader* allocate_string(int capacity, int unit);

/// The block, moved if need be, with room for `capacity` characters. It must have one owner.
KMFC_API StringHeader* reallocate_string(StringHeader* header, int capacity, int unit);

/// Counts one owner less and frees the block with the last one. The static block is left alone.
KMFC_API void release_string(StringHeader* header);

}  // namespace kmfc
