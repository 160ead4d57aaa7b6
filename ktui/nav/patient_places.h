// What the Places list asks of drives while it must not wait for them. Private to the library.
//
//     PatientPlaces places;
//     places.onIcon = [](unsigned request, HICON icon) { ... };
//     const unsigned request = places.AskIcon(path, 3000);
#pragma once

#include <functional>
#include <optional>

#include <ktui/nav/background_reader.h>

class PatientPlaces {
public:
    PatientPlaces();

    /// Hears of an icon asked for, which is the hearer's to destroy then. Not called where there is none or
    /// it was given up.
    std::function<void(unsigned request, HICON icon)> onIcon;
    /// Hears what GetFileAttributesW answered for a folder; nothing where it was given up.
    std::function<void(const CString& path, std::optional<DWORD> attributes)> onFolder;

    /// Has the large icon of the folder at `path` read within `limit` milliseconds, behind those asked for
    /// before; the number of the request, never 0.
    unsigned AskIcon(const CString& path, unsigned limit);
    /// The same for the attributes of a folder, in the place of one that was asked for before.
    void AskFolder(const CString& path, unsigned limit);
    /// Nothing more is told of what was asked for until now.
    void Forget();

private:
    unsigned m_lastRequest = 0;
    CBackgroundReader m_icons;
    CBackgroundReader m_folders;
};

/// The icon of a folder like any other, for the caller to destroy. No drive is asked.
HICON PlainFolderIcon();

/// Whether it is known within `limit` milliseconds if there is a folder at `path`. Meanwhile the thread's
/// windows answer what is sent to them, and nothing is dispatched.
bool FolderAnswers(const CString& path, unsigned limit);
