// CTime and CTimeSpan.
#pragma once

#include <kmfc/time.h>
