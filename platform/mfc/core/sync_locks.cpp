#include <afxmt.h>

#include <algorithm>

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock) : m_pObject(pObject) {
    ENSURE_ARG(pObject != nullptr);
    if (bInitialLock) Lock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut) {
    ENSURE(!m_bAcquired);
    m_bAcquired = m_pObject->Lock(dwTimeOut);
    return m_bAcquired;
}

BOOL CSingleLock::Unlock() {
    if (m_bAcquired) m_bAcquired = !m_pObject->Unlock();
    // As documented, a lock that holds nothing has been given back.
    return !m_bAcquired;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    if (m_bAcquired) m_bAcquired = !m_pObject->Unlock(lCount, lPrevCount);
    return !m_bAcquired;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock) {
    ENSURE_ARG(ppObjects != nullptr && dwCount > 0 && dwCount <= MAXIMUM_WAIT_OBJECTS);
    m_objects.assign(ppObjects, ppObjects + dwCount);
    for (CSyncObject* object : m_objects)
        ENSURE_ARG(object != nullptr && !object->IsKindOf(RUNTIME_CLASS(CCriticalSection)));
    m_held.assign(dwCount, FALSE);
    if (bInitialLock) Lock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask) {
    std::vector<HANDLE> handles;
    for (CSyncObject* object : m_objects) handles.push_back(object->m_hObject);
    const auto count = static_cast<DWORD>(handles.size());
    const DWORD result =
        dwWakeMask == 0
            ? ::WaitForMultipleObjects(count, handles.data(), bWaitForAll, dwTimeOut)
            : ::MsgWaitForMultipleObjects(count, handles.data(), bWaitForAll, dwTimeOut, dwWakeMask);
    const DWORD had = result >= WAIT_ABANDONED_0 && result < WAIT_ABANDONED_0 + count
                          ? result - WAIT_ABANDONED_0
                          : result - WAIT_OBJECT_0;
    if (had >= count) return result;  // time is over, it failed, or a message came
    if (bWaitForAll)
        std::fill(m_held.begin(), m_held.end(), TRUE);
    else
        m_held[had] = TRUE;
    return result;
}

BOOL CMultiLock::Unlock() {
    bool all = true;
    for (size_t i = 0; i < m_objects.size(); ++i) {
        if (!m_held[i]) continue;
        m_held[i] = !m_objects[i]->Unlock();
        all = all && !m_held[i];
    }
    return all;
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    // Only semaphores have counts.
    bool any = false;
    for (size_t i = 0; i < m_objects.size(); ++i) {
        if (!m_held[i] || !m_objects[i]->IsKindOf(RUNTIME_CLASS(CSemaphore))) continue;
        any = true;
        m_held[i] = !m_objects[i]->Unlock(lCount, lPrevCount);
    }
    return any;
}

BOOL CMultiLock::IsLocked(DWORD dwObject) const { return dwObject < m_held.size() && m_held[dwObject]; }
