// The shell's identifier lists, as far as owning one goes. Private to the library.
#pragma once

struct _ITEMIDLIST;

/// Gives `list` back to the shell's allocator. Nothing for null. Without an allocator the list stays as it
/// is.
void FreeItemIdList(_ITEMIDLIST* list);
