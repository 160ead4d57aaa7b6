// Which version of the file format was the first to have a variable, an entity, an object or a group: tables
// by kind of record.
#pragma once

#include <span>
#include <string_view>
#include "od_db_types.h"
#include "od_dxf_loss.h"

/// Groups that a kind of record has only from a version on.
struct OdGroupRule {
    std::string_view type;   ///< of the record, or kOdCommonGroups
    int first, last;         ///< codes
    OdDb::DwgVersion since;  ///< first version that has them
    OdDxfLossKind loss = OdDxfLossKind::kSetting;
    int occurrence = 1;  ///< counted in the record; earlier ones aren't meant
};

/// Stands for the part that all entities have in common.
inline constexpr std::string_view kOdCommonGroups = "(common)";

/// All rules, and those for records of one type.
std::span<const OdGroupRule> odGroupRules();
std::span<const OdGroupRule> odGroupRules(std::string_view type);

/// Whether R12 has groups with this code in any record.
bool odIsR12Code(int code);

/// The first version with entities of this type; R13 for types that no table knows.
OdDb::DwgVersion odFirstVersionOfEntity(std::string_view type);

/// The first version with objects of this type; R13 for types that no table knows.
OdDb::DwgVersion odFirstVersionOfObject(std::string_view type);

/// The first version with a header variable of this name; kDHL_Unknown for names that no table knows.
OdDb::DwgVersion odFirstVersionOfVariable(std::string_view name);
