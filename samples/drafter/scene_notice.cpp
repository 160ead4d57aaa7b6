#include "scene_notice.h"

#include "resource.h"

CString UndrawnText(const Scene& scene) {
    CString text, kinds;
    int count = 0;
    for (const auto& [kind, each] : scene.notDrawn) {
        kinds.AppendFormat(L"%s%s %d", kinds.IsEmpty() ? L"" : L", ", odWide(kind).c_str(), each);
        count += each;
    }
    if (count > 0) text.Format(IDS_UNDRAWN_STATUS, count, kinds.GetString());
    if (!scene.isCut) return text;
    CString cut;
    static_cast<void>(cut.LoadString(scene.isStopped ? IDS_SCENE_STOPPED_STATUS : IDS_SCENE_CUT_STATUS));
    return text.IsEmpty() ? cut : cut + L" " + text;
}
