#include "layers_panel.h"

#include <algorithm>

#include <ktut.h>
#include <od_db_layer_use.h>

#include "panel_keys.h"
#include "resource.h"
#include "resource_text.h"

namespace {

constexpr UINT WM_RENAME_LAYER = WM_APP + 1;

enum Column { kName, kOn, kColor, kLinetype, kLineWeight };

CString formatted(UINT id, const OdString& name, int count = 0, const OdString& other = OdString()) {
    CString text;
    text.Format(id, name.c_str(), count, other.c_str());
    return text;
}

CString linetypeName(const OdDbObjectId& id) {
    const auto linetype = id.open<OdDbLinetypeTableRecord>();
    return linetype ? CString(linetype->getName().c_str()) : CString();
}

CString weightText(OdDb::LineWeight weight) {
    CString text = textOf(IDS_DEFAULT_WEIGHT);
    if (weight >= 0) text.Format(L"%d.%02d mm", weight / 100, weight % 100);
    return text;
}

/// The value that all rows agree on; nothing if they don't.
template <class T, class Value>
std::optional<T> common(const std::vector<const LayerRow*>& rows, Value value) {
    if (rows.empty()) return {};
    const T first = value(*rows.front());
    for (const LayerRow* row : rows)
        if (!(value(*row) == first)) return {};
    return first;
}

}  // namespace

IMPLEMENT_DYNAMIC(CLayersPanel, CKtUiDialog)

BEGIN_MESSAGE_MAP(CLayersPanel, CKtUiDialog)
    ON_EN_CHANGE(IDC_LAYER_SEARCH, &CLayersPanel::OnSearch)
    ON_BN_CLICKED(IDC_NEW_LAYER, &CLayersPanel::OnNewLayer)
    ON_BN_CLICKED(IDC_RENAME_LAYER, &CLayersPanel::OnRename)
    ON_BN_CLICKED(IDC_DELETE_LAYER, &CLayersPanel::OnDelete)
    ON_CBN_SELENDOK(IDC_TRUE_COLOR, &CLayersPanel::OnPicked)
    ON_CBN_CLOSEUP(IDC_TRUE_COLOR, &CLayersPanel::OnPicked)
    ON_CBN_SELENDOK(IDC_LINETYPE, &CLayersPanel::OnPicked)
    ON_CBN_CLOSEUP(IDC_LINETYPE, &CLayersPanel::OnPicked)
    ON_CBN_SELENDOK(IDC_LINE_WEIGHT, &CLayersPanel::OnPicked)
    ON_CBN_CLOSEUP(IDC_LINE_WEIGHT, &CLayersPanel::OnPicked)
    ON_WM_DESTROY()
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LAYER_LIST, &CLayersPanel::OnItemChanged)
    ON_NOTIFY(NM_CLICK, IDC_LAYER_LIST, &CLayersPanel::OnListClick)
    ON_NOTIFY(NM_DBLCLK, IDC_LAYER_LIST, &CLayersPanel::OnListDoubleClick)
    ON_NOTIFY(LVN_KEYDOWN, IDC_LAYER_LIST, &CLayersPanel::OnListKey)
    ON_NOTIFY(LVN_BEGINLABELEDITW, IDC_LAYER_LIST, &CLayersPanel::OnBeginRename)
    ON_NOTIFY(LVN_ENDLABELEDITW, IDC_LAYER_LIST, &CLayersPanel::OnEndRename)
    ON_MESSAGE(WM_RENAME_LAYER, &CLayersPanel::OnRenameLayer)
END_MESSAGE_MAP()

CLayersPanel::CLayersPanel(std::function<void()> changed)
    : CKtUiDialog(IDD_LAYERS_PANEL, nullptr, AfxGetInstanceHandle()), m_changed(std::move(changed)) {
    SetDialogName(L"Layers");
}

void CLayersPanel::DoDataExchange(CDataExchange* exchange) {
    CKtUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_LAYER_LIST, m_list);
    DDX_Control(exchange, IDC_TRUE_COLOR, m_color);
    DDX_Control(exchange, IDC_LINETYPE, m_linetype);
    DDX_Control(exchange, IDC_LINE_WEIGHT, m_lineWeight);
}

BOOL CLayersPanel::OnInitDialog() {
    const BOOL result = CKtUiDialog::OnInitDialog();
    m_search.SubclassDlgItem(IDC_LAYER_SEARCH, this);
    m_search.SetDefaultText(textOf(IDS_SEARCH_LAYERS));
    m_search.SetNotification(textOf(IDS_SEARCH_LAYERS));
    m_search.ClearEditor();
    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    addColumns();
    registerResizing();
    return result;
}

void CLayersPanel::addColumns() {
    constexpr struct {
        UINT title;
        int width;
    } kColumns[] = {{IDS_COLUMN_LAYER, 116},
                    {IDS_COLUMN_ON, 44},
                    {IDS_COLUMN_COLOR, 80},
                    {IDS_COLUMN_LINETYPE, 90},
                    {IDS_COLUMN_WEIGHT, 72}};
    int column = 0;
    for (const auto& each : kColumns)
        m_list.InsertColumn(column++, textOf(each.title), LVCFMT_LEFT,
                            KtUiAppearancePixels(m_hWnd, each.width));
    GetColumnSizes(&m_list);
}

void CLayersPanel::registerResizing() {
    StretchControlX(IDC_LAYER_SEARCH, 100);
    StretchControlX(IDC_CURRENT_LAYER, 100);
    StretchControlXY(IDC_LAYER_LIST, 100, 100);
    for (const unsigned id : {IDC_NEW_LAYER, IDC_RENAME_LAYER, IDC_DELETE_LAYER, IDOK, IDC_COLOR_LABEL,
                              IDC_LINETYPE_LABEL, IDC_WEIGHT_LABEL})
        MoveControlY(id, 100);
    for (const unsigned id : {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT}) {
        StretchControlX(id, 100);
        MoveControlY(id, 100);
    }
    StretchControlX(IDC_MESSAGE, 100);
    MoveControlY(IDC_MESSAGE, 100);
}

void CLayersPanel::OnDestroy() {
    SaveColumnSizes(&m_list);
    m_drawing = nullptr;
    m_history = nullptr;
    CKtUiDialog::OnDestroy();
}

void CLayersPanel::Show(OdDbDatabase& drawing, CUndoHistory& history) {
    const bool isOther = m_drawing != &drawing;
    std::vector<OdDbObjectId> selected;
    if (isOther) {
        if (m_list.GetEditControl() != nullptr) m_list.CancelEditLabel();
        m_rows.clear();
        say(CString());
    } else {
        selected = selectedLayers();
    }
    m_drawing = &drawing;
    m_history = &history;
    m_filling = true;
    m_linetype.ShowLTypes(true);
    m_filling = false;
    if (isOther) selected = {drawing.clayer()};
    enableLists(true);
    fillList(selected);
}

void CLayersPanel::ShowNothing() {
    if (m_hWnd == nullptr) return;
    if (m_list.GetEditControl() != nullptr) m_list.CancelEditLabel();
    m_drawing = nullptr;
    m_history = nullptr;
    m_rows.clear();
    m_filling = true;
    m_list.DeleteAllItems();
    m_filling = false;
    SetDlgItemText(IDC_CURRENT_LAYER, L"");
    showPickers();
    enableLists(false);
    say(textOf(IDS_NO_DRAWING));
}

void CLayersPanel::enableLists(bool enable) {
    for (const int id : {IDC_LAYER_SEARCH, IDC_LAYER_LIST, IDC_NEW_LAYER})
        GetDlgItem(id)->EnableWindow(enable);
}

OdString CLayersPanel::filter() {
    CString text;
    if (!m_search.IsEditEmpty()) m_search.GetWindowText(text);
    return OdString(text);
}

void CLayersPanel::fillList(const std::vector<OdDbObjectId>& selected) {
    // While a name is being typed the list stays.
    if (m_drawing == nullptr || m_list.GetEditControl() != nullptr) return;
    m_filling = true;
    m_rows = ListLayers(*m_drawing, filter());
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    int row = 0, first = -1;
    for (const LayerRow& layer : m_rows) {
        showRow(row, layer);
        if (std::find(selected.begin(), selected.end(), layer.id) != selected.end()) {
            m_list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
            if (first < 0) first = row;
        }
        ++row;
    }
    if (first < 0 && !m_rows.empty()) {
        first = 0;
        m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    }
    if (first >= 0) {
        m_list.SetItemState(first, LVIS_FOCUSED, LVIS_FOCUSED);
        m_list.EnsureVisible(first, FALSE);
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate();
    m_filling = false;
    showCurrent();
    showPickers();
}

void CLayersPanel::showRow(int row, const LayerRow& layer) {
    m_list.InsertItem(row, layer.name.c_str());
    m_list.SetItemText(row, kOn, textOf(layer.isOn ? IDS_LAYER_ON : IDS_LAYER_OFF));
    m_list.SetItemText(row, kColor, ktutColorToStr(layer.color));
    m_list.SetItemText(row, kLinetype, linetypeName(layer.linetype));
    m_list.SetItemText(row, kLineWeight, weightText(layer.lineWeight));
}

void CLayersPanel::showCurrent() {
    const auto layer = m_drawing->clayer().open<OdDbLayerTableRecord>();
    SetDlgItemText(IDC_CURRENT_LAYER, layer ? formatted(IDS_CURRENT_LAYER, layer->getName()) : CString());
}

std::vector<const LayerRow*> CLayersPanel::selectedRows() const {
    std::vector<const LayerRow*> rows;
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row)
        if (m_list.GetItemState(row, LVIS_SELECTED)) rows.push_back(&m_rows[static_cast<std::size_t>(row)]);
    return rows;
}

LayerChange CLayersPanel::shownValues() const {
    const auto rows = selectedRows();
    LayerChange values;
    values.color = common<OdCmColor>(rows, [](const LayerRow& row) { return row.color; });
    values.linetype = common<OdDbObjectId>(rows, [](const LayerRow& row) { return row.linetype; });
    values.lineWeight = common<OdDb::LineWeight>(rows, [](const LayerRow& row) { return row.lineWeight; });
    return values;
}

void CLayersPanel::showPickers() {
    const std::size_t count = selectedRows().size();
    const LayerChange values = shownValues();
    m_filling = true;
    for (CWnd* picker :
         {static_cast<CWnd*>(&m_color), static_cast<CWnd*>(&m_linetype), static_cast<CWnd*>(&m_lineWeight)})
        picker->EnableWindow(count > 0);
    m_color.Show(values.color);
    m_linetype.Show(values.linetype);
    m_lineWeight.Show(values.lineWeight);
    m_filling = false;
    for (const int id : {IDC_RENAME_LAYER, IDOK}) GetDlgItem(id)->EnableWindow(count == 1);
    GetDlgItem(IDC_DELETE_LAYER)->EnableWindow(count > 0);
}

std::vector<OdDbObjectId> CLayersPanel::selectedLayers() const {
    std::vector<OdDbObjectId> layers;
    for (const LayerRow* row : selectedRows()) layers.push_back(row->id);
    return layers;
}

void CLayersPanel::change(UINT name, const std::vector<OdDbObjectId>& selected,
                          const std::function<void()>& edit) {
    if (m_history == nullptr) return;
    CDrawingChange step(*m_history);
    edit();
    const bool isChanged = step.Keep(OdString(textOf(name)));
    fillList(selected);
    if (isChanged) m_changed();
}

void CLayersPanel::changeSelected(const LayerChange& values) {
    const std::vector<OdDbObjectId> layers = selectedLayers();
    say(CString());
    change(IDS_CHANGE_LAYER, layers, [&] { ChangeLayers(layers, values); });
}

void CLayersPanel::toggle(const std::vector<OdDbObjectId>& layers) {
    if (layers.empty()) return;
    const auto first = layers.front().open<OdDbLayerTableRecord>();
    if (!first) return;
    LayerChange values;
    values.isOn = first->isOff();
    say(CString());
    change(IDS_CHANGE_LAYER, selectedLayers(), [&] { ChangeLayers(layers, values); });
}

void CLayersPanel::OnSearch() {
    if (m_drawing != nullptr) fillList(selectedLayers());
}

void CLayersPanel::OnNewLayer() {
    if (m_drawing == nullptr) return;
    const OdString name = FreeLayerName(*m_drawing, OdString(textOf(IDS_NEW_LAYER_NAME)));
    OdDbObjectId made;
    say(CString());
    m_search.ClearEditor();
    change(IDS_CHANGE_NEW_LAYER, {}, [&] { made = NeedLayer(*m_drawing, name); });
    fillList({made});
    m_list.SetFocus();
    OnRename();
}

void CLayersPanel::OnRename() {
    const int row = m_list.GetNextItem(-1, LVNI_SELECTED);
    if (row < 0) return;
    m_list.SetFocus();
    m_list.EditLabel(row);
}

void CLayersPanel::OnDelete() {
    const std::vector<OdDbObjectId> layers = selectedLayers();
    if (m_drawing == nullptr || layers.empty()) return;
    LayerRefusal answer;
    change(IDS_CHANGE_DELETE_LAYER, {}, [&] { answer = DeleteLayers(*m_drawing, layers); });
    if (answer.need != LayerNeed::kNone) fillList(layers);
    say(refusal(answer));
    m_list.SetFocus();
}

void CLayersPanel::OnSetCurrent() {
    const std::vector<OdDbObjectId> layers = selectedLayers();
    if (layers.size() != 1) return;
    say(CString());
    change(IDS_CHANGE_CURRENT_LAYER, layers, [&] { m_drawing->setClayer(layers.front()); });
}

/// Enter makes the selected layer current.
void CLayersPanel::OnOK() { OnSetCurrent(); }

/// Escape goes back to the drawing.
void CLayersPanel::OnCancel() { AfxGetMainWnd()->SetFocus(); }

void CLayersPanel::OnPicked() {
    if (m_filling || m_drawing == nullptr) return;
    const LayerChange shown = shownValues();
    LayerChange values;
    if (const auto color = m_color.Picked(); color && !(color == shown.color)) values.color = color;
    if (const auto linetype = m_linetype.Picked(); linetype != shown.linetype) values.linetype = linetype;
    if (const auto weight = m_lineWeight.Picked(); weight != shown.lineWeight) values.lineWeight = weight;
    if (values.color || values.linetype || values.lineWeight) changeSelected(values);
}

void CLayersPanel::OnItemChanged(NMHDR*, LRESULT* result) {
    *result = 0;
    if (!m_filling) showPickers();
}

void CLayersPanel::OnListClick(NMHDR* header, LRESULT* result) {
    *result = 0;
    const auto& click = *reinterpret_cast<NMITEMACTIVATE*>(header);
    CPoint at(click.ptAction);
    int row = -1, column = -1;
    m_list.GetItemAtPoint(at, row, column);
    if (column == kOn && row >= 0 && row < static_cast<int>(m_rows.size()))
        toggle({m_rows[static_cast<std::size_t>(row)].id});
}

void CLayersPanel::OnListDoubleClick(NMHDR* header, LRESULT* result) {
    *result = 0;
    const auto& click = *reinterpret_cast<NMITEMACTIVATE*>(header);
    CPoint at(click.ptAction);
    int row = -1, column = -1;
    m_list.GetItemAtPoint(at, row, column);
    if (column == kName) OnSetCurrent();
}

void CLayersPanel::OnListKey(NMHDR* header, LRESULT* result) {
    *result = 0;
    switch (reinterpret_cast<NMLVKEYDOWN*>(header)->wVKey) {
        case VK_F2: OnRename(); break;
        case VK_SPACE: toggle(selectedLayers()); break;
        case VK_DELETE: OnDelete(); break;
        case VK_INSERT: OnNewLayer(); break;
        default: break;
    }
}

void CLayersPanel::OnBeginRename(NMHDR* header, LRESULT* result) {
    const int row = reinterpret_cast<NMLVDISPINFOW*>(header)->item.iItem;
    const LayerRow& layer = m_rows[static_cast<std::size_t>(row)];
    const LayerNameProblem problem = CheckLayerName(*m_drawing, layer.name, layer.id);
    say(problem == LayerNameProblem::kFixed ? nameProblem(problem, layer.name) : CString());
    *result = problem == LayerNameProblem::kFixed;
}

void CLayersPanel::OnEndRename(NMHDR* header, LRESULT* result) {
    *result = FALSE;  // the list is filled anew with the name that the layer has then
    const auto& edited = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    if (edited.pszText == nullptr || m_drawing == nullptr) return;
    const LayerRow layer = m_rows[static_cast<std::size_t>(edited.iItem)];
    const OdString name = TrimmedLayerName(OdString(edited.pszText));
    const LayerNameProblem problem = CheckLayerName(*m_drawing, name, layer.id);
    say(nameProblem(problem, name));
    if (problem != LayerNameProblem::kNone) return;
    // The list is still busy with its edit control.
    m_renamed = {layer.id, name};
    PostMessage(WM_RENAME_LAYER);
}

LRESULT CLayersPanel::OnRenameLayer(WPARAM, LPARAM) {
    const auto [layer, name] = std::exchange(m_renamed, {});
    if (m_drawing == nullptr || layer.database() != m_drawing) return 0;
    change(IDS_CHANGE_RENAME_LAYER, {layer}, [&] { oddbRenameLayer(layer, name); });
    return 0;
}

CString CLayersPanel::nameProblem(LayerNameProblem problem, const OdString& name) {
    switch (problem) {
        case LayerNameProblem::kBad: return textOf(IDS_BAD_LAYER);
        case LayerNameProblem::kTaken: return formatted(IDS_TAKEN_LAYER, name);
        case LayerNameProblem::kFixed: return formatted(IDS_FIXED_LAYER, name);
        default: return CString();
    }
}

CString CLayersPanel::refusal(const LayerRefusal& refusal) {
    switch (refusal.need) {
        case LayerNeed::kIsStandard: return formatted(IDS_KEEP_STANDARD, refusal.layer);
        case LayerNeed::kIsDependent: return formatted(IDS_KEEP_DEPENDENT, refusal.layer);
        case LayerNeed::kIsCurrent: return formatted(IDS_KEEP_CURRENT, refusal.layer);
        case LayerNeed::kHasObjects:
            return formatted(refusal.count == 1 ? IDS_KEEP_OBJECT : IDS_KEEP_OBJECTS, refusal.layer,
                             refusal.count);
        case LayerNeed::kIsInBlock:
            return formatted(IDS_KEEP_BLOCK, refusal.layer, refusal.count, refusal.block);
        case LayerNeed::kIsNamed: return formatted(IDS_KEEP_NAMED, refusal.layer);
        default: return CString();
    }
}

BOOL CLayersPanel::PreTranslateMessage(MSG* message) {
    if (m_list.GetEditControl() == nullptr && HasCommandKey(*message)) {
        if (message->wParam == L'F') {
            m_search.SetFocus();
            return TRUE;
        }
        if (FrameTakesKey(*message)) return TRUE;
    }
    return CKtUiDialog::PreTranslateMessage(message);
}
