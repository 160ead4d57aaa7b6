#include <ktui/nav/patient_places.h>

#include <shellapi.h>

#include <string>
#include <utility>

#include <ktui/nav/place_shell.h>

namespace {

class IconReading : public BackgroundReading {
public:
    IconReading(const CString& path, unsigned request) : m_path(path), m_request(request) {}
    ~IconReading() override {
        if (m_icon != nullptr) ::DestroyIcon(m_icon);
    }
    void Read() override { m_icon = PlaceIcon(m_path.c_str()); }

    unsigned Request() const { return m_request; }
    HICON TakeIcon() { return std::exchange(m_icon, nullptr); }

private:
    std::wstring m_path;
    unsigned m_request;
    HICON m_icon = nullptr;
};

class FolderReading : public BackgroundReading {
public:
    explicit FolderReading(const CString& path) : m_path(path) {}
    void Read() override { m_attributes = ::GetFileAttributesW(m_path.c_str()); }

    const std::wstring& Path() const { return m_path; }
    DWORD Attributes() const { return m_attributes; }

private:
    std::wstring m_path;
    DWORD m_attributes = INVALID_FILE_ATTRIBUTES;
};

}  // namespace

PatientPlaces::PatientPlaces()
    : m_icons([this](BackgroundReading& reading, ReadingEvent event) {
          if (event != ReadingEvent::kAnswered) return;
          auto& read = static_cast<IconReading&>(reading);
          if (const HICON icon = read.TakeIcon()) onIcon(read.Request(), icon);
      }),
      m_folders([this](BackgroundReading& reading, ReadingEvent event) {
          if (event == ReadingEvent::kIsSlow) return;
          const auto& read = static_cast<FolderReading&>(reading);
          // Copied, because going to the folder may end this object.
          const auto told = onFolder;
          told(read.Path().c_str(),
               event == ReadingEvent::kAnswered ? std::optional(read.Attributes()) : std::nullopt);
      }) {}

unsigned PatientPlaces::AskIcon(const CString& path, unsigned limit) {
    m_icons.Ask(std::make_shared<IconReading>(path, ++m_lastRequest), limit);
    return m_lastRequest;
}

void PatientPlaces::AskFolder(const CString& path, unsigned limit) {
    m_folders.Forget();
    m_folders.Ask(std::make_shared<FolderReading>(path), limit);
}

void PatientPlaces::Forget() {
    m_icons.Forget();
    m_folders.Forget();
}

HICON PlainFolderIcon() {
    SHFILEINFOW info = {};
    ::SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info,
                     SHGFI_ICON | SHGFI_USEFILEATTRIBUTES);
    return info.hIcon;
}

bool FolderAnswers(const CString& path, unsigned limit) {
    std::optional<bool> hasAnswered;
    CBackgroundReader reader([&hasAnswered](BackgroundReading&, ReadingEvent event) {
        if (event != ReadingEvent::kIsSlow) hasAnswered = event == ReadingEvent::kAnswered;
    });
    reader.Ask(std::make_shared<FolderReading>(path), limit);
    MSG message = {};
    while (!hasAnswered && reader.m_hWnd != nullptr) {
        if (::GetMessageW(&message, reader.m_hWnd, 0, 0) <= 0) {
            // For whoever is to end.
            ::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        ::DispatchMessageW(&message);
    }
    return hasAnswered.value_or(true);
}
