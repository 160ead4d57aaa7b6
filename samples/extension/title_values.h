// What the title block extension fills in. Knows no window.
#pragma once

#include <od_db.h>

struct TitleValues {
    OdString project;
    OdString drawnBy;
    OdString checkedBy;
};

/// Puts the values in the place of the texts [PROJECT], [DRAWN BY] and [CHECKED BY] of the drawing's current
/// space; one without a value stays. How many texts were filled.
int FillTitleBlock(OdDbDatabase& drawing, const TitleValues& values);
