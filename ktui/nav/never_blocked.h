// Whether file dialogs wait for drives that do not answer.
//
//     KtUiSetNeverBlocked(3000);  // once, at the host's start
//
// As agreed with hosts of long standing, previews and the icons of places are read where they are painted or
// added, and a drive that does not answer keeps the dialog waiting. With a limit they are read on threads of
// the library's own instead:
//
// - A pane of previews stays empty for a moment, then says that it reads, shows the preview when it has come,
//   and says so when it has not come within the limit. What comes late, or for a file that is no longer the
//   pane's, is dropped. A file is read once for as long as it stays the pane's.
// - A place shows a plain folder until its icon comes, and keeps it if none comes within the limit. A click
//   on a place asks first whether its folder answers, and goes nowhere if it does not. The caption of a
//   standard folder is asked of the shell alone.
// - A dialog that is to begin in a folder that does not answer begins where the system chooses.
//
// The host's provider of previews (KtUiSetThumbnailProvider) is then called on such a thread, sometimes on
// several at once. Nobody waits for a thread that is still reading: a dialog closes at once, and what the
// thread reads belongs to the thread then, which frees it. Each thread holds the library's module and that of
// the provider until it has ended, so that freeing them unloads them only after that.
#pragma once

#include <ktui/ktui_api.h>

/// Sets the limit for readings that begin from now on, in milliseconds; 0 for none, so that dialogs wait, as
/// at first. Answers the one before. May be called on any thread. Notifies nobody.
KTUI_API unsigned KtUiSetNeverBlocked(unsigned milliseconds);

/// The limit in milliseconds; 0 for none.
KTUI_API unsigned KtUiNeverBlockedLimit();
