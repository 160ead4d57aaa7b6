// Which objects of a scene lie at a place, in a window or across one. All in drawing units; knows no window
// of the system. What is not drawn, as on a layer that is off, is not found.
#pragma once

#include <array>
#include <set>

#include "scene_bounds.h"

/// The object whose line is nearest to `at` and no farther than `reach`; where lines are equally near, the
/// one drawn last. Without one, a text whose box `at` is in, and then the filled area drawn last. Null if
/// there is none of these. `bounds` are those of the scene.
OdDbObjectId EntityAt(const Scene& scene, const SceneBounds& bounds, const OdGePoint2d& at, double reach);

/// The objects of which everything lies in `window`.
std::set<OdDbObjectId> EntitiesInside(const Scene& scene, const SceneExtents& window);
/// The objects of which anything lies in `window` or crosses it.
std::set<OdDbObjectId> EntitiesTouching(const Scene& scene, const SceneExtents& window);

/// What a selection becomes when `found` is selected: all of it, or with `toSelection` what there was and
/// `found`, less `found` if all of that was selected already.
std::set<OdDbObjectId> SelectionAfter(const std::set<OdDbObjectId>& selection,
                                      const std::set<OdDbObjectId>& found, bool toSelection);

/// The corners of the box that a text takes up, by an estimate of the width of its characters.
std::array<OdGePoint2d, 4> TextBox(const SceneText& text);
