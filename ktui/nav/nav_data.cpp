#include <ktui/nav/nav_data.h>

#include <ktui/nav/item_id_list.h>

CNavData::~CNavData() {
    FreeItemIdList(m_id);
    m_id = nullptr;
}

int CNavData::IsRemote() const {
    return m_dataType == kNavDataRemote || m_dataType == kNavDataExtension ||
                   m_dataType == kNavDataRemoteOther
               ? 1
               : 0;
}

int CNavData::IsExtension() const { return m_dataType == kNavDataExtension ? 1 : 0; }

int CNavData::GetURL(CString& url) const {
    if (!IsRemote()) return 0;
    url = m_text;
    return 1;
}

CNavDataArray::~CNavDataArray() { RemoveAllData(); }
