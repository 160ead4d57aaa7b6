// Which documents are open and in which groups, kept in the registry.
#include <algorithm>
#include <vector>

#include <kmfc/mdi_frame_ex.h>
#include <kmfc/settings_store.h>

namespace {

constexpr int kVersion = 1;
constexpr INT_PTR kMostDocuments = 1000;

/// The documents of one group by their names, in the order of their tabs.
struct Group {
    std::vector<CString> names;
    DWORD active = 0;
};

struct MdiState {
    std::vector<Group> groups;
    DWORD active = 0;     ///< the group of the active document
    bool beside = false;  ///< or one below the other
};

CString key_of(LPCTSTR profile) { return AFXGetRegPath(L"MDI", profile) + L"MDI"; }

/// Documents in the order in which they get their tabs; without tabs the one in front comes last.
std::vector<std::vector<CMDIChildWndEx*>> documents_of(CMDIFrameWndEx& frame) {
    std::vector<std::vector<CMDIChildWndEx*>> all;
    const auto take = [&all](const CMFCTabCtrl& strip) {
        all.emplace_back();
        for (int i = 0; i < strip.GetTabsNum(); ++i)
            if (auto* const child = DYNAMIC_DOWNCAST(CMDIChildWndEx, strip.GetTabWnd(i)))
                all.back().push_back(child);
    };
    int kind = 0;
    frame.AreMDITabs(&kind);
    if (kind == 2) {
        const CObList& strips = frame.GetMDITabGroups();
        for (POSITION at = strips.GetHeadPosition(); at != nullptr;)
            take(*static_cast<CMFCTabCtrl*>(strips.GetNext(at)));
    } else if (kind == 1) {
        take(frame.GetMDITabs());
    } else {
        all.emplace_back();
        for (HWND child = ::GetWindow(frame.m_hWndMDIClient, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            if (auto* const document = DYNAMIC_DOWNCAST(CMDIChildWndEx, CWnd::FromHandlePermanent(child)))
                all.back().insert(all.back().begin(), document);
    }
    return all;
}

/// Whether the first two strips stand side by side.
bool stands(const CObList& strips) {
    if (strips.GetCount() < 2) return true;
    CRect first, second;
    static_cast<CWnd*>(strips.GetAt(strips.FindIndex(0)))->GetWindowRect(&first);
    static_cast<CWnd*>(strips.GetAt(strips.FindIndex(1)))->GetWindowRect(&second);
    return second.left >= first.right;
}

CMDIChildWndEx* shown_in(CMDIFrameWndEx& frame, size_t group) {
    const CObList& strips = frame.GetMDITabGroups();
    const POSITION at = strips.FindIndex(static_cast<INT_PTR>(group));
    const auto* const strip = at != nullptr ? static_cast<CMFCTabCtrl*>(strips.GetAt(at)) : nullptr;
    return strip != nullptr ? DYNAMIC_DOWNCAST(CMDIChildWndEx, strip->GetActiveWnd()) : nullptr;
}

MdiState state_of(CMDIFrameWndEx& frame) {
    MdiState state;
    state.beside = stands(frame.GetMDITabGroups());
    const CWnd* const active = frame.MDIGetActive();
    const auto all = documents_of(frame);
    for (size_t i = 0; i < all.size(); ++i) {
        Group group;
        const CWnd* const shown = frame.IsMDITabbedGroup() ? shown_in(frame, i) : active;
        for (CMDIChildWndEx* const child : all[i]) {
            const CString name = child->GetDocumentName(nullptr);
            if (name.IsEmpty()) continue;
            if (child == shown) group.active = static_cast<DWORD>(group.names.size());
            if (child == active) state.active = static_cast<DWORD>(state.groups.size());
            group.names.push_back(name);
        }
        if (!group.names.empty()) state.groups.push_back(std::move(group));
    }
    return state;
}

BOOL write(CSettingsStore& store, const MdiState& state) {
    CStringArray names;
    CDWordArray counts, shown;
    for (const Group& group : state.groups) {
        counts.Add(static_cast<DWORD>(group.names.size()));
        shown.Add(group.active);
        for (const CString& name : group.names) names.Add(name);
    }
    return store.Write(L"Version", kVersion) && store.Write(L"Documents", names) &&
           store.Write(L"Groups", counts) && store.Write(L"Shown", shown) &&
           store.Write(L"Active", static_cast<int>(state.active)) &&
           store.Write(L"Beside", state.beside ? 1 : 0);
}

/// False for what isn't whole.
bool read(CSettingsStore& store, MdiState& state) {
    CStringArray names;
    CDWordArray counts, shown;
    int version = 0, active = 0, beside = 0;
    const bool isThere = store.Read(L"Version", version) && store.Read(L"Documents", names) &&
                         store.Read(L"Groups", counts) && store.Read(L"Shown", shown) &&
                         store.Read(L"Active", active) && store.Read(L"Beside", beside);
    if (!isThere || version != kVersion || names.GetSize() > kMostDocuments ||
        counts.GetSize() != shown.GetSize())
        return false;
    INT_PTR next = 0;
    for (INT_PTR i = 0; i < counts.GetSize(); ++i) {
        const DWORD count = counts[i];
        if (count > static_cast<DWORD>(names.GetSize() - next) || shown[i] >= count) return false;
        Group group;
        group.active = shown[i];
        for (DWORD each = 0; each < count; ++each) group.names.push_back(names[next++]);
        state.groups.push_back(std::move(group));
    }
    state.active = static_cast<DWORD>(active);
    state.beside = beside != 0;
    return next == names.GetSize() && (state.groups.empty() || state.active < state.groups.size());
}

}  // namespace

BOOL CMDIFrameWndEx::SaveMDIState(LPCTSTR lpszProfileName) {
    CSettingsStoreSP keeper;
    CSettingsStore& store = keeper.Create(FALSE, FALSE);
    return store.CreateKey(key_of(lpszProfileName)) && write(store, state_of(*this));
}

BOOL CMDIFrameWndEx::LoadMDIState(LPCTSTR lpszProfileName) {
    MdiState state;
    CSettingsStoreSP keeper;
    CSettingsStore& store = keeper.Create(FALSE, TRUE);
    if (!store.Open(key_of(lpszProfileName)) || !read(store, state)) return FALSE;
    std::vector<HWND> shown;
    HWND active = nullptr;
    for (size_t i = 0; i < state.groups.size(); ++i) {
        const Group& group = state.groups[i];
        bool isFirst = true;
        for (size_t each = 0; each < group.names.size(); ++each) {
            CMDIChildWndEx* const child = CreateDocumentWindow(group.names[each], nullptr);
            if (child == nullptr) continue;
            // A document opens in the group of the one that was opened before it.
            if (isFirst && !shown.empty()) MDITabNewGroup(state.beside);
            if (isFirst || each == group.active) {
                if (isFirst) shown.push_back(nullptr);
                shown.back() = child->m_hWnd;
                if (i == state.active) active = child->m_hWnd;
            }
            isFirst = false;
        }
    }
    if (active != nullptr) shown.push_back(active);
    for (const HWND each : shown)
        if (auto* const child = DYNAMIC_DOWNCAST(CMDIChildWndEx, CWnd::FromHandlePermanent(each)))
            child->MDIActivate();
    return TRUE;
}

CMDIChildWndEx* CMDIFrameWndEx::CreateDocumentWindow(LPCTSTR lpcszDocName, CObject*) {
    const CString name = lpcszDocName;
    CWinApp* const app = AfxGetApp();
    if (name.IsEmpty() || app == nullptr || ::GetFileAttributesW(name) == INVALID_FILE_ATTRIBUTES)
        return nullptr;
    CDocument* const document = app->OpenDocumentFile(name);
    POSITION first = document != nullptr ? document->GetFirstViewPosition() : nullptr;
    const CView* const view = first != nullptr ? document->GetNextView(first) : nullptr;
    return view != nullptr ? DYNAMIC_DOWNCAST(CMDIChildWndEx, view->GetParentFrame()) : nullptr;
}

LPCTSTR CMDIChildWndEx::GetDocumentName(CObject** pObj) {
    if (pObj != nullptr) *pObj = nullptr;
    CDocument* const document = GetActiveDocument();
    m_documentName = document != nullptr ? document->GetPathName() : CString();
    return m_documentName;
}
