// Resource ids of the benchmarks.
#pragma once

#define IDD_FORTY 100
#define IDD_EMPTY 101
#define IDC_FIRST_CHILD 3000
