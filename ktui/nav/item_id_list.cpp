#include <ktui/nav/item_id_list.h>

#ifdef _WIN32

#include <windows.h>

#include <shlobj.h>

void FreeItemIdList(_ITEMIDLIST* list) {
    IMalloc* allocator = nullptr;
    if (list == nullptr || FAILED(::SHGetMalloc(&allocator)) || allocator == nullptr) return;
    allocator->Free(list);
    allocator->Release();
}

#else

#include <cstdlib>

void FreeItemIdList(_ITEMIDLIST* list) { std::free(list); }

#endif
