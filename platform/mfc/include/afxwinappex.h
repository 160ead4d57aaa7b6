// The application of a program whose windows dock.
#pragma once

#include <afxwin.h>

#include <kmfc/win_app_ex.h>
