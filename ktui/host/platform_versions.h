// Version words of the system and of its common controls. Private to the library.
#pragma once

#include <cstdint>

/// Version of the system: `platform << 16 | major << 8 | minor`.
constexpr std::uint32_t MakeOsVersionCode(std::uint32_t platform, std::uint32_t major, std::uint32_t minor) {
    return platform << 16 | major << 8 | minor;
}

/// The major version in such a version of the system.
constexpr std::uint32_t OsMajorVersion(std::uint32_t code) { return code >> 8 & 0xFF; }

/// Version of the common controls: `major << 16 | minor`.
constexpr std::uint32_t MakeControlsVersion(std::uint32_t major, std::uint32_t minor) {
    return major << 16 | minor;
}

/// Version of common controls that can't tell their own.
constexpr std::uint32_t kUntoldControlsVersion = 0x00040000;
