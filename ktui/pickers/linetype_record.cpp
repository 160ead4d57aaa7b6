#include <ktui/pickers/linetype_record.h>

#include <unordered_map>

namespace {

/// Every record there is, by its cargo. Used by the user-interface thread only.
std::unordered_map<__int64, CKtUiLTypeRecord*>& liveRecords() {
    static std::unordered_map<__int64, CKtUiLTypeRecord*> records;
    return records;
}

}  // namespace

CKtUiLTypeRecord::CKtUiLTypeRecord(const CString& name, const OdDbObjectId& id) : m_name(name), m_id(id) {
    liveRecords().emplace(cargo(), this);
}

CKtUiLTypeRecord::~CKtUiLTypeRecord() { liveRecords().erase(cargo()); }

CKtUiLTypeRecord* CKtUiLTypeRecord::fromCargo(__int64 cargo) {
    const auto found = liveRecords().find(cargo);
    return found == liveRecords().end() ? nullptr : found->second;
}
