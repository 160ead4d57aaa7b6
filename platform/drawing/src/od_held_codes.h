// Which codes the records of a file held, whatever its version: what a program found in its own version's
// file may stand there again.
#pragma once

#include <bitset>
#include <string>
#include <string_view>
#include <unordered_map>

/// What kind of record groups belong to.
enum class OdDxfRecordKind { kObject, kEntity, kTableRecord, kBlock };

/// Codes of groups, below those of extended data.
class OdCodeSet {
public:
    void add(int code) {
        if (isIn(code)) m_codes.set(static_cast<std::size_t>(code));
    }
    bool has(int code) const { return isIn(code) && m_codes[static_cast<std::size_t>(code)]; }

private:
    static constexpr int kCodes = 1000;
    static bool isIn(int code) { return code >= 0 && code < kCodes; }
    std::bitset<kCodes> m_codes;
};

/// The codes that records of each type held.
class OdHeldCodes {
public:
    /// Those of a type, to be added to.
    OdCodeSet& of(OdDxfRecordKind kind, std::string_view type) {
        return m_sets[static_cast<int>(kind)][std::string(type)];
    }
    /// Those of a type; null if the file had no such record.
    const OdCodeSet* find(OdDxfRecordKind kind, std::string_view type) const {
        const auto& sets = m_sets[static_cast<int>(kind)];
        const auto found = sets.find(std::string(type));
        return found == sets.end() ? nullptr : &found->second;
    }

private:
    std::unordered_map<std::string, OdCodeSet> m_sets[4];
};
