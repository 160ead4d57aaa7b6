// The small picture of a drawing that goes with its file, for file dialogs and folders to show.
#pragma once

#include <string>

#include <od_db.h>

/// Width and height of the picture, pixels.
constexpr int kThumbnailWidth = 200;
constexpr int kThumbnailHeight = 150;

/// All of model space as a device-independent bitmap of 256 colours, painted as the drawing view does; empty
/// if there is nothing to see. On a thread that may not ask the host `asksHost` is false: fonts and shapes of
/// which only a file is known are then the stand-in's and left out.
std::string DrawingThumbnail(OdDbDatabase& drawing, bool asksHost = true);
