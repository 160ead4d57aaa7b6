// Any bytes as a stored font cache, as they are and with a fitting checksum: they are refused whole, or what
// they hold comes back from its own stored form.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "../platform/standin/fonts/font_cache.h"

namespace {

void check(std::string_view bytes) {
    FontCache cache;
    if (!cache.decode(bytes)) {
        if (cache.size() != 0) std::abort();
        return;
    }
    const std::string stored = cache.encode();
    FontCache again;
    if (!again.decode(stored) || again.size() != cache.size() || again.encode() != stored) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    check(bytes);
    check(sealFontCache(std::string(bytes)));
    return 0;
}
