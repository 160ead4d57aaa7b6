// The menu of the OK button of an Open dialog: which entries it has, and what each one says about the file.
// Without any window. Private to the library; its tests link it by itself.
#pragma once

#include <vector>

constexpr unsigned kMenuOpen = 1125;
constexpr unsigned kMenuOpenReadOnly = 1126;
constexpr unsigned kMenuPartialOpen = 1127;
constexpr unsigned kMenuPartialOpenReadOnly = 1128;
constexpr unsigned kMenuOpenImperial = 1129;
constexpr unsigned kMenuOpenMetric = 1130;

/// The settings that decide about the menu.
struct OpenMenuSettings {
    bool opens = true;  ///< false is a Save dialog
    bool readOnlyHidden = false;
    bool partialOpen = false;
    bool openWithoutTemplate = false;
};

struct OpenMenuEntry {
    unsigned command;
    unsigned textId;      ///< in the resource library
    const wchar_t* text;  ///< without one
};

/// Whether the button has a menu at all.
bool HasOpenMenu(const OpenMenuSettings& settings);
/// The entries in their order.
std::vector<OpenMenuEntry> OpenMenuEntries(const OpenMenuSettings& settings);

/// Puts what an entry says where it belongs; any other command changes nothing. `noTemplate` becomes 1 for
/// imperial and 2 for metric units.
void ApplyOpenMenuCommand(unsigned command, int& readOnly, int& noTemplate);
