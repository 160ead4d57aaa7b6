// The Places list where it must not wait for drives: what it shows and does until they answer.
#include <ktui/nav/place_list.h>

#include <ktui/nav/never_blocked.h>
#include <ktui/nav/patient_places.h>
#include <ktui/nav/place_item.h>
#include <ktui/nav/place_shell.h>

PatientPlaces& CPlaceList::patient() {
    if (!m_patient) {
        m_patient = std::make_unique<PatientPlaces>();
        m_patient->onIcon = [this](unsigned request, HICON icon) { takeReadIcon(request, icon); };
        m_patient->onFolder = [this](const CString& path, std::optional<DWORD> attributes) {
            goToReadFolder(path, attributes);
        };
    }
    return *m_patient;
}

void CPlaceList::fetchIcon(PlaceItem& item, const CString& path) {
    const unsigned limit = KtUiNeverBlockedLimit();
    if (limit == 0) {
        item.TakeIcon(PlaceIcon(path));
        item.m_iconRequest = 0;
        return;
    }
    item.TakeIcon(PlainFolderIcon());
    item.m_iconRequest = patient().AskIcon(path, limit);
}

void CPlaceList::takeReadIcon(unsigned request, HICON icon) {
    for (int row = 0; row < GetCount(); ++row) {
        PlaceItem& item = *itemAt(row);
        if (item.m_iconRequest != request) continue;
        item.TakeIcon(icon);
        item.m_iconRequest = 0;
        redrawRow(row);
        return;
    }
    // The row has gone meanwhile, or leads elsewhere.
    ::DestroyIcon(icon);
}

void CPlaceList::askForFolder(const CString& path, unsigned limit) { patient().AskFolder(path, limit); }

/// Unless another place was selected meanwhile.
void CPlaceList::goToReadFolder(const CString& path, std::optional<DWORD> attributes) {
    const PlaceItem* const item = itemAt(GetCurSel());
    if (item == nullptr || item->m_path != path) return;
    if (attributes)
        goTo(path, *attributes);
    else
        SyncSelection();
}
