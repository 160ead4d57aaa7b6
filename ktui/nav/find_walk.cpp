#include <ktui/nav/find_walk.h>

namespace {

class Walk {
public:
    Walk(const FindFileSystem& files, FindListener& listener) : m_files(files), m_listener(listener) {}

    void Run(const FindSearchRequest& request) {
        for (INT_PTR at = 0; at < request.m_folders.GetSize(); ++at) {
            const CString& folder = request.m_folders[at];
            if (IsVirtualFolder(folder)) {
                goThroughDrives(request, at);
                return;  // Kept: folders behind a virtual one are not reached.
            }
            m_listener.Status(folder);
            // Kept: the stop is not looked at between patterns and folders.
            for (INT_PTR pattern = 0; pattern < request.m_patterns.GetSize(); ++pattern) {
                const std::unique_ptr<FindListing> listing = m_files.List();
                tellFiles(request, folder, request.m_patterns[pattern], *listing);
                if (request.m_includeSubfolders) descend(request, at, *listing);
            }
        }
    }

private:
    void goThroughDrives(const FindSearchRequest& request, INT_PTR at) {
        if (!request.m_includeSubfolders) return;
        unsigned drives = m_files.Drives();
        for (unsigned drive = 0; drives != 0; ++drive, drives >>= 1) {
            if ((drives & 1) == 0) continue;
            runIn(request, at, DriveFolder(drive));
            if (m_listener.IsStopped()) return;
        }
    }
    void tellFiles(const FindSearchRequest& request, const CString& folder, const CString& pattern,
                   FindListing& listing) {
        for (bool more = listing.Begin(folder + pattern); more;) {
            if (m_listener.IsStopped()) return;
            more = listing.Next();
            if (listing.IsFolder() || listing.IsHidden()) continue;
            if (request.HasDates() && !request.Includes(listing.LastWrite())) continue;
            m_listener.File(folder, listing);
        }
    }
    void descend(const FindSearchRequest& request, INT_PTR at, FindListing& listing) {
        const CString& folder = request.m_folders[at];
        for (bool more = listing.Begin(folder + L"*.*"); more;) {
            if (m_listener.IsStopped()) return;
            more = listing.Next();
            if (listing.IsFolder() && !listing.IsDots() && !listing.IsHidden())
                runIn(request, at, folder + listing.Name() + L"\\");
        }
    }
    /// Walks a copy of the request with another folder in the place of one.
    void runIn(const FindSearchRequest& request, INT_PTR at, const CString& folder) {
        FindSearchRequest copy(request);
        copy.m_folders[at] = folder;
        Run(copy);
    }

    const FindFileSystem& m_files;
    FindListener& m_listener;
};

}  // namespace

void WalkFolders(const FindSearchRequest& request, const FindFileSystem& files, FindListener& listener) {
    Walk(files, listener).Run(request);
}
