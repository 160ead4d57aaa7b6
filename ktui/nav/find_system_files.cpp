#include <ktui/nav/find_system_files.h>

#include <afxwin.h>

namespace {

constexpr FindTime kUnitsPerSecond = 10'000'000;       // of a FILETIME
constexpr FindTime kSecondsTo1970 = 11'644'473'600LL;  // from 1601

class SystemListing : public FindListing {
public:
    bool Begin(const CString& pattern) override { return m_finder.FindFile(pattern); }
    bool Next() override { return m_finder.FindNextFile(); }
    CString Name() const override { return m_finder.GetFileName(); }
    bool IsFolder() const override { return m_finder.MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    bool IsHidden() const override { return m_finder.MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    bool IsDots() const override { return m_finder.IsDots(); }
    bool IsLink() const override { return m_finder.MatchesMask(FILE_ATTRIBUTE_REPARSE_POINT); }
    unsigned long long Length() const override { return m_finder.GetLength(); }
    FindTime LastWrite() const override {
        FILETIME time = {};
        m_finder.GetLastWriteTime(&time);
        const auto units = static_cast<FindTime>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
        return units / kUnitsPerSecond - kSecondsTo1970;
    }

private:
    CFileFind m_finder;
};

/// Asks the system about one folder.
bool readNumbers(const CString& folder, BY_HANDLE_FILE_INFORMATION& numbers) {
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle =
        ::CreateFileW(folder, 0, kShared, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    const bool isRead = ::GetFileInformationByHandle(handle, &numbers);
    ::CloseHandle(handle);
    return isRead;
}

}  // namespace

std::unique_ptr<FindListing> FindSystemFiles::List() const { return std::make_unique<SystemListing>(); }

unsigned FindSystemFiles::Drives() const { return ::GetLogicalDrives(); }

CString FindSystemFiles::Identity(const CString& folder) const {
    BY_HANDLE_FILE_INFORMATION numbers = {};
    CString identity;
    if (!readNumbers(folder, numbers)) return CString(folder).MakeLower();
    identity.Format(L"%08x %08x%08x", numbers.dwVolumeSerialNumber, numbers.nFileIndexHigh,
                    numbers.nFileIndexLow);
    return identity;
}
