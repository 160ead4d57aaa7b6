#include <ktui/pickers/line_type_combo_box.h>

#include <ktui/pickers/viewport_override.h>

#include <kh_system.h>
#include <ktut.h>
#include <od_db_linetype_table.h>
#include <ktui/host/appearance.h>
#include <ktui/pickers/working_drawing.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int kSampleMarginX = 3;  // pixels at the left and at the right
constexpr int kSampleMarginY = 1;  // pixels at the top and at the bottom
constexpr int kDialogMode = 1;
constexpr COLORREF kSampleInk = 0;
constexpr COLORREF kSamplePaper = 0xFFFFFF;

/// A record of linetype `id`; null if the linetype can't be opened or came with an external reference.
CKtUiLTypeRecord* makeRecord(const OdDbObjectId& id) {
    const OdDbLinetypeTableRecordPtr linetype = id.open<OdDbLinetypeTableRecord>();
    OdString name;
    if (!linetype || linetype->isDependent() || linetype->getName(name) != kOdOk) return nullptr;
    // Kept: the name ends at a terminator within it.
    return new CKtUiLTypeRecord(name.c_str(), id);
}

/// The view of the current document, else that of the host; null if there is neither.
CKhDrawingView* currentView() {
    CKhDocumentServices* documents = CKhSystem::instance()->documentServices();
    KtApDocument* document = documents->currentDocument();
    CKhDrawingView* view = document ? document->drawingView() : nullptr;
    return view ? view : documents->drawingView();
}

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiLineTypeComboBox, CKtUiMRUComboBox)

CKtUiLineTypeComboBox::CKtUiLineTypeComboBox() { m_mruFlags |= kUseOption1 | kUseOption2 | kUseOther1; }

CKtUiLineTypeComboBox::~CKtUiLineTypeComboBox() { emptyLTypeLocalList(); }

bool CKtUiLineTypeComboBox::GetCurrentLayerLineType(OdDbObjectId&) { return false; }

int CKtUiLineTypeComboBox::GetCurrentLayerVpOverride() { return 0; }

void CKtUiLineTypeComboBox::ShowLTypes(bool force) {
    if (force) m_ltLocalMapDB = nullptr;
    if (m_ltLocalMapDB) return;
    ResetContent();
    OnAddItems();
}

void CKtUiLineTypeComboBox::LoadContentsFromDatabase() {
    if (m_ltLocalMapDB && !m_dbReload) return;
    emptyLTypeLocalList();
    m_ltLocalMapDB = WorkingDrawing();
    OdDbLinetypeTablePtr table;
    if (!m_ltLocalMapDB || m_ltLocalMapDB->getLinetypeTable(table) != kOdOk) return;
    std::vector<OdDbObjectId> ids;
    for (auto each = table->newIterator(); !each->done(); each->step()) {
        OdDbObjectId id;
        if (each->getRecordId(id) == kOdOk) ids.push_back(id);
    }
    keepInOrder(ids, table->getLinetypeByLayerId(), table->getLinetypeByBlockId());
    m_dbReload = false;
}

void CKtUiLineTypeComboBox::keepInOrder(const std::vector<OdDbObjectId>& ids, const OdDbObjectId& byLayer,
                                        const OdDbObjectId& byBlock) {
    CKtUiLTypeRecord* byBlockRecord = nullptr;
    std::vector<CKtUiLTypeRecord*> others;
    for (const OdDbObjectId& id : ids) {
        CKtUiLTypeRecord* record = makeRecord(id);
        if (!record) continue;
        if (id == byLayer)
            m_byLayerRecord = record;
        else if (id == byBlock)
            byBlockRecord = record;
        else
            others.push_back(record);
    }
    std::sort(others.begin(), others.end(), [](const CKtUiLTypeRecord* a, const CKtUiLTypeRecord* b) {
        return ktutCompareString(a->m_name, b->m_name) == 1;
    });
    for (CKtUiLTypeRecord* record : others) m_ltypeList.AddTail(record);
    if (byBlockRecord) m_ltypeList.AddHead(byBlockRecord);
    if (m_byLayerRecord) m_ltypeList.AddHead(m_byLayerRecord);
}

void CKtUiLineTypeComboBox::emptyLTypeLocalList() {
    m_byLayerRecord = nullptr;
    for (POSITION at = m_ltypeList.GetHeadPosition(); at;) delete m_ltypeList.GetNext(at);
    m_ltypeList.RemoveAll();
}

void CKtUiLineTypeComboBox::AddItems() { OnAddItems(); }

void CKtUiLineTypeComboBox::OnComboBoxInit() {
    RecalcHeight();
    OnAddItems();
}

void CKtUiLineTypeComboBox::OnAddItems() {
    LoadContentsFromDatabase();
    for (POSITION at = m_ltypeList.GetHeadPosition(); at;) {
        const auto* record = static_cast<CKtUiLTypeRecord*>(m_ltypeList.GetNext(at));
        const int item = AddString(record->m_name);
        if (item >= 0) SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(item), record->cargo());
    }
}

int CKtUiLineTypeComboBox::FindItemByCargo(OdDbObjectId id) {
    const int count = GetCount();
    for (int index = 0; index < count; ++index) {
        const __int64 cargo = GetItemCargo(index);
        const CKtUiLTypeRecord* record = CKtUiLTypeRecord::fromCargo(cargo);
        if (record ? record->m_id == id : cargo == 0 && id.isNull()) return index;
    }
    return -1;
}

int CKtUiLineTypeComboBox::AddLTypeToControl(CKtUiLTypeRecord* record) {
    // Kept: the known item stays behind the new one.
    return InsertItemInList(FindItemByCargo(record->m_id), record->m_name, record->cargo());
}

CKtUiLTypeRecord* CKtUiLineTypeComboBox::CreateLTRecord(CString& name, OdDbObjectId& id) {
    OdDbLinetypeTablePtr table;
    const bool isOpen = m_ltLocalMapDB && m_ltLocalMapDB->getLinetypeTable(table) == kOdOk;
    if (isOpen && table->has(id)) {
        if (CKtUiLTypeRecord* known = CKtUiLTypeRecord::fromCargo(GetItemCargo(FindItemByCargo(id)))) {
            name = known->m_name;
            return known;
        }
    }
    return new CKtUiLTypeRecord(name, id);
}

OdDbObjectId CKtUiLineTypeComboBox::getOIDCurSel() { return getOIDSel(GetCurSel()); }

OdDbObjectId CKtUiLineTypeComboBox::getOIDSel(int index) {
    const CKtUiLTypeRecord* record = CKtUiLTypeRecord::fromCargo(GetItemCargo(index));
    return record ? record->m_id : OdDbObjectId();
}

void CKtUiLineTypeComboBox::setCurSelByOID(const OdDbObjectId& id) {
    const int index = FindItemByCargo(id);
    SetCurSel(index < 0 ? m_lastSelection : index);
    if (index >= 0) m_lastSelection = index;
}

bool CKtUiLineTypeComboBox::isOtherSelected() {
    CString current;
    CKtUiMRUComboBox::GetLBString(GetCurSel(), current);
    CString other;
    GetOtherName(0, other);
    return current.Compare(other) == 0;
}

void CKtUiLineTypeComboBox::forceSelectOther(int which) {
    if (isOtherSelected())
        ShowDropDown(FALSE);
    else
        SelectOther(which);
}

int CKtUiLineTypeComboBox::OnSelectOther(int, int lastSel, int& newIndex) {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    if (!host) return 0;
    OdDbObjectId chosen = OdDbObjectId::kNull;
    host->showLinetypeDialog(getOIDSel(lastSel), chosen, kDialogMode);
    ShowLTypes(true);
    newIndex = FindItemByCargo(chosen);
    // Kept: a cancel counts as accepted and keeps the index, whatever stands there after the reload.
    if (newIndex < 0) newIndex = lastSel;
    return 1;
}

void CKtUiLineTypeComboBox::GetLBString(int index, CString& text) {
    CKtUiMRUComboBox::GetLBString(index, text);
    const bool isByLayer = m_byLayerRecord && GetItemCargo(index) == m_byLayerRecord->cargo();
    if (isByLayer && GetCurrentLayerVpOverride()) text += kViewportOverrideSuffix;
}

int CKtUiLineTypeComboBox::ImageWidth() {
    CRect outer(0, 0, 0, 0);
    GetWindowRect(&outer);
    return outer.Width() / 2;
}

bool CKtUiLineTypeComboBox::mirrorsCurrentDocument() const {
    KtApDocument* document = CKhSystem::instance()->documentServices()->currentDocument();
    return document && document->database() == m_ltLocalMapDB;
}

void CKtUiLineTypeComboBox::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    if (cargo == m_cargoOption1 || cargo == m_cargoOption2 || !mirrorsCurrentDocument()) return;
    CKhDrawingView* view = currentView();
    CKhLinetypePreview* preview = view ? view->linetypePreview() : nullptr;
    CKtUiLTypeRecord* record = CKtUiLTypeRecord::fromCargo(cargo);
    if (!preview || !record || !m_ltypeList.Find(record)) return;
    CRect sample = rect;
    sample.DeflateRect(kSampleMarginX, kSampleMarginY);
    OdDbObjectId id = record->m_id;
    // Kept: the answer isn't looked at.
    if (record == m_byLayerRecord) GetCurrentLayerLineType(id);
    preview->drawLinetype(dc.GetSafeHdc(), sample, id, KtUiAppearanceColor(kSampleInk, COLOR_WINDOWTEXT),
                          KtUiAppearanceColor(kSamplePaper, COLOR_WINDOW));
}

void CKtUiLineTypeComboBox::DrawItem(LPDRAWITEMSTRUCT item) { CKtUiMRUComboBox::DrawItem(item); }
