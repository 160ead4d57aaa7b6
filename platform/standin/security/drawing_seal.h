// The seal of a drawing: a small file beside it that says who sealed it, when, and what the file was then.
// Knows no window.
//
//     ktui seal 1
//     sha256 9f86d081...
//     date 2026-03-01 14:05
//     signer Ann Draughtsman
#pragma once

#include <optional>
#include <string>

#include "standin_api.h"

struct DrawingSeal {
    std::string digest;  ///< SHA-256 of the drawing file, 64 digits 0-9a-f
    std::string date;    ///< universal time, "2026-03-01 14:05"
    std::string signer;  ///< UTF-8, one line, not empty
    bool operator==(const DrawingSeal&) const = default;
};

/// The text of the seal's file, UTF-8, lines ended by CR and LF.
STANDIN_API std::string sealText(const DrawingSeal& seal);
/// The seal that `text` holds; nothing if it is none, or not whole. Lines may end with LF alone.
STANDIN_API std::optional<DrawingSeal> parseSeal(const std::string& text);
/// `name` as a signer: control characters become blanks, blanks around it go.
STANDIN_API std::string signerName(const std::string& name);
