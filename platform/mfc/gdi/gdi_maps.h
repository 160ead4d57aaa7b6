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
        for_each_object_map([](auto& map) { map.DeleteTemp(); });
    }

    /// Calls `action` with each map.
    template <class Action>
    void for_each(Action action) {
        action(dcs);
        action(menus);
        action(image_lists);
        for_each_object_map(action);
    }

private:
    template <class Action>
    void for_each_object_map(Action action) {
        action(objects);
        action(pens);
        action(brushes);
        action(fonts);
        action(bitmaps);
        action(palettes);
        action(regions);
    }
};

/// The calling thread's maps.
GdiMaps& gdi_maps();

}  // namespace kmfc
