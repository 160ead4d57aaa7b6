// Any bytes as a drawing file with a preview image: what is found is an image that lies within them.
#include <ktdb.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    KtdbPreview preview;
    if (ktdbFindPreview(data, size, preview) != kKtdbOk) return 0;
    const bool known =
        preview.kind == kKtdbPreviewDib || preview.kind == kKtdbPreviewWmf || preview.kind == kKtdbPreviewPng;
    if (!known || preview.bytes.empty() || preview.bytes.size() > size) std::abort();
    return 0;
}
