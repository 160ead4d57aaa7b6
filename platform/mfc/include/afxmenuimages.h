// The small signs of menus and captions.
#pragma once

#include <afxwin.h>

#include <kmfc/menu_images.h>
