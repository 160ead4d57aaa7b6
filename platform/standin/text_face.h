// The screen font that stands for the font of a text style.
#pragma once

#include <afxwin.h>

#include "scene.h"
#include "standin_api.h"

/// The font without a height. A TrueType family is shown as itself; shape fonts are shown in the stand-in.
STANDIN_API LOGFONT TextFace(const SceneFont& font);
/// The same where the family is known already; empty for that of the stand-in.
STANDIN_API LOGFONT TextFaceOf(const SceneFont& font, const OdString& family);
/// The family that a font is shown in: its own, or that of its file, for which the host is asked. Empty where
/// the stand-in shows it.
STANDIN_API OdString FamilyOf(const SceneFont& font);
