// The small picture of a drawing that goes with its file, for file dialogs and folders to show.
#pragma once

#include <string>

#include <od_db.h>

/// Width and height of the picture, pixels.
constexpr int kThumbnailWidth = 200;
constexpr int kThumbnailHeight = 150;

/// All of model space as a device-independent bitmap of 256 colours, painted as the drawing view does; empty
/// if there is nothing to see.
std::string DrawingThumbnail(OdDbDatabase& drawing);
