#include <ktui/dialogs/tab_pages.h>

#include <cwchar>

namespace {

constexpr int kPageMargin = 5;  // pixels on each side

}  // namespace

CRect TabPageArea(CRect strip, int rowHeight) {
    strip.top += rowHeight;
    strip.InflateRect(-kPageMargin, -kPageMargin);
    return strip;
}

int InitialTabIndex(const CString& request, int count, const TabItemText& itemText) {
    if (request.IsEmpty()) return -1;
    // A request that is no number is looked for among the texts of all items.
    int number = count;
    std::swscanf(request.GetString(), L"%d", &number);
    if (number >= 0 && number < count) return number;
    // Kept: a number beyond the items is how many texts are asked for, whether there are such items or not.
    for (int i = 0; i < number; ++i) {
        CString text;
        if (itemText(i, text) && text == request) return i;
    }
    return 0;
}
