// What an application tells the stand-in host about itself: names, save formats, the colour scheme.
#pragma once

#include <afxwin.h>

/// The names that the product goes by. A host starts with these.
struct StandinProduct {
    CString companyFullName = L"Quorvex Design Systems";
    CString companyShortName = L"Quorvex";
    CString productName = L"Velmora";
    CString programName = L"Velmora";
    CString messageCaption;    ///< heads messages; empty for the name of the application object
    CString version = L"1.0";  ///< third level of the per-user settings path
};

/// A format that drawings can be saved in, besides the built-in ones.
struct StandinSaveFormat {
    int code = 0;        ///< above 1000; the code modulo 1000 is the format that it behaves as
    CString name;        ///< the text to list it by
    bool listed = true;  ///< false keeps it out of lists; its name is still known
};

/// Colours for the windows of an application. As an answer of currentColorScheme never kSystem.
enum class StandinColorScheme : int {
    kLight = 0,
    kDark = 1,
    kHighContrast = 2,  ///< the colours that the user has set in the system
    kSystem = 3         ///< whichever of the three the system is in
};

/// The roles that every scheme has a colour for. 8 to 10 are KhColorRole.
enum StandinColorRole : int {
    kStandinRoleWindow = 0,  ///< background of lists and fields
    kStandinRoleWindowText = 1,
    kStandinRoleFace = 2,  ///< background of dialogs and bars
    kStandinRoleFaceText = 3,
    kStandinRoleDisabledText = 4,
    kStandinRoleSelection = 5,
    kStandinRoleSelectionText = 6,
    kStandinRoleLine = 7,  ///< frames and dividing lines
    kStandinRoleLink = 11,
    kStandinRoleDrawing = 12,    ///< background of a drawing
    kStandinRoleCrosshair = 13,  ///< what is drawn over a drawing
    kStandinRoleCount = 14
};
