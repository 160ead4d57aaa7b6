// CDockState: the places of bars in a profile and in an archive.
#include <kmfc/dock_state.h>

#include <iterator>

#include <kmfc/archive.h>
#include <kmfc/exceptions.h>

IMPLEMENT_SERIAL(CDockState, CObject, 1)

namespace {

constexpr DWORD kVersion = 2;
constexpr DWORD kMostBars = 1000;  // more are no state of a frame
constexpr int kAbsent = INT_MIN;

/// The numbers of a bar, in the order in which an archive has them.
constexpr const wchar_t* kNames[] = {L"BarID",    L"Visible",   L"Floating", L"Horz",   L"XPos",  L"YPos",
                                     L"MRUWidth", L"DockBarID", L"Row",      L"Offset", L"OwnRow"};
constexpr size_t kCount = std::size(kNames);

void to_numbers(const CControlBarInfo& info, int (&numbers)[kCount]) {
    const int all[kCount] = {static_cast<int>(info.m_nBarID),
                             info.m_bVisible,
                             info.m_bFloating,
                             info.m_bHorz,
                             static_cast<int>(info.m_pointPos.x),
                             static_cast<int>(info.m_pointPos.y),
                             static_cast<int>(info.m_nMRUWidth),
                             static_cast<int>(info.m_nDockBarID),
                             info.m_nRow,
                             info.m_nOffset,
                             info.m_bOwnRow};
    std::copy(std::begin(all), std::end(all), numbers);
}

/// False, with `info` untouched, for numbers that no bar has.
bool from_numbers(const int (&numbers)[kCount], CControlBarInfo& info) {
    constexpr int kFar = 1'000'000;
    for (const int number : numbers)
        if (number < -kFar || number > kFar) return false;
    const auto& [id, visible, floating, horizontal, x, y, width, dockBar, row, offset, own] = numbers;
    if (id <= 0 || id > 0xFFFF || width <= 0 || dockBar < 0 || row < 0 || offset < 0) return false;
    info.m_nBarID = static_cast<UINT>(id);
    info.m_bVisible = visible != 0;
    info.m_bFloating = floating != 0;
    info.m_bHorz = horizontal != 0;
    info.m_pointPos = CPoint(x, y);
    info.m_nMRUWidth = static_cast<UINT>(width);
    info.m_nDockBarID = static_cast<UINT>(dockBar);
    info.m_nRow = row;
    info.m_nOffset = offset;
    info.m_bOwnRow = own != 0;
    return true;
}

CString section_of(LPCTSTR profile, int index) {
    CString section;
    section.Format(L"%s-Bar%d", profile, index);
    return section;
}

}  // namespace

BOOL CControlBarInfo::LoadState(LPCTSTR lpszProfileName, int nIndex) {
    const CString section = section_of(lpszProfileName, nIndex);
    int numbers[kCount];
    for (size_t i = 0; i < kCount; ++i)
        numbers[i] = static_cast<int>(AfxGetApp()->GetProfileInt(section, kNames[i], kAbsent));
    return from_numbers(numbers, *this);
}

BOOL CControlBarInfo::SaveState(LPCTSTR lpszProfileName, int nIndex) const {
    const CString section = section_of(lpszProfileName, nIndex);
    int numbers[kCount];
    to_numbers(*this, numbers);
    for (size_t i = 0; i < kCount; ++i)
        if (!AfxGetApp()->WriteProfileInt(section, kNames[i], numbers[i])) return FALSE;
    return TRUE;
}

void CControlBarInfo::Serialize(CArchive& ar) {
    int numbers[kCount];
    if (ar.IsStoring()) {
        to_numbers(*this, numbers);
        for (const int number : numbers) ar << number;
        return;
    }
    for (int& number : numbers) ar >> number;
    if (!from_numbers(numbers, *this)) AfxThrowArchiveException(CArchiveException::genericException);
}

CDockState::~CDockState() { Clear(); }

void CDockState::Clear() {
    for (INT_PTR i = 0; i < m_arrBarInfo.GetSize(); ++i)
        delete static_cast<CControlBarInfo*>(m_arrBarInfo[i]);
    m_arrBarInfo.RemoveAll();
}

void CDockState::LoadState(LPCTSTR lpszProfileName) {
    Clear();
    const CString summary = CString(lpszProfileName) + L"-Summary";
    CWinApp* const app = AfxGetApp();
    if (app->GetProfileInt(summary, L"Version", 0) != kVersion) return;
    const DWORD count = std::min<DWORD>(app->GetProfileInt(summary, L"Bars", 0), kMostBars);
    for (int i = 0; i < static_cast<int>(count); ++i) {
        auto info = std::make_unique<CControlBarInfo>();
        if (info->LoadState(lpszProfileName, i)) m_arrBarInfo.Add(info.release());
    }
}

void CDockState::SaveState(LPCTSTR lpszProfileName) const {
    const CString summary = CString(lpszProfileName) + L"-Summary";
    CWinApp* const app = AfxGetApp();
    const int former = static_cast<int>(std::min<DWORD>(app->GetProfileInt(summary, L"Bars", 0), kMostBars));
    const int count = static_cast<int>(m_arrBarInfo.GetSize());
    app->WriteProfileInt(summary, L"Version", kVersion);
    app->WriteProfileInt(summary, L"Bars", count);
    for (int i = 0; i < count; ++i)
        static_cast<const CControlBarInfo*>(m_arrBarInfo[i])->SaveState(lpszProfileName, i);
    // Bars that were there before and are no more.
    for (int i = count; i < former; ++i)
        app->WriteProfileString(section_of(lpszProfileName, i), nullptr, nullptr);
}

void CDockState::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring()) {
        ar << kVersion << static_cast<DWORD>(m_arrBarInfo.GetSize());
        for (INT_PTR i = 0; i < m_arrBarInfo.GetSize(); ++i)
            static_cast<CControlBarInfo*>(m_arrBarInfo[i])->Serialize(ar);
        return;
    }
    Clear();
    DWORD version = 0, count = 0;
    ar >> version >> count;
    if (version != kVersion || count > kMostBars) AfxThrowArchiveException(CArchiveException::badSchema);
    try {
        for (DWORD i = 0; i < count; ++i) {
            auto info = std::make_unique<CControlBarInfo>();
            info->Serialize(ar);
            m_arrBarInfo.Add(info.release());
        }
    } catch (...) {
        Clear();
        throw;
    }
}
