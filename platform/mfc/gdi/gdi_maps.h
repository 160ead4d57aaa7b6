// The handle maps of drawing objects, menus and image lists: part of each thread's state.
#pragma once

#include <kmfc/gdi.h>
#include <kmfc/handle_map.h>
#include <kmfc/image_list.h>
#include <kmfc/menu.h>

namespace kmfc {

/// Objects by handle on one thread.
struct GdiMaps {
    CHandleMap<CDC> dcs;
    CHandleMap<CMenu> menus;
    CHandleMap<CImageList> image_lists;

    // All permanent GDI objects are in `objects`; temporary ones are in the map of the class that fits the
    // handle.
    CHandleMap<CGdiObject> objects;
    CHandleMap<CPen> pens;
    CHandleMap<CBrush> brushes;
    CHandleMap<CFont> fonts;
    CHandleMap<CBitmap> bitmaps;
    CHandleMap<CPalette> palettes;
    CHandleMap<CRgn> regions;

    void delete_temporary_objects() {
        objects.DeleteTemp();
        pens.DeleteTemp();
        brushes.DeleteTemp();
        fonts.DeleteTemp();
        bitmaps.DeleteTemp();
        palettes.DeleteTemp();
        regions.DeleteTemp();
    }
};

/// The calling thread's maps.
GdiMaps& gdi_maps();

}  // namespace kmfc
