// Where the file of a picture may lie that a drawing names. Knows no window and looks at no disk.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standin_api.h"

/// The paths at which to look for the file that a drawing in `folder` calls `name`, the likeliest first:
/// where the name says, from the drawing's folder if it is no whole path, and last in that folder by its bare
/// name. None for names of devices; a drawing without a folder has whole paths alone.
STANDIN_API std::vector<std::wstring> PicturePlaces(std::wstring_view name, std::wstring_view folder);
