// CSyncObject and what derives from it: what threads wait for.
#pragma once

#include <kmfc/object.h>
#include <kmfc/string.h>

/// Base of the objects; owns the handle.
class KMFC_API CSyncObject : public CObject {
    DECLARE_DYNAMIC(CSyncObject)
public:
    explicit CSyncObject(LPCTSTR pstrName);
    ~CSyncObject() override;

    HANDLE m_hObject = nullptr;
    operator HANDLE() const { return m_hObject; }

    /// Waits up to `dwTimeout` milliseconds; TRUE when the object is had.
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);

protected:
    CString m_strName;
};

/// Each constructor throws CResourceException when the system gives no object.
class KMFC_API CSemaphore : public CSyncObject {
    DECLARE_DYNAMIC(CSemaphore)
public:
    explicit CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = nullptr,
                        LPSECURITY_ATTRIBUTES lpsaAttributes = nullptr);
    BOOL Unlock() override { return Unlock(1, nullptr); }
    /// Gives back `lCount`; FALSE, and nothing is changed, beyond the largest count.
    BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr) override;
};

class KMFC_API CMutex : public CSyncObject {
    DECLARE_DYNAMIC(CMutex)
public:
    explicit CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    using CSyncObject::Unlock;
    /// FALSE in a thread that doesn't own it.
    BOOL Unlock() override;
};

class KMFC_API CEvent : public CSyncObject {
    DECLARE_DYNAMIC(CEvent)
public:
    explicit CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    using CSyncObject::Unlock;
    /// Always TRUE: who waited for an event holds nothing.
    BOOL Unlock() override { return TRUE; }
};

/// For the threads of one process; always waits for as long as it takes.
class KMFC_API CCriticalSection : public CSyncObject {
    DECLARE_DYNAMIC(CCriticalSection)
public:
    CCriticalSection();
    ~CCriticalSection() override;

    CRITICAL_SECTION m_sect;
    operator CRITICAL_SECTION*() { return &m_sect; }
    BOOL Lock();
    /// `dwTimeout` must be INFINITE; any other is refused by FALSE, with an assertion in builds for finding
    /// errors.
    BOOL Lock(DWORD dwTimeout) override;
    using CSyncObject::Unlock;
    BOOL Unlock() override;
};
