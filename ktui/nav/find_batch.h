// Found files on their way from the thread that finds them to the window that shows them, many at a time.
// Without any window. Private to the library; its tests link it by itself.
#pragma once

#include <functional>
#include <vector>

#include <ktui/nav/find_listing.h>

struct FoundFile {
    CString m_folder;  ///< with a separator at its end
    CString m_name;
    unsigned long long m_length;  ///< in bytes
    FindTime m_lastWrite;
};

struct FindBatch {
    CString m_folder;  ///< the one looked through last
    std::vector<FoundFile> m_files;
};

/// Gathers what a search tells. The first folder and the first file go out at once, then whatever there is
/// when enough time has passed since the last batch, or when there are many files.
class FindBatcher : public FindListener {
public:
    using Deliver = std::function<void(const FindBatch&)>;
    using Clock = std::function<unsigned long long()>;  ///< milliseconds

    static constexpr unsigned long long kPause = 50;  // milliseconds between two batches
    static constexpr size_t kMostFiles = 256;

    FindBatcher(Deliver deliver, Clock clock, std::function<bool()> isStopped);
    void Status(const CString& folder) override;
    void File(const CString& folder, const FindListing& found) override;
    bool IsStopped() const override { return m_isStopped(); }
    /// Delivers what is left.
    void Flush();

private:
    bool isTime() const { return m_clock() - m_delivered >= kPause; }

    Deliver m_deliver;
    Clock m_clock;
    std::function<bool()> m_isStopped;
    FindBatch m_batch;
    unsigned long long m_delivered = 0;  ///< when
    bool m_hasDeliveredFolder = false;
    bool m_hasDeliveredFile = false;
    bool m_isEmpty = true;  ///< nothing is waiting
};
