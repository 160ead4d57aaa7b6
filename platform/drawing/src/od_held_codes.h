// Which codes the records of a file held, whatever its version: what a program found in its own version's
// file may stand there again.
#pragma once

#include <bitset>

/// What kind of record groups belong to.
enum class OdDxfRecordKind { kObject, kEntity, kTableRecord, kBlock };

class OdHeldCodes {
public:
    void add(OdDxfRecordKind kind, int code) {
        if (code >= 0 && code < kCodes) m_codes[static_cast<int>(kind)].set(static_cast<std::size_t>(code));
    }
    bool has(OdDxfRecordKind kind, int code) const {
        return code >= 0 && code < kCodes && m_codes[static_cast<int>(kind)][static_cast<std::size_t>(code)];
    }

private:
    static constexpr int kCodes = 1000;
    std::bitset<kCodes> m_codes[4];
};
