// COleDateTime and COleDateTimeSpan.
#pragma once

#include <kmfc/ole_date_time.h>
