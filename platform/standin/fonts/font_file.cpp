#include "font_file.h"

#include <od_string.h>

#include "byte_source.h"
#include "outline_font_reader.h"
#include "shape_font_reader.h"

namespace {

enum class Format { kNone, kOutline, kShape };

Format formatOf(std::wstring_view name) {
    const std::size_t dot = name.rfind(L'.');
    if (dot == std::wstring_view::npos) return Format::kNone;
    const std::wstring_view extension = name.substr(dot);
    if (odCompareFolded(extension, L".shx") == 0) return Format::kShape;
    for (const wchar_t* known : {L".ttf", L".otf", L".ttc"})
        if (odCompareFolded(extension, known) == 0) return Format::kOutline;
    return Format::kNone;
}

}  // namespace

bool isFontFileName(std::wstring_view name) { return formatOf(name) != Format::kNone; }

std::wstring_view fileNameOf(std::wstring_view path) {
    const std::size_t separator = path.find_last_of(L"\\/");
    return separator == std::wstring_view::npos ? path : path.substr(separator + 1);
}

FontFile readFont(ByteSource& bytes, std::wstring_view name) {
    FontFile file;
    switch (formatOf(name)) {
        case Format::kOutline:
            file.problem = readOutlineFont(bytes, file.faces);
            if (file.problem == FontProblem::kNone) file.kind = FontKind::kTrueType;
            break;
        case Format::kShape: file.problem = readShapeFont(bytes, file.kind); break;
        case Format::kNone: break;
    }
    return file;
}

FontFile readFontFile(const std::wstring& path) {
    FileSource source(path.c_str());
    if (source.state() == FileSource::State::kOpen) return readFont(source, fileNameOf(path));
    FontFile file;
    file.problem =
        source.state() == FileSource::State::kMissing ? FontProblem::kMissing : FontProblem::kUnreadable;
    return file;
}
