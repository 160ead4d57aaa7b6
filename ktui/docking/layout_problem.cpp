#include <ktui/docking/layout_problem.h>

#include <ktdsres/palette_layouts_ids.h>
#include <ktui/host/string_resources.h>

namespace layouts {

namespace {

struct Text {
    UINT id;
    const wchar_t* fallback;
};

/// By Problem.
constexpr Text kProblems[] = {
    {IDS_LAYOUT_NOT_ATTACHED, L"没有可以布置选项板的窗口。"},
    {IDS_LAYOUT_BAD_NAME, L"布局的名称为 1 到 64 个字符。"},
    {IDS_LAYOUT_UNKNOWN, L"没有布局“%1”。"},
    {IDS_LAYOUT_NAME_TAKEN, L"布局“%1”已存在。"},
    {IDS_LAYOUT_NOT_STORED, L"无法保存布局。"},
    {IDS_LAYOUT_NOT_READ, L"无法读取文件“%1”。"},
    {IDS_LAYOUT_TOO_LARGE, L"文件“%1”太大，不是布局文件。"},
    {IDS_LAYOUT_NOT_XML, L"XML 格式不正确：第 %1 行，第 %2 列。"},
    {IDS_LAYOUT_NOT_WRITTEN, L"无法写入文件“%1”。"},
    {IDS_LAYOUT_REFUSED, L"窗口不接受该布局。"},
    {IDS_LAYOUT_NO_BUILT_IN, L"没有内置布局。"},
    {IDS_LAYOUT_NO_PLACE, L"布局中没有该选项板的位置，或该选项板已有位置。"},
};

/// By FaultKind, behind `none`.
constexpr Text kFaults[] = {
    {IDS_LAYOUT_FOREIGN, L"这不是布局文件：其元素为“%1”。"},
    {IDS_LAYOUT_OLDER, L"布局的版本 %3 过旧。"},
    {IDS_LAYOUT_NEWER, L"布局的版本 %3 比本程序的版本新。"},
    {IDS_LAYOUT_MISSING_ELEMENT, L"缺少元素 %1。"},
    {IDS_LAYOUT_UNKNOWN_ELEMENT, L"元素 %1 不应出现在该处。"},
    {IDS_LAYOUT_MISSING_ATTRIBUTE, L"%1 缺少属性 %2。"},
    {IDS_LAYOUT_BAD_ATTRIBUTE, L"%1 的属性 %2 不能为“%3”。"},
    {IDS_LAYOUT_DOUBLED_ID, L"%1 的属性 %2“%3”重复出现。"},
    {IDS_LAYOUT_UNKNOWN_ID, L"%1 的属性 %2“%3”没有对应的项。"},
    {IDS_LAYOUT_TOO_DEEP, L"元素 %1 嵌套过深。"},
    {IDS_LAYOUT_TOO_MANY, L"元素 %1 的子元素过多。"},
};

/// What a file says comes last, so that a sign in it stands for nothing.
CString filled(const Text& text, const CString& first, const CString& second, const CString& third) {
    CString result = LoadToolkitString(text.id, text.fallback);
    constexpr int kLongestValue = 100;  // characters of a value that are shown
    result.Replace(L"%2", second);
    result.Replace(L"%3", L"\x1");
    result.Replace(L"%1", first);
    result.Replace(L"\x1", third.GetLength() > kLongestValue ? third.Left(kLongestValue) + L"..." : third);
    return result;
}

}  // namespace

CString TextOf(Problem problem, const CString& first, const CString& second) {
    return filled(kProblems[static_cast<std::size_t>(problem)], first, second, {});
}

CString TextOf(const Fault& fault) {
    if (fault.kind == FaultKind::none) return {};
    return filled(kFaults[static_cast<std::size_t>(fault.kind) - 1], fault.element, fault.attribute,
                  fault.value);
}

}  // namespace layouts
