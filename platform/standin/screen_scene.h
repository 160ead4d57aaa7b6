// What scenes of the screen take from the host: the widths of texts in its fonts, and the bytes of shape
// files.
#pragma once

#include "scene_options.h"
#include "standin_api.h"

/// The family of the screen that a font's letters come from.
using SceneFamily = std::function<OdString(const SceneFont& font)>;

/// The file of the shape font that stands for one that isn't found, in every scene with options from here; at
/// first none, and a screen font stands for it. For the thread of the user interface.
STANDIN_API void SetShapeFontInPlace(const OdString& file);

/// Options by which texts are as wide as TextFace shows them, and shapes come from the files that the host
/// finds.
STANDIN_API SceneOptions ScreenSceneOptions();
/// The same with the pictures that `drawing` names. Where `waitsForPictures` isn't set, those that have to be
/// read from their files first come later: the scene says so, and has their frames.
STANDIN_API SceneOptions ScreenSceneOptions(OdDbDatabase& drawing, bool waitsForPictures = true);
/// The same for a scene that is built and painted where nobody may ask the host, as on the thread of a
/// preview: fonts of which only a file is known are the stand-in, and shapes aren't drawn.
STANDIN_API SceneOptions UnaskedSceneOptions(OdDbDatabase& drawing);
/// Has the texts of such a scene painted in the fonts that they were measured in.
STANDIN_API void NameFamilies(Scene& scene);
/// The same as of the screen, pictures among them, for a scene of `drawing` that another thread builds: what
/// only this thread may ask the host for is asked for now, for the fonts and shapes of the drawing's text
/// styles. A font file that nothing but a text itself names is measured as the stand-in. The options must go
/// on the thread that uses them.
STANDIN_API SceneOptions BackgroundSceneOptions(OdDbDatabase& drawing);
/// The families of a drawing's fonts for another thread, under the same rule.
STANDIN_API SceneFamily BackgroundFamilies(OdDbDatabase& drawing);
