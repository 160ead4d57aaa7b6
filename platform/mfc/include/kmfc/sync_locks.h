// CSingleLock and CMultiLock: hold what threads share, and give it back at the end of their scope.
#pragma once

#include <vector>

#include <kmfc/sync_objects.h>

/// One object. Not shared between threads.
class KMFC_API CSingleLock {
public:
    /// Throws CInvalidArgException without an object, which must outlive the lock.
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock() { Unlock(); }
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    /// TRUE when something was given back.
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked() const { return m_bAcquired; }

protected:
    CSyncObject* m_pObject;
    BOOL m_bAcquired = FALSE;
};

/// Several objects, all or any of them; critical sections are none that can be waited for so.
class KMFC_API CMultiLock {
public:
    /// 1 to MAXIMUM_WAIT_OBJECTS objects, which must outlive the lock; throws CInvalidArgException otherwise.
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    ~CMultiLock() { Unlock(); }
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;

    /// What the system's waiting answers: WAIT_OBJECT_0 and so on, WAIT_TIMEOUT, WAIT_FAILED.
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    /// Gives back all that are held; TRUE if each could be.
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked(DWORD dwObject) const;

private:
    std::vector<CSyncObject*> m_objects;
    std::vector<BOOL> m_held;
};
