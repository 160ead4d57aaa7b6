// The system's dialogs, and dialogs of pages.
#pragma once
#define __AFXDLGS_H__  ///< what programs test to see that this header was there

#include <afxwin.h>

#include <kmfc/common_dialogs.h>
#include <kmfc/file_dialog.h>
#include <kmfc/print_dialog.h>
#include <kmfc/property_sheet.h>
