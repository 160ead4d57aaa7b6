// Buttons with bitmaps and drawing off screen.
#pragma once

#include <afxwin.h>

#include <kmfc/bitmap_button.h>
#include <kmfc/mem_dc.h>
