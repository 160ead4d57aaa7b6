// The subclass markers (group 100) that versions from R13 on want in every object, and the groups that new
// objects start with. R12 files and objects made by a program have no markers; they get them here.
#pragma once

#include "od_group_list.h"

/// Puts the markers of an entity of this type into groups that have none, sorting the groups below them.
/// Groups that have a marker, and entities of unknown types, stay as they are.
void odCompleteEntityMarkers(std::string_view type, OdGroupList& groups);

/// The same for a symbol table record of this type.
void odCompleteRecordMarkers(std::string_view type, OdGroupList& groups);

/// Whether a group with this code is kept as a property of an entity: layer, linetype, sheet.
bool odIsEntityPropertyCode(int code);

/// Whether a group with this code belongs to the common part of all entities.
bool odIsCommonEntityCode(int code);

/// Fills the groups of a record that is made because a drawing needs it.
void odGiveNewRecordGroups(std::string_view type, OdGroupList& groups);

/// Fills the groups of a new layout named `name` over the block with the handle `block`.
void odGiveNewLayoutGroups(OdGroupList& groups, const wchar_t* name, OdDbHandle block, int tabOrder);

/// Completes the groups of a BLOCK (`begin`) or ENDBLK record: markers, layer, flags and base point.
void odCompleteBlockEdge(bool begin, OdGroupList& groups);
