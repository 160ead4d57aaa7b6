// Which walk through folders the find dialog makes.
//
//     KtUiSetFindFileWalk(kKtUiFindOnce);  // once, at the host's start
#pragma once

#include <ktui/ktui_api.h>

enum KTUI_FIND_FILE_WALK {
    /// As agreed with hosts of long standing: each type's patterns go down the tree anew, so that with
    /// several
    /// patterns or locations a file may be listed several times, and each row comes by itself.
    kKtUiFindSettled,
    /// Each folder is visited once, where it is first met, and each file listed once; links that lead back
    /// are
    /// not followed, and rows come many at a time.
    kKtUiFindOnce,
};

/// Chooses the walk of searches that begin from now on, and answers the one before; kKtUiFindSettled at
/// first, and for any other value. May be called on any thread. Notifies nobody.
KTUI_API KTUI_FIND_FILE_WALK KtUiSetFindFileWalk(KTUI_FIND_FILE_WALK walk);

/// The walk that was chosen.
KTUI_API KTUI_FIND_FILE_WALK KtUiFindFileWalk();
