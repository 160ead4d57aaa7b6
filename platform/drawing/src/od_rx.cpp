#include "od_rx.h"

#include <atomic>
#include <cstdlib>

void* odrxAlloc(std::size_t size) { return std::malloc(size ? size : 1); }

void odrxFree(void* memory) { std::free(memory); }

OdRxObject::~OdRxObject() = default;

void OdRxObject::addRef() { std::atomic_ref(m_references).fetch_add(1, std::memory_order_relaxed); }

void OdRxObject::release() {
    // Whoever deletes the object sees what the others did to it before they let go.
    if (std::atomic_ref(m_references).fetch_sub(1, std::memory_order_acq_rel) <= 1) delete this;
}

long OdRxObject::numRefs() const { return m_references; }
