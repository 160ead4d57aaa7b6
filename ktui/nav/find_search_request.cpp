#include <ktui/nav/find_search_request.h>

#include <ctime>

FindSearchRequest::FindSearchRequest() : m_dateFrom(std::time(nullptr)), m_dateTo(m_dateFrom) {}

FindSearchRequest::FindSearchRequest(const FindSearchRequest& other)
    : m_dialog(other.m_dialog),
      m_includeSubfolders(other.m_includeSubfolders),
      m_dateFrom(other.m_dateFrom),
      m_dateTo(other.m_dateTo) {
    m_folders.Copy(other.m_folders);
    m_patterns.Copy(other.m_patterns);
}
