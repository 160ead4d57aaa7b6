#include <ktui/pickers/mru_store.h>

MruStore::MruStore() { m_mruCargo.fill(kCargoMruEmpty); }

int MruStore::find(int cargo) const {
    for (int slot = 0; slot < m_mruCount; ++slot)
        if (this->cargo(slot) == cargo) return slot;
    return -1;
}

bool MruStore::contains(int cargo) const { return find(cargo) >= 0; }

int MruStore::unusedCargo(int seed) const {
    int cargo = seed;
    while (contains(cargo)) ++cargo;
    return cargo;
}

void MruStore::add(const CString& text, int cargo) {
    if (m_mruCount == kCapacity) remove(m_mruCargo[0]);
    const auto slot = static_cast<std::size_t>(m_mruCount++);
    m_mruText[slot] = text;
    m_mruCargo[slot] = cargo;
}

void MruStore::remove(int cargo) {
    const int found = find(cargo);
    if (found < 0) return;
    const auto last = static_cast<std::size_t>(m_mruCount - 1);
    for (auto slot = static_cast<std::size_t>(found); slot < last; ++slot) {
        m_mruText[slot] = m_mruText[slot + 1];
        m_mruCargo[slot] = m_mruCargo[slot + 1];
    }
    m_mruText[last].Empty();
    m_mruCargo[last] = kCargoNone;
    --m_mruCount;
}
