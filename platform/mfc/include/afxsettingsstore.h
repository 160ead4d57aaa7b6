// Settings kept in the registry.
#pragma once

#include <afxwin.h>

#include <kmfc/settings_store.h>
