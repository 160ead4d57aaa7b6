// Small pictures of blocks, for a list.
#pragma once

#include <vector>

#include <afxcmn.h>
#include <afxwin.h>

#include "block_list.h"

/// Fills `pictures` anew: squares of `size` pixels with a block each, all of it, on the drawing's paper.
void DrawBlockPictures(CImageList& pictures, OdDbDatabase& drawing, const std::vector<BlockRow>& blocks,
                       int size);
