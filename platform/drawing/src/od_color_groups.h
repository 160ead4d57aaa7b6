// How a colour stands in an object's groups: the index (62), the true colour (420) and the book's name (430).
#pragma once

#include "od_cm_color.h"
#include "od_group_list.h"

/// The colour that the groups give from place `from` to place `to`; ByLayer if they give none.
OdCmColor odColorFromGroups(const OdGroupList& groups, std::uint32_t from = 0, std::uint32_t to = UINT32_MAX);

/// The groups that give `color`, as replacements for those in `groups`. A true colour is accompanied by its
/// nearest index, for versions that have nothing else.
void odColorToGroups(const OdCmColor& color, OdGroupList& groups);

/// The packed form of group 420, red in the third byte, and back.
std::int64_t odTrueColorGroup(const OdCmColor& color);
/// The form of group 430, "BOOK$name" or the name alone.
OdString odColorNameGroup(const OdCmColor& color);
