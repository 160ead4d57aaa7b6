// Date and time pickers, month calendars.
#pragma once

#include <afxwin.h>

#include <kmfc/date_time_ctrl.h>
