#include "linetypes/linetype_list.h"

#include "dash_pattern.h"
#include "resource.h"

namespace {

enum Column { kName, kSample, kDescription };
constexpr int kNameShare = 30, kSampleShare = 28;  // percent of the width
constexpr int kSampleMargin = 4;                   // pixels to the left and the right

bool beginsWith(const CString& text, const wchar_t* start) {
    return text.Left(static_cast<int>(wcslen(start))).CompareNoCase(start) == 0;
}

}  // namespace

IMPLEMENT_DYNAMIC(CLinetypeList, CListCtrl)

BEGIN_MESSAGE_MAP(CLinetypeList, CListCtrl)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, &CLinetypeList::OnGetDisplayInfo)
    ON_NOTIFY_REFLECT(LVN_ODFINDITEM, &CLinetypeList::OnFindItem)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CLinetypeList::OnCustomDraw)
END_MESSAGE_MAP()

bool CLinetypeList::TakeControl(UINT id, CWnd& dialog) {
    if (!SubclassDlgItem(id, &dialog)) return false;
    SetExtendedStyle(LVS_EX_FULLROWSELECT);
    CRect client;
    GetClientRect(&client);
    const int width = client.Width() - ::GetSystemMetrics(SM_CXVSCROLL);
    const int widths[] = {width * kNameShare / 100, width * kSampleShare / 100,
                          width * (100 - kNameShare - kSampleShare) / 100};
    const UINT titles[] = {IDS_LINETYPE_NAME, IDS_LINETYPE_SAMPLE, IDS_LINETYPE_DESCRIPTION};
    for (int column = kName; column <= kDescription; ++column) {
        CString title;
        title.LoadString(titles[column]);
        if (InsertColumn(column, title, LVCFMT_LEFT, widths[column]) != column) return false;
    }
    return true;
}

bool CLinetypeList::SetRows(std::vector<LinetypeRow> rows) {
    Select(-1);
    m_rows = std::move(rows);
    const int count = static_cast<int>(m_rows.size());
    const bool isListed = SetItemCountEx(count, 0) && GetItemCount() == count;
    Invalidate();
    return isListed;
}

void CLinetypeList::Select(int row) {
    SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    if (row < 0 || row >= GetItemCount()) return;
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    SetSelectionMark(row);
    EnsureVisible(row, FALSE);
}

std::vector<int> CLinetypeList::Selected() const {
    std::vector<int> rows;
    for (int row = GetNextItem(-1, LVNI_SELECTED); row >= 0; row = GetNextItem(row, LVNI_SELECTED))
        rows.push_back(row);
    return rows;
}

void CLinetypeList::OnGetDisplayInfo(NMHDR* header, LRESULT* result) {
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    *result = 0;
    if (!(item.mask & LVIF_TEXT) || item.cchTextMax <= 0) return;
    const auto row = static_cast<std::size_t>(item.iItem);
    CString text;
    if (row < m_rows.size() && item.iSubItem != kSample)
        text = item.iSubItem == kName ? m_rows[row].name : m_rows[row].description;
    wcsncpy(item.pszText, text, static_cast<std::size_t>(item.cchTextMax) - 1);
    item.pszText[item.cchTextMax - 1] = 0;
}

void CLinetypeList::OnFindItem(NMHDR* header, LRESULT* result) {
    const auto& wanted = *reinterpret_cast<NMLVFINDITEMW*>(header);
    *result = -1;
    if (!(wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || m_rows.empty()) return;
    const std::size_t count = m_rows.size();
    const std::size_t first = wanted.iStart > 0 ? static_cast<std::size_t>(wanted.iStart) : 0;
    const bool isWhole = !(wanted.lvfi.flags & LVFI_PARTIAL);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t row = (first + i) % count;
        if (row < first && !(wanted.lvfi.flags & LVFI_WRAP)) return;
        if (isWhole ? m_rows[row].name.CompareNoCase(wanted.lvfi.psz) != 0
                    : !beginsWith(m_rows[row].name, wanted.lvfi.psz))
            continue;
        *result = static_cast<LRESULT>(row);
        return;
    }
}

void CLinetypeList::OnCustomDraw(NMHDR* header, LRESULT* result) {
    const auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(header);
    *result = CDRF_DODEFAULT;
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) *result = CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) *result = CDRF_NOTIFYPOSTPAINT;
    if (draw.nmcd.dwDrawStage == CDDS_ITEMPOSTPAINT)
        drawSample(*CDC::FromHandle(draw.nmcd.hdc), static_cast<int>(draw.nmcd.dwItemSpec));
}

void CLinetypeList::drawSample(CDC& dc, int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= m_rows.size()) return;
    CRect cell;
    if (!GetSubItemRect(row, kSample, LVIR_BOUNDS, cell)) return;
    cell.DeflateRect(kSampleMargin, 1);
    const bool isSelected = GetItemState(row, LVIS_SELECTED) != 0;
    const bool hasFocus = CWnd::GetFocus() == this;
    // As the list paints its selected rows: dimmed without the focus.
    const int background = !isSelected ? COLOR_WINDOW : hasFocus ? COLOR_HIGHLIGHT : COLOR_BTNFACE;
    const int foreground = isSelected && hasFocus ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
    DrawLinetypeSample(dc, cell, m_rows[static_cast<std::size_t>(row)].dashes, ::GetSysColor(foreground),
                       ::GetSysColor(background));
}
