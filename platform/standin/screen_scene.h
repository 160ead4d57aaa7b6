// What scenes of the screen take from the host: the widths of texts in its fonts, and the bytes of shape
// files.
#pragma once

#include "scene_options.h"
#include "standin_api.h"

/// Options by which texts are as wide as TextFace shows them, and shapes come from the files that the host
/// finds.
STANDIN_API SceneOptions ScreenSceneOptions();
