// What the bytes of a picture file say of its kind and size, so that nobody unpacks one that is too large.
// Knows no window.
#pragma once

#include <cstdint>
#include <string_view>

#include "standin_api.h"

enum class PictureKind { kNone, kBmp, kPng, kJpeg, kGif, kTiff };

struct PictureHeader {
    PictureKind kind = PictureKind::kNone;  ///< none for bytes of another kind or without a size
    int width = 0, height = 0;              ///< pixels of the first picture
    bool isBitonal = false;                 ///< one bit for each pixel
    std::uint64_t pixels = 0;               ///< of all pictures in the file that are unpacked with the first
};

/// Reads as far as the size stands in `bytes`.
STANDIN_API PictureHeader ReadPictureHeader(std::string_view bytes);
