// What threads wait for, and the locks on it.
#include <afxmt.h>
#include <afxwin.h>

#include <atomic>
#include <thread>

#include "ui_test.h"

namespace {

/// What `ask` answers in a thread of its own.
template <class Ask>
auto elsewhere(Ask ask) {
    decltype(ask()) answer = {};
    std::thread([&] { answer = ask(); }).join();
    return answer;
}

}  // namespace

TEST(SyncObjects, AMutexBelongsToOneThread) {
    CMutex mutex(TRUE);
    EXPECT_FALSE(elsewhere([&] { return mutex.Lock(0); }));
    EXPECT_FALSE(elsewhere([&] { return mutex.Unlock(); })) << "who doesn't own it can't give it back";
    EXPECT_TRUE(mutex.Lock(0)) << "its owner may have it again";
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_FALSE(mutex.Unlock());
    EXPECT_TRUE(elsewhere([&] { return mutex.Lock(0); }));
    EXPECT_TRUE(mutex.Lock(5000)) << "its owner ended without giving it back";
    mutex.Unlock();
}

TEST(SyncObjects, ANameIsSharedByObjects) {
    CMutex first(TRUE, L"ktui test mutex");
    CMutex second(FALSE, L"ktui test mutex");
    EXPECT_FALSE(elsewhere([&] { return second.Lock(0); }));
    EXPECT_THROW(CEvent(FALSE, FALSE, L"ktui test mutex"), CResourceException*) << "a name of another kind";
}

TEST(SyncObjects, ASemaphoreCounts) {
    CSemaphore semaphore(1, 3);
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_FALSE(semaphore.Lock(0));
    LONG before = -1;
    EXPECT_TRUE(semaphore.Unlock(2, &before));
    EXPECT_EQ(before, 0);
    EXPECT_FALSE(semaphore.Unlock(2, &before)) << "beyond its largest count";
    EXPECT_TRUE(semaphore.Unlock());
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_FALSE(semaphore.Lock(0));
    EXPECT_THROW(CSemaphore(2, 1), CInvalidArgException*);
    EXPECT_THROW(CSemaphore(0, 0), CInvalidArgException*);
    EXPECT_THROW(CSemaphore(-1, 1), CInvalidArgException*);
}

TEST(SyncObjects, AnEventIsSetAndReset) {
    CEvent once, kept(TRUE, TRUE);
    EXPECT_FALSE(once.Lock(0));
    EXPECT_TRUE(once.SetEvent());
    EXPECT_TRUE(once.Lock(0));
    EXPECT_FALSE(once.Lock(0)) << "one waits, and it is over";
    EXPECT_TRUE(kept.Lock(0));
    EXPECT_TRUE(kept.Lock(0));
    EXPECT_TRUE(kept.ResetEvent());
    EXPECT_FALSE(kept.Lock(0));
    EXPECT_TRUE(kept.Unlock());
    EXPECT_TRUE(kept.PulseEvent());
    EXPECT_FALSE(kept.Lock(0));
}

TEST(SyncObjects, ACriticalSectionKeepsOthersOut) {
    CCriticalSection section;
    EXPECT_TRUE(section.Lock());
    EXPECT_TRUE(section.Lock(INFINITE));
    EXPECT_FALSE(elsewhere([&] { return ::TryEnterCriticalSection(section); }));
    EXPECT_TRUE(section.Unlock());
    EXPECT_FALSE(elsewhere([&] { return ::TryEnterCriticalSection(section); })) << "once for each lock";
    EXPECT_TRUE(section.Unlock());
    EXPECT_TRUE(elsewhere([&] {
        if (!::TryEnterCriticalSection(section)) return false;
        ::LeaveCriticalSection(section);
        return true;
    }));
    EXPECT_FALSE(section.Lock(0)) << "it can't give up";
}

TEST(SyncLocks, ALockGivesBackAtTheEndOfItsScope) {
    CMutex mutex;
    {
        CSingleLock lock(&mutex);
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(lock.Lock(0));
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_THROW(lock.Lock(0), CInvalidArgException*) << "held already";
        EXPECT_TRUE(lock.Unlock());
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(lock.Unlock());
        EXPECT_TRUE(lock.Lock());
        EXPECT_FALSE(elsewhere([&] { return CSingleLock(&mutex).Lock(0); }));
    }
    EXPECT_TRUE(elsewhere([&] { return CSingleLock(&mutex).Lock(0); }));
    EXPECT_TRUE(CSingleLock(&mutex, TRUE).IsLocked());
    EXPECT_THROW(CSingleLock(nullptr), CInvalidArgException*);
}

TEST(SyncLocks, ASemaphoresLockGivesBackACount) {
    CSemaphore semaphore(1, 5);
    CSingleLock lock(&semaphore, TRUE);
    LONG before = -1;
    EXPECT_TRUE(lock.Unlock(2, &before));
    EXPECT_EQ(before, 0);
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_FALSE(semaphore.Lock(0));
}

TEST(SyncLocks, SeveralAreHadTogetherOrOneByOne) {
    CEvent first(FALSE, TRUE), second(FALSE, TRUE);
    CSyncObject* objects[] = {&first, &second};
    CMultiLock lock(objects, 2);
    EXPECT_EQ(lock.Lock(0), DWORD{WAIT_TIMEOUT});
    second.SetEvent();
    EXPECT_EQ(lock.Lock(0), DWORD{WAIT_TIMEOUT}) << "one of two";
    EXPECT_FALSE(lock.IsLocked(1));
    EXPECT_EQ(lock.Lock(0, FALSE), WAIT_OBJECT_0 + 1);
    EXPECT_FALSE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    EXPECT_TRUE(lock.Unlock());
    EXPECT_FALSE(lock.IsLocked(1));
    first.SetEvent();
    EXPECT_EQ(lock.Lock(0), DWORD{WAIT_OBJECT_0});
    EXPECT_TRUE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    EXPECT_FALSE(lock.IsLocked(2));
}

TEST(SyncLocks, SeveralAreGivenBackAtTheEndOfTheScope) {
    CMutex first;
    CSemaphore second(2, 2);
    CSyncObject* objects[] = {&first, &second};
    {
        const CMultiLock lock(objects, 2, TRUE);
        EXPECT_TRUE(lock.IsLocked(0));
        EXPECT_FALSE(elsewhere([&] { return first.Lock(0); }));
    }
    EXPECT_TRUE(second.Lock(0));
    EXPECT_TRUE(second.Lock(0));
    EXPECT_TRUE(elsewhere([&] { return first.Lock(0) && first.Unlock(); }));
}

TEST(SyncLocks, CountsAreGivenBackToSemaphoresOnly) {
    CMutex mutex;
    CSemaphore semaphore(1, 9);
    CSyncObject* both[] = {&mutex, &semaphore};
    CMultiLock lock(both, 2, TRUE);
    EXPECT_TRUE(lock.Unlock(3));
    EXPECT_TRUE(lock.IsLocked(0));
    EXPECT_FALSE(lock.IsLocked(1));
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_FALSE(semaphore.Lock(0));
    EXPECT_FALSE(lock.Unlock(1)) << "no semaphore is held any more";
}

TEST(SyncLocks, WhatCanNotBeWaitedForIsRefused) {
    CCriticalSection section;
    CEvent event;
    CSyncObject* wrong[] = {&event, &section};
    EXPECT_THROW(CMultiLock(wrong, 2), CInvalidArgException*);
    CSyncObject* missing[] = {&event, nullptr};
    EXPECT_THROW(CMultiLock(missing, 2), CInvalidArgException*);
    EXPECT_THROW(CMultiLock(wrong, 0), CInvalidArgException*);
    EXPECT_THROW(CMultiLock(nullptr, 1), CInvalidArgException*);
}

TEST(SyncLocks, MessagesMayEndTheWaiting) {
    CEvent never;
    CSyncObject* objects[] = {&never};
    CMultiLock lock(objects, 1);
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP, 0, 0);
    EXPECT_EQ(lock.Lock(5000, FALSE, QS_POSTMESSAGE), WAIT_OBJECT_0 + 1);
    EXPECT_FALSE(lock.IsLocked(0));
    MSG message;
    ::PeekMessageW(&message, nullptr, WM_APP, WM_APP, PM_REMOVE);
}
