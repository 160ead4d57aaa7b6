#include <ktui/pickers/lweight_util.h>

#include <afxwin.h>
#include <ktdsres/resource_ids.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/current_layer.h>
#include <ktui/pickers/line_weights.h>
#include <od_host_services.h>

namespace KhUtLWeightUtil {

int getLWeightUnits() {
    const OdDbHostAppServices* services = oddbHostApplicationServices();
    return !services || services->lineWeightsInMillimetres() ? 1 : 0;
}

OdDb::LineWeight getDefaultLWeight() {
    const OdDbHostAppServices* services = oddbHostApplicationServices();
    return services ? services->defaultLineWeight() : OdDb::kLnWt000;
}

OdDb::LineWeight getCurrentLayerLineWeight(const OdDbDatabase* db) { return CurrentLayerLineWeight(db); }

OdString getLintWeightName(bool inch, OdDb::LineWeight weight) {
    switch (weight) {
        case OdDb::kLnWtByLayer: return L"ByLayer";
        case OdDb::kLnWtByBlock: return L"ByBlock";
        case OdDb::kLnWtByLwDefault: return LoadToolkitString(IDS_DEFAULT_LINEWEIGHT, L"默认").GetString();
        default: return LineWeightText(inch, weight);
    }
}

bool drawLineWeight(HDC dc, RECT* rect, int weight, double scale, DWORD color) {
    RECT bar;
    if (!LineWeightBar(*rect, weight, scale, bar)) return false;
    CDC target;
    target.Attach(dc);
    target.FillSolidRect(&bar, color);
    target.Detach();
    return true;
}

}  // namespace KhUtLWeightUtil
