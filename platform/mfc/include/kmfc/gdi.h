// Drawing: GDI objects and device contexts.
#pragma once

#include <kmfc/gdi_object.h>
#include <kmfc/gdi_objects.h>
#include <kmfc/dc.h>
#include <kmfc/window_dc.h>
