#include <ktui/nav/sort_state_map.h>

std::map<CString, SortState>& SortStateMap() {
    static std::map<CString, SortState> states;
    return states;
}

int SortClicks(int format, int bits) {
    if ((format & bits) == bits) return 0;
    return (format & kSortBits) == 0 && bits == kSortedDown ? 2 : 1;
}
