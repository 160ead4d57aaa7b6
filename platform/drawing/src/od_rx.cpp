#include "od_rx.h"

#include <cstdlib>

void* odrxAlloc(std::size_t size) { return std::malloc(size ? size : 1); }

void odrxFree(void* memory) { std::free(memory); }

OdRxObject::~OdRxObject() = default;

void OdRxObject::addRef() { ++m_references; }

void OdRxObject::release() {
    if (--m_references <= 0) delete this;
}

long OdRxObject::numRefs() const { return m_references; }
