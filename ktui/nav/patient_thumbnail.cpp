#include <ktui/nav/patient_thumbnail.h>

#include <ktdsres/never_blocked_ids.h>

#include <ktui/host/string_resources.h>

PatientThumbnail::PatientThumbnail(CWnd& pane)
    : m_pane(pane),
      m_reader([this](BackgroundReading& reading, ReadingEvent event) { hear(reading, event); }) {}

void PatientThumbnail::Paint(CDC& dc, SIZE area, const CString& path, unsigned limit) {
    if (path != m_path || m_room != area) ask(path, area, limit);
    if (m_state == State::kRead && m_reading && m_reading->Bitmap() != nullptr)
        PaintThumbnail(m_reading->Bitmap(), dc.GetSafeHdc(), area.cx, area.cy);
    if (m_state == State::kReadingSlowly)
        say(dc, area, LoadToolkitString(IDS_PREVIEW_READING, L"正在读取预览..."));
    if (m_state == State::kGivenUp)
        say(dc, area, LoadToolkitString(IDS_PREVIEW_NO_ANSWER, L"文件没有响应。"));
}

void PatientThumbnail::ask(const CString& path, SIZE area, unsigned limit) {
    m_reader.Forget();
    m_path = path;
    m_room = area;
    m_state = path.IsEmpty() ? State::kRead : State::kReading;
    m_reading = path.IsEmpty() ? nullptr : std::make_shared<ThumbnailReading>(path, area);
    if (m_reading) m_reader.Ask(m_reading, limit);
}

void PatientThumbnail::hear(BackgroundReading& reading, ReadingEvent event) {
    if (&reading != m_reading.get()) return;
    switch (event) {
        case ReadingEvent::kIsSlow: m_state = State::kReadingSlowly; break;
        case ReadingEvent::kAnswered: m_state = State::kRead; break;
        case ReadingEvent::kGivenUp:
            m_state = State::kGivenUp;
            m_reading.reset();
            break;
    }
    m_pane.Invalidate(FALSE);
}

void PatientThumbnail::say(CDC& dc, SIZE area, const CString& words) const {
    constexpr UINT kForm = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
    CWnd* const parent = m_pane.GetParent();
    CFont* const font = parent != nullptr ? parent->GetFont() : nullptr;
    CFont* const former = font != nullptr ? dc.SelectObject(font) : nullptr;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    CRect place(0, 0, area.cx, 0);
    dc.DrawText(words, -1, &place, kForm | DT_CALCRECT);
    place = CRect(CPoint(0, (area.cy - place.Height()) / 2), CSize(area.cx, place.Height()));
    dc.DrawText(words, -1, &place, kForm);
    if (former != nullptr) dc.SelectObject(former);
}
