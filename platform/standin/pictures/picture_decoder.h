// Unpacks picture files by what the system has for it. Internal to the module.
#pragma once

#include <memory>
#include <string>

#include "pictures/scene_picture.h"

/// The most that is unpacked: pixels of a file, and those that are kept of them; a larger picture is kept in
/// a whole part of its size.
constexpr std::uint64_t kMostPicturePixels = 64u << 20;
constexpr std::uint64_t kMostKeptPixels = 16u << 20;

/// The first picture in the bytes of a BMP, PNG, JPEG, GIF or TIFF file; null for others, for damaged ones
/// and ones beyond the limit. May be called on any thread.
std::shared_ptr<const ScenePicture> DecodePicture(const std::string& bytes);
