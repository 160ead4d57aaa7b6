// Buttons with bitmaps, drawing off screen, and bars.
#pragma once

#include <afxwin.h>

#include <kmfc/bitmap_button.h>
#include <kmfc/control_bar.h>
#include <kmfc/dialog_bar.h>
#include <kmfc/mem_dc.h>
