#include <afxmt.h>

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::CSyncObject(LPCTSTR pstrName) : m_strName(pstrName) {}

CSyncObject::~CSyncObject() {
    if (m_hObject != nullptr) ::CloseHandle(m_hObject);
}

BOOL CSyncObject::Lock(DWORD dwTimeout) {
    const DWORD result = ::WaitForSingleObject(m_hObject, dwTimeout);
    // A mutex whose owner ended without giving it back is had too.
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG) { return TRUE; }

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName,
                       LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName) {
    ENSURE_ARG(lMaxCount > 0 && lInitialCount >= 0 && lInitialCount <= lMaxCount);
    m_hObject = ::CreateSemaphoreW(lpsaAttributes, lInitialCount, lMaxCount, pstrName);
    if (m_hObject == nullptr) AfxThrowResourceException();
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lpPrevCount) {
    return ::ReleaseSemaphore(m_hObject, lCount, lpPrevCount);
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    m_hObject = ::CreateMutexW(lpsaAttribute, bInitiallyOwn, lpszName);
    if (m_hObject == nullptr) AfxThrowResourceException();
}

BOOL CMutex::Unlock() { return ::ReleaseMutex(m_hObject); }

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    m_hObject = ::CreateEventW(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName);
    if (m_hObject == nullptr) AfxThrowResourceException();
}

CCriticalSection::CCriticalSection() : CSyncObject(nullptr) { ::InitializeCriticalSection(&m_sect); }
CCriticalSection::~CCriticalSection() { ::DeleteCriticalSection(&m_sect); }

BOOL CCriticalSection::Lock() {
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock(DWORD dwTimeout) {
    ASSERT(dwTimeout == INFINITE);
    return dwTimeout == INFINITE && Lock();
}

BOOL CCriticalSection::Unlock() {
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}
