// Nodes of lists and maps, taken from blocks of several at a time.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "kmfc/exceptions.h"

namespace kmfc {

/// Hands out nodes from blocks of `block_size`; nodes given back are used again, and all memory is freed with
/// the last node. Every node must be given back before the pool is destroyed.
template <class Node>
class NodePool {
public:
    explicit NodePool(INT_PTR block_size)
        : m_block_size(block_size > 0 ? static_cast<size_t>(block_size) : 10) {}
    NodePool(const NodePool&) = delete;
    NodePool& operator=(const NodePool&) = delete;

    /// A new node made of the arguments. Throws CMemoryException.
    template <class... Args>
    Node* make(Args&&... args) {
        if (!m_free) add_block();
        Slot* slot = m_free;
        Slot* const next = slot->next;
        Node* node = new (static_cast<void*>(slot->memory)) Node{std::forward<Args>(args)...};
        m_free = next;
        ++m_used;
        return node;
    }

    void destroy(Node* node) {
        node->~Node();
        Slot* slot = reinterpret_cast<Slot*>(node);
        slot->next = m_free;
        m_free = slot;
        if (--m_used == 0) {
            m_free = nullptr;
            m_blocks.clear();
        }
    }

private:
    union Slot {
        Slot* next;
        alignas(Node) unsigned char memory[sizeof(Node)];
    };

    void add_block() {
        try {
            m_blocks.push_back(std::make_unique<Slot[]>(m_block_size));
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        }
        for (size_t i = m_block_size; i-- > 0;) {
            m_blocks.back()[i].next = m_free;
            m_free = &m_blocks.back()[i];
        }
    }

    size_t m_block_size;
    size_t m_used = 0;
    Slot* m_free = nullptr;
    std::vector<std::unique_ptr<Slot[]>> m_blocks;
};

}  // namespace kmfc
