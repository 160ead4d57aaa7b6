// The few calls on the system's files that CFile is made of, one implementation per system.
#pragma once

#include <optional>

#include "kmfc/file.h"

namespace kmfc::system_file {

// Each answers nothing, or false, on failure; last_error then has the system's code.
void* open(LPCTSTR path, UINT flags);
std::optional<UINT> read(void* file, void* data, UINT size);
bool write(void* file, const void* data, UINT size);
std::optional<ULONGLONG> seek(void* file, LONGLONG offset, UINT from);
std::optional<ULONGLONG> length(void* file);
bool truncate(void* file, ULONGLONG length);
bool flush(void* file);
bool close(void* file);
bool rename(LPCTSTR from, LPCTSTR to);
bool remove(LPCTSTR path);
LONG last_error();
CString full_path(LPCTSTR path);

}  // namespace kmfc::system_file
