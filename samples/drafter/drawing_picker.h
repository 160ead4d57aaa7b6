// CDrawingPicker: lets the user pick in the drawing on behalf of a dialog that has gone away meanwhile.
#pragma once

#include <functional>
#include <set>
#include <vector>

#include <od_db.h>

class CDrawingPicker {
public:
    /// The places that were picked; fewer than were asked for if the user gave up.
    using PlacesPicked = std::function<void(const std::vector<OdGePoint2d>& places)>;
    /// The objects that were picked, or null if the user gave up.
    using ObjectsPicked = std::function<void(const std::set<OdDbObjectId>* objects)>;

    virtual ~CDrawingPicker() = default;

    /// Has the user pick `count` places; the strings from `firstPrompt` on say what each is for. Returns at
    /// once; `picked` is called once, in the end.
    virtual void PickPlaces(std::size_t count, unsigned firstPrompt, PlacesPicked picked) = 0;
    /// Has the user pick objects until Enter.
    virtual void PickObjects(unsigned prompt, ObjectsPicked picked) = 0;
};
