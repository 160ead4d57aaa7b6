// Synchronisation of threads: events, mutexes, semaphores, critical sections, and the locks on them.
#pragma once
#define __AFXMT_H__  ///< what programs test to see that this header was there

#include <afx.h>

#include <kmfc/sync_objects.h>
#include <kmfc/sync_locks.h>
