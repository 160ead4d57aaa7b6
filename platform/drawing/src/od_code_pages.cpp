#include "od_code_pages.h"

#include "od_code_page.h"
#include "od_db_store.h"

int oddbCodePage(OdDbDatabase& drawing) { return OdDbStore::of(drawing).codePage; }

bool odBytesOfCharacter(int codePage, std::wstring_view character, std::string& bytes) {
    return odEncodeCharacter(codePage, character, bytes);
}
