#include <ktui/nav/find_once_walk.h>

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

#include <ktui/nav/find_mask.h>

namespace {

class OnceWalk {
public:
    OnceWalk(const FindSearchRequest& request, const FindFileSystem& files, FindListener& listener)
        : m_request(request), m_files(files), m_listener(listener), m_listing(files.List()) {
        for (INT_PTR i = 0; i < request.m_patterns.GetSize(); ++i)
            m_masks.emplace_back(request.m_patterns[i]);
    }

    void Run() {
        for (INT_PTR i = 0; i < m_request.m_folders.GetSize(); ++i)
            if (IsVirtualFolder(m_request.m_folders[i]))
                goThroughDrives();
            else
                goThrough(m_request.m_folders[i], false);
        // Last, so that a folder is met at its own place first. More may be found on the way.
        for (size_t i = 0; i < m_links.size(); ++i) goThrough(CString(m_links[i]), true);
    }

private:
    void goThroughDrives() {
        const unsigned drives = m_request.m_includeSubfolders ? m_files.Drives() : 0;
        for (unsigned drive = 0; drives >> drive != 0; ++drive)
            if (drives >> drive & 1) goThrough(DriveFolder(drive), false);
    }
    /// Visits a folder and, with subfolders, what lies below it. The ones still to be visited are kept in a
    /// list, since a tree may be deeper than a stack. Below a link each folder may have been there already,
    /// by another path.
    void goThrough(const CString& start, bool isLink) {
        if (!isLink && !isNewStart(start)) return;
        std::vector<CString> waiting{start};
        while (!waiting.empty() && !m_listener.IsStopped()) {
            const CString folder = waiting.back();
            waiting.pop_back();
            if (!isNew(folder, isLink)) continue;
            m_listener.Status(folder);
            const auto first = static_cast<std::ptrdiff_t>(waiting.size());
            visit(folder, waiting);
            std::reverse(waiting.begin() + first, waiting.end());
        }
    }
    /// Whether no other start is the same folder by another path.
    bool isNewStart(const CString& start) {
        return m_request.m_folders.GetSize() == 1 || m_starts.emplace(identityOf(start)).second;
    }
    bool isNew(const CString& folder, bool mayBeKnown) {
        if (!m_paths.emplace(CString(folder).MakeLower().GetString()).second) return false;
        if (mayBeKnown && isKnown(folder)) return false;
        m_visited.push_back(folder);
        return true;
    }
    /// Whether the folder was visited by another path. To ask the system for identities takes as long as to
    /// list a small folder, so they are asked for when a link is met.
    bool isKnown(const CString& folder) {
        for (; m_identified < m_visited.size(); ++m_identified)
            m_identities.emplace(identityOf(m_visited[m_identified]));
        return m_identities.count(identityOf(folder)) > 0;
    }
    std::wstring identityOf(const CString& folder) const { return m_files.Identity(folder).GetString(); }
    void visit(const CString& folder, std::vector<CString>& subfolders) {
        for (bool more = m_listing->Begin(folder + L"*.*"); more && !m_listener.IsStopped();) {
            more = m_listing->Next();
            if (m_listing->IsHidden()) continue;
            if (!m_listing->IsFolder()) {
                tellFile(folder);
            } else if (m_request.m_includeSubfolders && !m_listing->IsDots()) {
                const CString path = folder + m_listing->Name() + L"\\";
                (m_listing->IsLink() ? m_links : subfolders).push_back(path);
            }
        }
    }
    void tellFile(const CString& folder) {
        if (m_request.HasDates() && !m_request.Includes(m_listing->LastWrite())) return;
        const CString name = m_listing->Name();
        if (std::any_of(m_masks.begin(), m_masks.end(),
                        [&](const FindMask& mask) { return mask.Matches(name); }))
            m_listener.File(folder, *m_listing);
    }

    const FindSearchRequest& m_request;
    const FindFileSystem& m_files;
    FindListener& m_listener;
    std::unique_ptr<FindListing> m_listing;
    std::vector<FindMask> m_masks;
    std::vector<CString> m_links;  ///< folders that were met as links
    std::vector<CString> m_visited;
    size_t m_identified = 0;  ///< how many of the visited ones m_identities tells of
    std::unordered_set<std::wstring> m_paths, m_identities, m_starts;
};

}  // namespace

void WalkFoldersOnce(const FindSearchRequest& request, const FindFileSystem& files, FindListener& listener) {
    OnceWalk(request, files, listener).Run();
}
