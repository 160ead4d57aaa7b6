// The six most recently used choices of one picker.
//
// Each holds a text and a cargo, the number that the picker gives a meaning to. The store is of one control
// and dies with it; the control's list entries are none of its business, so an entry that leaves the store
// stays in the list.
#pragma once

#include <afx.h>

#include <array>

#include <ktui/ktui_api.h>

// Cargo values that the pickers reserve.
constexpr int kCargoNone = -1;        ///< no item; what a freed slot holds
constexpr int kCargoMruEmpty = -101;  ///< a slot that was never used
constexpr int kCargoOther = -102;     ///< an item that leads to a dialog
constexpr int kCargoOther2 = -103;    ///< a second such item; looked for, never inserted by the core
constexpr int kCargoOption1 = -104;   ///< first option item, unless a picker sets another value
constexpr int kCargoOption2 = -105;   ///< second option item, unless a picker sets another value

/// True for the cargo of an item that leads to a dialog and is never a selection to fall back to.
constexpr bool IsOtherCargo(long long cargo) { return cargo == kCargoOther || cargo == kCargoOther2; }

class KTUI_API MruStore {
public:
    static constexpr int kCapacity = 6;

    MruStore();

    /// Number of entries, 0 to kCapacity.
    int count() const { return m_mruCount; }
    /// Cargo of slot `slot`, 0 (the oldest) to kCapacity - 1.
    int cargo(int slot) const { return m_mruCargo[static_cast<std::size_t>(slot)]; }
    /// Text of slot `slot`, 0 (the oldest) to kCapacity - 1.
    const CString& text(int slot) const { return m_mruText[static_cast<std::size_t>(slot)]; }

    /// Whether an entry has `cargo`.
    bool contains(int cargo) const;
    /// The smallest value not below `seed` that no entry has as its cargo.
    int unusedCargo(int seed) const;
    /// Adds the newest entry; a full store loses its oldest.
    void add(const CString& text, int cargo);
    /// Takes the entry with `cargo` out, and moves the newer ones down. Nothing for an unknown cargo.
    void remove(int cargo);

private:
    int find(int cargo) const;

    std::array<int, kCapacity> m_mruCargo;
    int m_mruCount = 0;
    std::array<CString, kCapacity> m_mruText;
};
