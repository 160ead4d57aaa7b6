// What the drafter asks and tells: every message that is more than a line.
#pragma once

#include <vector>

#include <afxwin.h>

#include <od_dxf_error.h>
#include <od_dxf_loss.h>
#include <od_dxf_reading.h>

/// What to do with a drawing that was changed.
enum class UnsavedChoice { kSave, kDiscard, kCancel };

/// Asks what becomes of the changes to the drawing `name`.
UnsavedChoice AskUnsavedChanges(CWnd& parent, const CString& name);

/// What to do with a drawing that another program has open.
enum class InUseChoice { kReadOnly, kAnyway, kCancel };

/// Asks how the drawing at `path`, which `holder` has open, is to be opened.
InUseChoice AskInUse(CWnd& parent, const CString& path, const CString& holder);

/// Tells that the drawing at `path`, which `holder` has open, can't be saved over.
void TellInUse(const CString& path, const CString& holder);

/// What was mended in a drawing, how often, and where first; for one line. Empty for nothing.
CString MendedText(const OdDxfReading& reading);

/// Tells why the drawing at `path` wasn't opened, and that `kept`, the drawing in front, stays
/// open; empty if there is none.
void TellUnreadable(CWnd& parent, const CString& path, const OdDbDxfError& error, const CString& kept);

/// Tells what was wrong in the drawing at `path`, which was opened all the same, and where.
void TellMended(CWnd& parent, const CString& path, const OdDxfReading& reading);

/// What to do with a drawing of which the chosen version can't hold all.
enum class LossChoice { kSave, kSaveAs, kCancel };

/// Tells what a file at `path` would not hold of the drawing, and asks what to do.
LossChoice AskLosses(CWnd& parent, const CString& path, const std::vector<OdDxfLoss>& losses);

/// What to do when the file on disk was written after the drawing was opened.
enum class NewerFileChoice { kOverwrite, kSaveAs, kCancel };

/// Asks, unless the user has said that such files are always to be overwritten, which the verification box
/// keeps among the settings of the user.
NewerFileChoice AskNewerFile(CWnd& parent, const CString& path);

/// Whether the user has answered any question once and for all.
bool AnyMessageAnswered();
/// Lets every question be asked again.
void ForgetMessageAnswers();
