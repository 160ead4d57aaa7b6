// Any bytes as a font file of each kind: they are refused with a reason, or give a kind and sound names.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "../platform/standin/fonts/byte_source.h"
#include "../platform/standin/fonts/font_file.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void read(std::string_view bytes, const wchar_t* name, bool isOutline) {
    MemorySource source(bytes);
    const FontFile file = readFont(source, name);
    require((file.kind == FontKind::kNone) == (file.problem != FontProblem::kNone));
    require((file.kind == FontKind::kTrueType) == !file.faces.empty());
    require(isOutline || file.kind != FontKind::kTrueType);
    for (const FontFace& face : file.faces) {
        require(!face.family.empty() && !face.style.empty());
        require(face.weight >= 1 && face.weight <= 1000 && face.width >= 1 && face.width <= 9);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    read(bytes, L"font.ttf", true);
    read(bytes, L"font.shx", false);
    return 0;
}
