// What several dialogs ask of the host. Private to the library.
#pragma once

#include <afxwin.h>

/// Opens the host's help, or does nothing without a host that has any.
void ShowHostHelp();

/// The main window of the host's application, or null.
CWnd* HostMainWindow();
