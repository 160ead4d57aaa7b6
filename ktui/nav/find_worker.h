// The thread of a search for files. Private to the library.
#pragma once

#include <memory>

#include <afxwin.h>

#include <ktui/nav/find_search_request.h>

/// Begins the search on a thread of its own, which sends what it finds to the request's dialog and
/// WM_FIND_DONE at its end. The handle, which is the caller's to close; null if there is no thread.
HANDLE StartFindThread(std::unique_ptr<FindSearchRequest> request);
