#include "loss_texts.h"

#include <algorithm>

#include "resource.h"

namespace {

constexpr std::size_t kListedLosses = 8;

/// The text of a kind of loss: a format of the type and the count, or of the count alone.
struct KindText {
    OdDxfLossKind kind;
    UINT id;
    bool namesType;
};

constexpr KindText kTexts[] = {
    {OdDxfLossKind::kEntity, IDS_LOST_ENTITY, true},
    {OdDxfLossKind::kObject, IDS_LOST_OBJECT, true},
    {OdDxfLossKind::kLayout, IDS_LOST_LAYOUT, false},
    {OdDxfLossKind::kName, IDS_LOST_NAME, true},
    {OdDxfLossKind::kTrueColor, IDS_LOST_COLOR, false},
    {OdDxfLossKind::kTransparency, IDS_LOST_TRANSPARENCY, false},
    {OdDxfLossKind::kLineWeight, IDS_LOST_LINEWEIGHT, false},
    {OdDxfLossKind::kPlotStyle, IDS_LOST_PLOT_STYLE, false},
    {OdDxfLossKind::kSetting, IDS_LOST_SETTING, true},
    {OdDxfLossKind::kVariable, IDS_LOST_VARIABLE, false},
    {OdDxfLossKind::kSection, IDS_LOST_SECTION, true},
};

CString lineOf(const OdDxfLoss& loss) {
    CString line;
    const CString type(odWide(loss.type).c_str());
    if (!loss.becomes.empty()) {
        line.Format(IDS_LOST_BECOMES, type.GetString(), loss.count, odWide(loss.becomes).c_str());
        return line;
    }
    for (const KindText& text : kTexts) {
        if (text.kind != loss.kind) continue;
        if (text.namesType)
            line.Format(text.id, type.GetString(), loss.count);
        else
            line.Format(text.id, loss.count);
    }
    return line;
}

}  // namespace

CString LossText(const std::vector<OdDxfLoss>& losses) {
    std::vector<OdDxfLoss> ordered = losses;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const OdDxfLoss& a, const OdDxfLoss& b) { return a.kind < b.kind; });
    CString text;
    const std::size_t listed = std::min(ordered.size(), kListedLosses);
    for (std::size_t i = 0; i < listed; ++i) text += (i == 0 ? L"" : L"\n") + lineOf(ordered[i]);
    if (ordered.size() > listed) {
        CString more;
        more.Format(IDS_LOST_MORE, static_cast<int>(ordered.size() - listed));
        text += L"\n" + more;
    }
    return text;
}
