// What a version of the file format can't hold of a drawing, in words for the user.
#pragma once

#include <vector>

#include <afxwin.h>

#include <od_dxf_loss.h>

/// A line for each loss, what is drawn first; after eight lines how many more there are. Empty for no losses.
CString LossText(const std::vector<OdDxfLoss>& losses);
