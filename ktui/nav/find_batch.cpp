#include <ktui/nav/find_batch.h>

#include <utility>

FindBatcher::FindBatcher(Deliver deliver, Clock clock, std::function<bool()> isStopped)
    : m_deliver(std::move(deliver)), m_clock(std::move(clock)), m_isStopped(std::move(isStopped)) {}

void FindBatcher::Status(const CString& folder) {
    m_batch.m_folder = folder;
    m_isEmpty = false;
    if (!m_hasDeliveredFolder || isTime()) Flush();
}

void FindBatcher::File(const CString& folder, const FindListing& found) {
    m_batch.m_files.push_back({folder, found.Name(), found.Length(), found.LastWrite()});
    m_isEmpty = false;
    if (!m_hasDeliveredFile || m_batch.m_files.size() >= kMostFiles || isTime()) Flush();
}

void FindBatcher::Flush() {
    if (m_isEmpty) return;
    m_hasDeliveredFolder = true;
    m_hasDeliveredFile = m_hasDeliveredFile || !m_batch.m_files.empty();
    m_deliver(m_batch);
    m_batch.m_files.clear();
    m_isEmpty = true;
    m_delivered = m_clock();
}
