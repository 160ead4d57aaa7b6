#include <ktui/nav/find_results.h>

#include <ktui/nav/find_local_time.h>

#include <memory>

#include <shellapi.h>

#include <ktdsres/find_file_ids.h>
#include <ktui/host/string_resources.h>

namespace {

constexpr int kImageSize = 16;  // pixels

struct Column {
    UINT id;
    const wchar_t* title;
    int format;
    int width;    ///< pixels
    int subItem;  ///< Kept: the number that the column is given, not the one its texts are set by
};

constexpr Column kColumns[kFindColumns] = {
    {IDS_FIND_NAME_COLUMN, L"名称", LVCFMT_LEFT, 120, 0},
    {IDS_FIND_FOLDER_COLUMN, L"所在文件夹", LVCFMT_LEFT, 140, 1},
    {IDS_FIND_SIZE_COLUMN, L"大小", LVCFMT_RIGHT, 60, 2},
    {IDS_FIND_TYPE_COLUMN, L"类型", LVCFMT_LEFT, 60, 2},
    {IDS_FIND_TIME_COLUMN, L"修改时间", LVCFMT_LEFT, 120, 3},
};

/// Local seconds of a calendar time; 0 for years before 1900 and what can't be told.
FindTime secondsOf(const SYSTEMTIME& local) {
    if (local.wYear < 1900) return 0;
    const FindTime time =
        SecondsOfLocal({local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond});
    return time == -1 ? 0 : time;
}

SYSTEMTIME localOf(const FILETIME& written) {
    FILETIME local = {};
    SYSTEMTIME fields = {};
    ::FileTimeToLocalFileTime(&written, &local);
    ::FileTimeToSystemTime(&local, &fields);
    return fields;
}

FILETIME fileTimeOf(FindTime time) {
    constexpr FindTime kUnitsPerSecond = 10'000'000, kSecondsTo1970 = 11'644'473'600LL;
    const FindTime units = (time + kSecondsTo1970) * kUnitsPerSecond;
    return {static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
}

CString timeText(const SYSTEMTIME& local) {
    constexpr int kRoom = 100;  // characters
    wchar_t date[kRoom] = {}, time[kRoom] = {};
    ::GetDateFormatW(LOCALE_USER_DEFAULT, 0, &local, nullptr, date, kRoom);
    ::GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS | TIME_FORCE24HOURFORMAT, &local, nullptr, time,
                     kRoom);
    CString text;
    text.Format(L"%s %s", date, time);
    return text;
}

int CALLBACK compareRows(LPARAM a, LPARAM b, LPARAM sort) {
    const auto* const order = reinterpret_cast<const FindSort*>(sort);
    return CompareFindRows(*reinterpret_cast<const FindRow*>(a), *reinterpret_cast<const FindRow*>(b),
                           order->m_column, order->m_direction);
}

CString extensionOf(const CString& path) {
    const int point = path.ReverseFind(L'.');
    return point > path.ReverseFind(L'\\') ? CString(path.Mid(point)).MakeLower() : CString();
}

}  // namespace

void FindResults::SetUp() {
    for (int i = 0; i < kFindColumns; ++i) {
        const Column& column = kColumns[i];
        m_list.InsertColumn(i, LoadToolkitString(column.id, column.title), column.format, column.width,
                            column.subItem);
    }
    m_sort = {};
    m_images.Create(kImageSize, kImageSize, ILC_COLOR24 | ILC_MASK, 1, 1);
    m_list.SetImageList(&m_images, LVSIL_SMALL);
}

int FindResults::addImage(const CString& path) {
    SHFILEINFOW info = {};
    if (!::SHGetFileInfoW(path, FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                          SHGFI_USEFILEATTRIBUTES | SHGFI_ICON | SHGFI_TYPENAME))
        return -1;
    const int image = m_images.Add(info.hIcon);
    m_typeNames.Add(info.szTypeName);
    ::DestroyIcon(info.hIcon);
    return image;
}

int FindResults::imageOfType(const CString& path) {
    const auto found = m_imageOfExtension.find(extensionOf(path).GetString());
    if (found != m_imageOfExtension.end()) return found->second;
    const int image = addImage(path);
    m_imageOfExtension[extensionOf(path).GetString()] = image;
    return image;
}

FindRow& FindResults::addRow(const CString& folder, const CString& name, int image) {
    auto data = std::make_unique<FindRow>();
    data->m_name = name;
    data->m_folder = ShownFolder(folder);
    if (image < m_typeNames.GetSize()) data->m_type = m_typeNames[image];
    const int row = m_list.InsertItem(LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM, Count(), name, 0, 0, image,
                                      reinterpret_cast<LPARAM>(data.get()));
    FindRow& kept = *data.release();
    if (row == 0) m_list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemText(row, kFindFolder, kept.m_folder);
    m_list.SetItemText(row, kFindType, kept.m_type);
    return kept;
}

void FindResults::tellFacts(int row, FindRow& data, const Facts& facts) {
    data.m_size = SizeOfFile(facts.length);
    data.m_time = facts.time;
    m_list.SetItemText(row, kFindSize, SizeText(facts.length));
    m_list.SetItemText(row, kFindTime, timeText(facts.written));
}

int FindResults::AddFile(const CString& folder, const CString& name) {
    if (name.IsEmpty()) return 0;
    const CString path = folder + name;
    const int image = addImage(path);
    if (image < 0) return -1;
    FindRow& data = addRow(folder, name, image);
    const HANDLE file = ::CreateFileW(path, 0, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return 0;
    LARGE_INTEGER length = {};
    FILETIME written = {};
    const bool isTold = ::GetFileSizeEx(file, &length) && ::GetFileTime(file, nullptr, nullptr, &written);
    ::CloseHandle(file);
    if (!isTold) return 0;
    const SYSTEMTIME local = localOf(written);
    tellFacts(Count() - 1, data, {static_cast<unsigned long long>(length.QuadPart), local, secondsOf(local)});
    return 0;
}

void FindResults::AddFiles(const std::vector<FoundFile>& files) {
    m_list.SetRedraw(FALSE);
    for (const FoundFile& file : files) {
        const int image = imageOfType(file.m_folder + file.m_name);
        if (image < 0) continue;
        FindRow& data = addRow(file.m_folder, file.m_name, image);
        tellFacts(Count() - 1, data,
                  {file.m_length, localOf(fileTimeOf(file.m_lastWrite)), file.m_lastWrite});
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate();
}

void FindResults::Clear() {
    for (int row = 0; row < Count(); ++row) delete reinterpret_cast<FindRow*>(m_list.GetItemData(row));
    m_list.DeleteAllItems();
    m_images.SetImageCount(0);
    m_typeNames.RemoveAll();
    m_imageOfExtension.clear();
}

void FindResults::SortBy(int column) {
    m_sort.Click(column);
    m_list.SortItems(&compareRows, reinterpret_cast<DWORD_PTR>(&m_sort));
}
