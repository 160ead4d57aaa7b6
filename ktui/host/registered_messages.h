// The messages that the library registers, for message maps. Private to the library.
#pragma once

#include <ktui/host/accessible.h>
#include <ktui/host/notification.h>

inline const UINT kbUiMessage = ::RegisterWindowMessageW(kKbUiMessageName);
inline const UINT accessibleMessage = ::RegisterWindowMessageW(kAccessibleMessageName);
