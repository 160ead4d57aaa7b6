// The system's dialogs.
#pragma once

#include <afxwin.h>

#include <kmfc/common_dialogs.h>
#include <kmfc/file_dialog.h>
