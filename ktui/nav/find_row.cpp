#include <ktui/nav/find_row.h>

namespace {

constexpr unsigned long long kUnit = 1000;  // bytes
constexpr unsigned long long kFewUnits = 10;
constexpr int kShortestFolder = 4;  // characters

bool isLess(const FindRow& a, const FindRow& b, int column) {
    switch (column) {
        case kFindName: return a.m_name.Compare(b.m_name) < 0;
        case kFindFolder: return a.m_folder.Compare(b.m_folder) < 0;
        case kFindSize: return a.m_size < b.m_size;
        case kFindType: return a.m_type.Compare(b.m_type) < 0;
        case kFindTime: return a.m_time < b.m_time;
        default: return false;
    }
}

}  // namespace

int SizeOfFile(unsigned long long bytes) { return static_cast<int>((bytes + kUnit - 1) / kUnit); }

CString SizeText(unsigned long long bytes) {
    CString text;
    // Kept: 9001 to 9999 bytes are told in bytes, although they round up to ten units.
    if (bytes / kUnit >= kFewUnits)
        text.Format(L"%ld KB", static_cast<long>(SizeOfFile(bytes)));
    else
        text.Format(L"%ld B", static_cast<long>(bytes));
    return text;
}

CString ShownFolder(const CString& folder) {
    const bool isCut = folder.GetLength() >= kShortestFolder && folder.Right(1) == L"\\";
    return isCut ? folder.Left(folder.GetLength() - 1) : folder;
}

int CompareFindRows(const FindRow& a, const FindRow& b, int column, int direction) {
    return direction == 0 ? isLess(a, b, column) : isLess(b, a, column);
}

void FindSort::Click(int column) {
    if (column == m_column)
        m_direction = m_direction == 1 ? 0 : 1;
    else if (m_direction == -1)
        m_direction = 0;
    m_column = column;
}
