// The system's task dialog.
#pragma once

#include <afxwin.h>

#include <kmfc/task_dialog.h>
