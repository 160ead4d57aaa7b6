// Ids of never_blocked.rc: what file dialogs say while they read. Shared by the toolkit's code and the
// script; numbers are fixed.
#pragma once

#define IDS_PREVIEW_READING 54521
#define IDS_PREVIEW_NO_ANSWER 54522
