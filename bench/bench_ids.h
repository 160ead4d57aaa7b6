// Resource ids of the benchmarks.
#pragma once

#define IDD_FORTY 100
#define IDD_EMPTY 101
#define IDC_FIRST_CHILD 3000
#define IDD_TABBED 302
#define IDD_TAB_PAGE 303
#define IDC_TABS 3001
