#include <ktui/docking/ktui_palette_layouts.h>

#include <commctrl.h>

#include <optional>

#include <ktui/docking/frame_layout_access.h>
#include <ktui/docking/layout_file.h>
#include <ktui/docking/layout_merge.h>
#include <ktui/docking/layout_problem.h>
#include <ktui/docking/layout_store.h>
#include <ktui/docking/layout_xml.h>
#include <ktui/docking/reachable_frames.h>

using namespace layouts;

static_assert(CKtUiPaletteLayouts::kLongestName == layouts::kLongestName);

struct CKtUiPaletteLayouts::Data {
    CFrameWnd* frame = nullptr;
    CDockingManager* manager = nullptr;
    std::optional<LayoutStore> store;
    std::optional<Record> builtIn;
    std::optional<Record> applied;  ///< as it was applied, with the panes that weren't there
    bool keepsReachable = false;
    CString problem;

    void reach() const {
        if (keepsReachable) KeepReachable(*frame, *manager);
    }
    BOOL succeed() {
        problem.Empty();
        return TRUE;
    }
    BOOL fail(const CString& text) {
        problem = text;
        return FALSE;
    }
    BOOL fail(Problem what, const CString& first = CString()) { return fail(TextOf(what, first)); }

    bool capture(Record& record);
    BOOL applyRecord(const Record& record);
    BOOL applyWhole(const Record& record);
    BOOL readStored(const CString& name, NamedRecord& layout);
    bool validName(const wchar_t* name, CString& trimmed) {
        trimmed = TrimmedName(name);
        return IsName(trimmed);
    }
};

namespace {

constexpr UINT_PTR kFrameWatch = 0x4B4C;  // what the object adds to the frame's window procedure

/// Whether windows may have to be looked for after a message.
bool bringsOthersOutOfReach(UINT message) {
    return message == WM_DISPLAYCHANGE || message == WM_SETTINGCHANGE || message == WM_DPICHANGED ||
           message == WM_IDLEUPDATECMDUI;
}

std::set<unsigned> idsOf(const Record& record) {
    std::set<unsigned> ids;
    for (const Pane& pane : record.panes) ids.insert(pane.id);
    return ids;
}

std::set<unsigned> without(std::set<unsigned> ids, const std::set<unsigned>& others) {
    for (const unsigned id : others) ids.erase(id);
    return ids;
}

/// Whether a record keeps every rule of a file.
bool isSound(const Record& record, Fault& fault) {
    std::vector<NamedRecord> read;
    return FromElement(ToElement({{L"x", record}}), read, fault);
}

}  // namespace

/// The present layout, and the places that the applied one has for panes that aren't there.
bool CKtUiPaletteLayouts::Data::capture(Record& record) {
    if (!Capture(*manager, record)) return false;
    if (applied) Bring(*applied, without(PlacedPanes(*applied), idsOf(record)), record);
    return true;
}

/// Puts a record of just the panes that are there into force.
BOOL CKtUiPaletteLayouts::Data::applyWhole(const Record& record) {
    Fault fault;
    if (!isSound(record, fault)) return fail(TextOf(fault));
    return Restore(*manager, record) ? succeed() : fail(Problem::refused);
}

BOOL CKtUiPaletteLayouts::Data::applyRecord(const Record& record) {
    Record present;
    if (manager == nullptr) return fail(Problem::notAttached);
    if (!Capture(*manager, present)) return fail(Problem::refused);
    Record whole = record;
    Remove(whole, without(idsOf(record), idsOf(present)));
    const std::set<unsigned> unknown = without(idsOf(present), idsOf(record));
    for (const Pane& pane : present.panes)
        if (unknown.count(pane.id) != 0) whole.panes.push_back(pane);
    Bring(present, unknown, whole);
    if (!applyWhole(whole)) return FALSE;
    applied = record;
    reach();
    return TRUE;
}

BOOL CKtUiPaletteLayouts::Data::readStored(const CString& name, NamedRecord& layout) {
    const CString stored = store->storedName(name);
    if (stored.IsEmpty()) return fail(Problem::unknownLayout, name);
    Element root;
    CString told;
    if (!ElementOfText(store->text(stored), root, told)) return fail(told);
    std::vector<NamedRecord> read;
    Fault fault;
    if (!FromElement(root, read, fault)) return fail(TextOf(fault));
    layout = {stored, std::move(read.front().record)};
    return TRUE;
}

LRESULT CALLBACK CKtUiPaletteLayouts::HearFrame(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                                UINT_PTR, DWORD_PTR object) {
    auto* const layouts = reinterpret_cast<CKtUiPaletteLayouts*>(object);
    // The handler may end the object.
    const std::shared_ptr<Data> data = layouts->m_data;
    if (message == WM_NCDESTROY) layouts->Detach();
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (bringsOthersOutOfReach(message)) data->reach();
    return result;
}

CKtUiPaletteLayouts::CKtUiPaletteLayouts() : m_data(std::make_shared<Data>()) {}

CKtUiPaletteLayouts::~CKtUiPaletteLayouts() { Detach(); }

BOOL CKtUiPaletteLayouts::attach(CFrameWnd* frame, CDockingManager* manager, const wchar_t* storeName) {
    Detach();
    if (frame->GetSafeHwnd() == nullptr || storeName == nullptr) return m_data->fail(Problem::notAttached);
    m_data->frame = frame;
    m_data->manager = manager;
    m_data->store.emplace(storeName);
    ::SetWindowSubclass(frame->m_hWnd, HearFrame, kFrameWatch, reinterpret_cast<DWORD_PTR>(this));
    return m_data->succeed();
}

BOOL CKtUiPaletteLayouts::Attach(CMDIFrameWndEx& frame, const wchar_t* storeName) {
    return attach(&frame, frame.GetDockingManager(), storeName);
}
BOOL CKtUiPaletteLayouts::Attach(CFrameWndEx& frame, const wchar_t* storeName) {
    return attach(&frame, frame.GetDockingManager(), storeName);
}

void CKtUiPaletteLayouts::Detach() {
    if (m_data->frame != nullptr && m_data->frame->m_hWnd != nullptr)
        ::RemoveWindowSubclass(m_data->frame->m_hWnd, HearFrame, kFrameWatch);
    *m_data = {};
}

BOOL CKtUiPaletteLayouts::IsAttached() const { return m_data->frame != nullptr; }

BOOL CKtUiPaletteLayouts::KeepBuiltIn() {
    Record record;
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    if (!m_data->capture(record)) return m_data->fail(Problem::refused);
    m_data->builtIn = std::move(record);
    return m_data->succeed();
}

BOOL CKtUiPaletteLayouts::Reset() {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    if (!m_data->builtIn) return m_data->fail(Problem::noBuiltIn);
    return m_data->applyRecord(Record(*m_data->builtIn));
}

BOOL CKtUiPaletteLayouts::Save(const wchar_t* name) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    NamedRecord layout;
    if (!m_data->validName(name, layout.name)) return m_data->fail(Problem::badName);
    if (!m_data->capture(layout.record)) return m_data->fail(Problem::refused);
    Fault fault;
    if (!isSound(layout.record, fault)) return m_data->fail(TextOf(fault));
    CString text;
    const CString former = m_data->store->storedName(layout.name);
    if (!TextOfElement(ToElement({layout}), text) || !m_data->store->put(layout.name, text, former))
        return m_data->fail(Problem::notStored);
    return m_data->succeed();
}

BOOL CKtUiPaletteLayouts::Apply(const wchar_t* name) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    NamedRecord layout;
    return m_data->readStored(TrimmedName(name), layout) && m_data->applyRecord(layout.record);
}

BOOL CKtUiPaletteLayouts::Rename(const wchar_t* name, const wchar_t* newName) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    CString wanted;
    const CString former = m_data->store->storedName(TrimmedName(name));
    if (former.IsEmpty()) return m_data->fail(Problem::unknownLayout, name);
    if (!m_data->validName(newName, wanted)) return m_data->fail(Problem::badName);
    const CString taken = m_data->store->storedName(wanted);
    if (!taken.IsEmpty() && taken != former) return m_data->fail(Problem::nameTaken, taken);
    return m_data->store->put(wanted, m_data->store->text(former), former) ? m_data->succeed()
                                                                           : m_data->fail(Problem::notStored);
}

BOOL CKtUiPaletteLayouts::Delete(const wchar_t* name) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    const CString stored = m_data->store->storedName(TrimmedName(name));
    if (stored.IsEmpty()) return m_data->fail(Problem::unknownLayout, name);
    return m_data->store->remove(stored) ? m_data->succeed() : m_data->fail(Problem::notStored);
}

void CKtUiPaletteLayouts::GetNames(CStringArray& names) const {
    names.RemoveAll();
    if (!IsAttached()) return;
    for (const CString& name : m_data->store->names()) names.Add(name);
}

BOOL CKtUiPaletteLayouts::Has(const wchar_t* name) const {
    return IsAttached() && !m_data->store->storedName(TrimmedName(name)).IsEmpty();
}

BOOL CKtUiPaletteLayouts::Export(const wchar_t* path, const wchar_t* name) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    std::vector<NamedRecord> layouts;
    for (const CString& each :
         name != nullptr ? std::vector<CString>{TrimmedName(name)} : m_data->store->names()) {
        NamedRecord layout;
        if (!m_data->readStored(each, layout)) return FALSE;
        layouts.push_back(std::move(layout));
    }
    if (layouts.empty()) return m_data->fail(Problem::unknownLayout);
    CString told;
    return WriteElement(path, ToElement(layouts), told) ? m_data->succeed() : m_data->fail(told);
}

BOOL CKtUiPaletteLayouts::Import(const wchar_t* path, CStringArray* names) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    Element root;
    CString told;
    if (!ReadElement(path, root, told)) return m_data->fail(told);
    std::vector<NamedRecord> layouts;
    Fault fault;
    if (!FromElement(root, layouts, fault)) return m_data->fail(TextOf(fault));
    for (const NamedRecord& layout : layouts) {
        CString text;
        if (!TextOfElement(ToElement({layout}), text) ||
            !m_data->store->put(layout.name, text, m_data->store->storedName(layout.name)))
            return m_data->fail(Problem::notStored);
        if (names != nullptr) names->Add(layout.name);
    }
    return m_data->succeed();
}

BOOL CKtUiPaletteLayouts::PlacePane(CDockablePane& pane) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    const auto id = static_cast<unsigned>(pane.GetSafeHwnd() != nullptr ? pane.GetDlgCtrlID() : 0);
    Record present;
    if (!m_data->applied || PlacedPanes(*m_data->applied).count(id) == 0)
        return m_data->fail(Problem::noPlace);
    m_data->manager->AddPane(&pane);
    if (!Capture(*m_data->manager, present)) return m_data->fail(Problem::refused);
    if (PlacedPanes(present).count(id) != 0) return m_data->fail(Problem::noPlace);
    std::erase_if(present.panes, [&](const Pane& known) { return known.id == id; });
    Bring(*m_data->applied, {id}, present);
    return m_data->applyWhole(present);
}

BOOL CKtUiPaletteLayouts::SetKeepReachable(BOOL keep) {
    if (!IsAttached()) return m_data->fail(Problem::notAttached);
    m_data->keepsReachable = keep != FALSE;
    m_data->reach();
    return m_data->succeed();
}

BOOL CKtUiPaletteLayouts::KeepsReachable() const { return m_data->keepsReachable; }

const CString& CKtUiPaletteLayouts::GetProblem() const { return m_data->problem; }
