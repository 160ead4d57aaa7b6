// Previews for the gallery's pages: a plan of a house for any file, at once or slowly.
#pragma once

#include <ktui/nav/thumbnail.h>

/// Has the toolkit ask here for previews, or no longer; answers whom it asked before.
KtUiThumbnailProvider ShowSamplePreviews(bool show);

/// Whether each preview takes ten seconds; not at first.
void MakeSamplePreviewsSlow(bool isSlow);
