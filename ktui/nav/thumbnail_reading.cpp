#include <ktui/nav/thumbnail_reading.h>

ThumbnailReading::ThumbnailReading(const wchar_t* path, SIZE room)
    : m_path(path), m_room(room), m_provider(ThumbnailProvider()) {
    if (m_provider != nullptr)
        ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(m_provider),
                             &m_module);
}

ThumbnailReading::~ThumbnailReading() {
    if (m_bitmap != nullptr) ::DeleteObject(m_bitmap);
    if (m_module != nullptr) ::FreeLibrary(m_module);
}

void ThumbnailReading::Read() { m_bitmap = ReadThumbnail(m_provider, m_path.c_str(), m_room.cx, m_room.cy); }
