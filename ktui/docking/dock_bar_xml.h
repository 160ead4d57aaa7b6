// The XML form of a dock control bar's places, under a node that the host keeps.
//
// Private to the library.
#pragma once

#include <afxwin.h>
#include <afxext.h>
#include <unknwn.h>

#include <functional>

/// What a bar writes.
struct DockBarPlaces {
    bool floating;
    bool allowDocking;
    CRect floatingRect;
    CRect dockingRect;
    DWORD alignment;  ///< CBRS_ALIGN_ bits
};

/// Where what was read goes, piece by piece as it is read.
struct DockBarFields {
    std::function<void(unsigned orientation)> setOrientation;
    bool& allowDocking;
    CRect& floatingRect;
    CRect& dockingRect;
    unsigned& dockFlags;
};

/// Appends the bar's element to `node`. 0 for a null pointer, one that is no XML node, and when an element
/// can't be made; otherwise 1. Throws _com_error when an attribute or element can't be put in.
int SaveDockBar(IUnknown* node, const DockBarPlaces& places);

/// Reads the bar's element below `node`. 0 when an element is missing; 1 when all of it was read. Throws
/// _com_error for an attribute that is missing or malformed. What was read before stays in the fields.
int LoadDockBar(IUnknown* node, const DockBarFields& fields);

/// The argument of SetPaneAlignment for a stored orientation and the present style.
DWORD AlignmentOfOrientation(unsigned orientation, DWORD style);
