#include "scene_notice.h"

#include "resource.h"

namespace {

/// Appends one notice to others.
void append(CString& text, const CString& more) {
    if (!text.IsEmpty() && !more.IsEmpty()) text += L" ";
    text += more;
}

CString undrawnKinds(const Scene& scene) {
    CString text, kinds;
    int count = 0;
    for (const auto& [kind, each] : scene.notDrawn) {
        kinds.AppendFormat(L"%s%s %d", kinds.IsEmpty() ? L"" : L", ", odWide(kind).c_str(), each);
        count += each;
    }
    if (count > 0) text.Format(IDS_UNDRAWN_STATUS, count, kinds.GetString());
    return text;
}

/// The name of a font's file without its folders, cut off where it is too long for the line.
CString fontName(const std::wstring& file) {
    constexpr int kLongest = 24;
    const CString name(file.substr(file.find_last_of(L"/\\") + 1).c_str());
    return name.GetLength() <= kLongest ? name : name.Left(kLongest - 1) + L"\u2026";
}

CString missingFonts(const Scene& scene) {
    constexpr int kMostNamed = 3;
    CString text, names;
    int count = 0;
    for (const std::wstring& file : scene.missingFonts) {
        if (++count > kMostNamed) continue;
        names += (names.IsEmpty() ? L"" : L", ") + fontName(file);
    }
    if (count > kMostNamed)
        text.Format(IDS_MORE_FONTS_MISSING_STATUS, names.GetString(), count - kMostNamed);
    else if (count > 0)
        text.Format(IDS_FONTS_MISSING_STATUS, names.GetString());
    return text;
}

}  // namespace

CString UndrawnText(const Scene& scene) {
    CString text;
    if (scene.isCut)
        static_cast<void>(text.LoadString(scene.isStopped ? IDS_SCENE_STOPPED_STATUS : IDS_SCENE_CUT_STATUS));
    append(text, undrawnKinds(scene));
    append(text, missingFonts(scene));
    return text;
}
