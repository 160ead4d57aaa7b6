// The screen font that stands for the font of a text style.
#pragma once

#include <afxwin.h>

#include "scene.h"
#include "standin_api.h"

/// The font without a height. A TrueType family is shown as itself; shape fonts are shown in the stand-in.
STANDIN_API LOGFONT TextFace(const SceneFont& font);
