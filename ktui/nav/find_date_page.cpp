#include <ktui/nav/find_date_page.h>

#include <afxdisp.h>

#include <ktdsres/find_file_ids.h>
#include <ktui/nav/find_local_time.h>

BEGIN_MESSAGE_MAP(CDlgFindPage2, FindPage)
    ON_COMMAND_RANGE(IDC_FIND_ANY_DATE, IDC_FIND_BY_DATE, &CDlgFindPage2::OnFilter)
    ON_COMMAND_RANGE(IDC_FIND_BETWEEN, IDC_FIND_DAYS, &CDlgFindPage2::OnRange)
END_MESSAGE_MAP()

namespace {

constexpr FindTime kNinetyDays = 7776000;  // seconds
constexpr int kMostUnits = 999;

FindTime now() { return CTime::GetCurrentTime().GetTime(); }

CalendarTime calendarOf(const CTime& time) {
    return {time.GetYear(), time.GetMonth(),  time.GetDay(),
            time.GetHour(), time.GetMinute(), time.GetSecond()};
}

/// Throws COleException: E_FAIL for a field out of its range, E_INVALIDARG for a time that can't be told.
FindTime timeOf(const CalendarTime& fields) {
    if (!IsInRange(fields)) AfxThrowOleException(E_FAIL);
    const FindTime time = SecondsOfLocal(fields);
    if (time == -1) AfxThrowOleException(E_INVALIDARG);
    return time;
}

}  // namespace

BOOL CDlgFindPage2::OnInitDialog() {
    FindPage::OnInitDialog();
    for (const int spin : {IDC_FIND_MONTH_SPIN, IDC_FIND_DAY_SPIN})
        static_cast<CSpinButtonCtrl*>(GetDlgItem(spin))->SetRange32(1, kMostUnits);
    CheckDlgButton(IDC_FIND_BETWEEN, BST_CHECKED);
    Reset();
    addTip(IDC_FIND_ANY_DATE, IDS_FIND_ANY_DATE_TIP, L"不使用日期过滤器进行搜索。");
    addTip(IDC_FIND_BY_DATE, IDS_FIND_BY_DATE_TIP, L"将搜索限制在指定时间范围内创建或修改的文件中。");
    return TRUE;
}

void CDlgFindPage2::Reset() {
    SetDlgItemInt(IDC_FIND_DAY_COUNT, 1);
    SetDlgItemInt(IDC_FIND_MONTH_COUNT, 1);
    const FindTime time = now();
    setPickedTime(IDC_FIND_FROM_DATE, time - kNinetyDays);
    setPickedTime(IDC_FIND_TO_DATE, time);
    CheckDlgButton(IDC_FIND_ANY_DATE, BST_CHECKED);
    CheckDlgButton(IDC_FIND_BY_DATE, BST_UNCHECKED);
    enableFields();
}

bool CDlgFindPage2::IsFiltering() const { return !isChecked(IDC_FIND_ANY_DATE); }

FindTime CDlgFindPage2::pickedTime(int id) const {
    CTime time;
    static_cast<CDateTimeCtrl*>(GetDlgItem(id))->GetTime(time);
    return time.GetTime();
}

void CDlgFindPage2::setPickedTime(int id, FindTime time) {
    const CTime picked(time);
    static_cast<CDateTimeCtrl*>(GetDlgItem(id))->SetTime(&picked);
}

int CDlgFindPage2::count(int id) const { return static_cast<int>(GetDlgItemInt(id)); }

void CDlgFindPage2::GetRange(FindTime& from, FindTime& to) const {
    if (isChecked(IDC_FIND_BETWEEN)) {
        from = pickedTime(IDC_FIND_FROM_DATE);
        to = pickedTime(IDC_FIND_TO_DATE);
        return;
    }
    to = now();
    from = isChecked(IDC_FIND_MONTHS)
               ? timeOf(MonthsBefore(calendarOf(CTime(to)), count(IDC_FIND_MONTH_COUNT)))
               : DaysBefore(to, count(IDC_FIND_DAY_COUNT));
}

void CDlgFindPage2::OnFilter(UINT) { enableFields(); }

void CDlgFindPage2::OnRange(UINT) {
    CheckDlgButton(IDC_FIND_BY_DATE, BST_CHECKED);
    CheckDlgButton(IDC_FIND_ANY_DATE, BST_UNCHECKED);
    enableFields();
}

void CDlgFindPage2::enableFields() {
    const bool isOff = !IsFiltering();
    const bool between = !isOff && isChecked(IDC_FIND_BETWEEN);
    const bool months = !isOff && !between && isChecked(IDC_FIND_MONTHS);
    const auto enable = [this](int id, bool on) { GetDlgItem(id)->EnableWindow(on); };
    enable(IDC_FIND_FROM_DATE, between);
    enable(IDC_FIND_TO_DATE, between);
    enable(IDC_FIND_MONTH_COUNT, months);
    enable(IDC_FIND_DAY_COUNT, !isOff && !between && !months);
    for (const int spin : {IDC_FIND_MONTH_SPIN, IDC_FIND_DAY_SPIN}) GetDlgItem(spin)->Invalidate();
}
