// What a search for files needs of a file system, and who hears of what it finds. Without any window.
// Private to the library; its tests link it by itself.
#pragma once

#include <memory>

#include <ktui/nav/find_search_request.h>

/// Goes through the entries that a pattern names, one listing at a time. What is found is there to be asked
/// about once Next has been called.
class FindListing {
public:
    virtual ~FindListing() = default;
    /// Begins to list what `pattern` (a folder and a mask) names, ending an earlier listing; false if nothing
    /// fits.
    virtual bool Begin(const CString& pattern) = 0;
    /// Goes to the next entry, and answers whether there is another behind it.
    virtual bool Next() = 0;
    virtual CString Name() const = 0;
    virtual bool IsFolder() const = 0;
    virtual bool IsHidden() const = 0;
    /// Whether it is the folder itself or the one above.
    virtual bool IsDots() const = 0;
    /// Whether it may stand for a folder or file at another place.
    virtual bool IsLink() const = 0;
    virtual unsigned long long Length() const = 0;  ///< in bytes
    virtual FindTime LastWrite() const = 0;
};

class FindFileSystem {
public:
    virtual ~FindFileSystem() = default;
    virtual std::unique_ptr<FindListing> List() const = 0;
    /// The drives that are there: bit 0 for A.
    virtual unsigned Drives() const = 0;
    /// A text that is the same for every way to name this folder. It may be another folder's, too, where that
    /// lies on another volume.
    virtual CString Identity(const CString& folder) const = 0;
};

class FindListener {
public:
    virtual ~FindListener() = default;
    /// A folder is being looked through.
    virtual void Status(const CString& folder) = 0;
    /// The entry that `found` stands at, in `folder`, is one that was looked for.
    virtual void File(const CString& folder, const FindListing& found) = 0;
    /// Whether the search was asked to stop.
    virtual bool IsStopped() const = 0;
};

/// Whether `folder` stands for all drives instead of for a place in the file system.
inline bool IsVirtualFolder(const CString& folder) { return folder.Find(L"::") >= 0; }

/// The root folder of a drive, 0 for A.
inline CString DriveFolder(unsigned drive) {
    CString folder;
    folder.Format(L"%c:\\", static_cast<wchar_t>(L'A' + drive));
    return folder;
}
