// Fonts that windows of every kind share.
#pragma once

#include <afxwin.h>

#include <kmfc/global_data.h>
