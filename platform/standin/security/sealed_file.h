// Sealing a drawing file, and finding out whether it is still what was sealed. Internal to the module.
#pragma once

#include <optional>

#include <afxwin.h>

#include "security/drawing_seal.h"

enum class SealState {
    kNone,       ///< there is no seal
    kIntact,     ///< the file is what was sealed
    kChanged,    ///< the file was changed after it was sealed
    kDamaged,    ///< there is a seal file, but it holds no seal
    kUnreadable  ///< the drawing file can't be read
};

/// The file of the seal of drawing file `drawing`.
CString SealFileOf(const CString& drawing);
/// How `drawing` stands to its seal, which goes into `seal` if there is one.
SealState CheckSeal(const CString& drawing, DrawingSeal& seal);
/// Seals the file as it is now, by `signer` (as signerName gives it); false if the file can't be read or the
/// seal not be written.
bool SealFile(const CString& drawing, const std::string& signer);
/// Takes the seal away; false if it is still there.
bool RemoveSeal(const CString& drawing);
