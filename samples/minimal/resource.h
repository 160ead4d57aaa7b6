// Resource ids of the minimal sample.
#ifndef MINIMAL_RESOURCE_H
#define MINIMAL_RESOURCE_H
#define IDD_DISTANCE 100
#define IDC_DISTANCE 1001
#endif
