// The arithmetic of resizing by percentages: how a change of a dialog's client size becomes whole-pixel moves
// of a control, with the rest kept for the next change. Knows no window. Private to the library;
// its tests link it by itself.
#pragma once

#include <afx.h>

#include <ktui/dialogs/elastic_tags.h>

/// One registration of one control.
struct _SControlTag {
    unsigned m_id = 0;    ///< control id
    unsigned m_kind = 0;  ///< a KBUI_ELASTIC_KIND
    int m_percentX = 0;   ///< per cent of a width change that applies; 0 when the kind has no X part
    int m_percentY = 0;   ///< per cent of a height change that applies; 0 when the kind has no Y part
    int m_remainderX =
        0;  ///< hundredths of a pixel not yet applied, with the sign of the change they came from
    int m_remainderY = 0;
};

/// Takes the change (dx, dy), in pixels, of the client size into the tag's remainders and answers how far the
/// control goes now: whole pixels, truncated toward zero.
CSize AdvanceElasticTag(_SControlTag& tag, int dx, int dy);

/// Applies `step` to the control's rectangle as `kind` asks. False if the control stays as it is, which
/// includes a kind that is none of the six.
bool ApplyElasticStep(unsigned kind, CSize step, CRect& rect);
