// Any bytes as the beginning of a picture file: what is said of them is nothing or a size, whatever the
// bytes.
#include <cstdint>
#include <cstdlib>

#include "pictures/picture_header.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const PictureHeader header = ReadPictureHeader({reinterpret_cast<const char*>(data), size});
    const bool isNothing = header.kind == PictureKind::kNone;
    if (isNothing != (header.width == 0) || isNothing != (header.height == 0)) std::abort();
    if (header.width < 0 || header.height < 0) std::abort();
    const auto first = static_cast<std::uint64_t>(header.width) * static_cast<std::uint64_t>(header.height);
    if (header.pixels < first) std::abort();
    return 0;
}
