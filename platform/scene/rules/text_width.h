// How wide texts are without a font at hand. Internal to the module.
#pragma once

#include <string_view>

#include "scene.h"

/// Width of a text whose capitals are 1 high, as the letters of a common sans-serif run.
double EstimatedTextWidth(const SceneFont& font, std::wstring_view text);
