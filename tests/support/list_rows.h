// The rows of a list box, at one glance.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>

namespace ui_test {

/// The texts of the rows one behind the other. Each row's data has to be the first character of its text, by
/// which a test sees that the two stayed together.
inline std::wstring rows_of(CListBox& list) {
    std::wstring all;
    for (int i = 0; i < list.GetCount(); ++i) {
        CString text;
        list.GetText(i, text);
        all += text;
        EXPECT_EQ(list.GetItemData(i), static_cast<DWORD_PTR>(text[0]));
    }
    return all;
}

}  // namespace ui_test
