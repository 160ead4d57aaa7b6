#include <ktui/nav/open_menu.h>

#include <ktdsres/nav_file_dialog_ids.h>

#include <cstddef>

bool HasOpenMenu(const OpenMenuSettings& settings) {
    return settings.opens &&
           (!settings.readOnlyHidden || settings.partialOpen || settings.openWithoutTemplate);
}

std::vector<OpenMenuEntry> OpenMenuEntries(const OpenMenuSettings& settings) {
    constexpr std::size_t kMost = 6;
    std::vector<OpenMenuEntry> entries;
    entries.reserve(kMost);
    entries.push_back({kMenuOpen, IDS_NAV_OPEN, L"打开(&O)"});
    if (!settings.readOnlyHidden)
        entries.push_back({kMenuOpenReadOnly, IDS_NAV_OPEN_READ_ONLY, L"以只读方式打开(&R)"});
    if (settings.partialOpen) entries.push_back({kMenuPartialOpen, IDS_NAV_PARTIAL_OPEN, L"局部打开(&P)"});
    if (settings.partialOpen && !settings.readOnlyHidden)
        entries.push_back(
            {kMenuPartialOpenReadOnly, IDS_NAV_PARTIAL_OPEN_READ_ONLY, L"以只读方式局部打开(&T)"});
    if (!settings.openWithoutTemplate) return entries;
    entries.push_back({kMenuOpenImperial, IDS_NAV_OPEN_IMPERIAL, L"无样板打开 - 英制(&I)"});
    // Kept: the same letter as the entry before.
    entries.push_back({kMenuOpenMetric, IDS_NAV_OPEN_METRIC, L"无样板打开 - 公制(&I)"});
    return entries;
}

void ApplyOpenMenuCommand(unsigned command, int& readOnly, int& noTemplate) {
    switch (command) {
        case kMenuOpen: readOnly = 0; break;
        case kMenuOpenReadOnly: readOnly = 1; break;
        case kMenuOpenImperial: noTemplate = 1; break;
        case kMenuOpenMetric: noTemplate = 2; break;
        default: break;  // Kept: opening in part leaves both as they were.
    }
}
