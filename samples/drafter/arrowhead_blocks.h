// The blocks that the arrowheads and callouts of the pickers stand for in a drawing, and their shapes. Knows
// no window.
//
// An arrowhead's block is one unit long: its point at the origin, its tail at (-1, 0), where the dimension
// line ends.
#pragma once

#include <od_db.h>

/// Name of the block of arrowhead `number` as the arrowhead picker counts them. Empty for the filled, closed
/// one (0), which files leave unnamed, and for numbers without a block.
OdString ArrowheadBlockName(int number);
/// The number of the arrowhead whose block has this name, 0 for an empty name; -1 for a block of the user's.
int ArrowheadOfBlock(const OdString& name);
/// The same for the callouts of the block picker, 0 to 5; an empty name is none of them.
OdString CalloutBlockName(int number);
int CalloutOfBlock(const OdString& name);

/// The block of this name, made if it is a standard one that the drawing lacks; null for an empty name or an
/// unknown one.
OdDbObjectId NeedStandardBlock(OdDbDatabase& drawing, const OdString& name);
/// The block of an arrowhead for drawing a sample, that of the filled, closed one included.
OdDbObjectId NeedSampleArrowhead(OdDbDatabase& drawing, const OdString& name);

/// Names of the blocks that a user can choose: neither layouts, nor anonymous, nor from references.
std::vector<OdString> ChoosableBlocks(OdDbDatabase& drawing);
