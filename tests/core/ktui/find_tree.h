// A file system of a test's own, for the walks of a search, and a listener that notes what it is told.
#pragma once

#include <ktui/nav/find_listing.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <ktui/nav/find_mask.h>

struct TreeEntry {
    std::wstring name;
    bool isFolder = false;
    bool isHidden = false;
    std::wstring linkTo;  ///< the folder that it stands for, with a separator
    FindTime written = 0;
    unsigned long long length = 0;
};

inline TreeEntry file(const wchar_t* name, FindTime written = 0) {
    return {name, false, false, L"", written};
}
inline TreeEntry folder(const wchar_t* name) { return {name, true, false, L""}; }
inline TreeEntry hidden(TreeEntry entry) {
    entry.isHidden = true;
    return entry;
}
inline TreeEntry link(const wchar_t* name, const wchar_t* target) { return {name, true, false, target}; }

/// Folders by their path with a separator at its end. The system's dots come first in each listing.
class Tree : public FindFileSystem {
public:
    std::map<std::wstring, std::vector<TreeEntry>> folders;
    unsigned drives = 0;
    mutable int listingsMade = 0;
    mutable std::vector<std::wstring> asked;  ///< patterns that were listed

    std::unique_ptr<FindListing> List() const override {
        ++listingsMade;
        return std::make_unique<Listing>(*this);
    }
    unsigned Drives() const override { return drives; }
    CString Identity(const CString& path) const override { return resolved(path.GetString()).c_str(); }

    /// The folder's own place, links followed.
    std::wstring resolved(const std::wstring& path) const {
        for (size_t end = path.find(L'\\'); end != std::wstring::npos; end = path.find(L'\\', end + 1)) {
            const std::wstring head = path.substr(0, end + 1);
            const auto at = head.rfind(L'\\', end - 1);
            if (at == std::wstring::npos) continue;
            const auto parent = folders.find(head.substr(0, at + 1));
            if (parent == folders.end()) continue;
            for (const TreeEntry& entry : parent->second)
                if (!entry.linkTo.empty() && head == parent->first + entry.name + L"\\")
                    return resolved(entry.linkTo + path.substr(end + 1));
        }
        return path;
    }

private:
    class Listing : public FindListing {
    public:
        explicit Listing(const Tree& tree) : m_tree(tree) {}
        bool Begin(const CString& pattern) override {
            m_tree.asked.push_back(pattern.GetString());
            m_entries.clear();
            m_at = static_cast<size_t>(-1);
            const int end = pattern.ReverseFind(L'\\') + 1;
            const FindMask mask(pattern.Mid(end));
            const auto found = m_tree.folders.find(m_tree.resolved(pattern.Left(end).GetString()));
            if (found == m_tree.folders.end()) return false;
            for (const wchar_t* dots : {L".", L".."}) add(folder(dots), mask);
            for (const TreeEntry& entry : found->second) add(entry, mask);
            return !m_entries.empty();
        }
        bool Next() override { return ++m_at + 1 < m_entries.size(); }
        CString Name() const override { return now().name.c_str(); }
        bool IsFolder() const override { return now().isFolder; }
        bool IsHidden() const override { return now().isHidden; }
        bool IsDots() const override { return now().name == L"." || now().name == L".."; }
        bool IsLink() const override { return !now().linkTo.empty(); }
        unsigned long long Length() const override { return now().length; }
        FindTime LastWrite() const override { return now().written; }

    private:
        const TreeEntry& now() const { return m_entries[m_at]; }
        void add(const TreeEntry& entry, const FindMask& mask) {
            if (mask.Matches(entry.name.c_str())) m_entries.push_back(entry);
        }
        const Tree& m_tree;
        std::vector<TreeEntry> m_entries;
        size_t m_at = 0;
    };
};

/// Notes what it hears: folders as they are, files with a "+" before them.
class Notes : public FindListener {
public:
    std::vector<std::wstring> heard;
    std::function<bool(const std::wstring&)> stopsAfter;  ///< asked with each note
    bool isStopped = false;
    mutable int stopQuestions = 0;

    void Status(const CString& path) override { note(path.GetString()); }
    void File(const CString& path, const FindListing& found) override {
        note(L"+" + std::wstring(path.GetString()) + found.Name().GetString());
    }
    bool IsStopped() const override {
        ++stopQuestions;
        return isStopped;
    }
    long Count(const std::wstring& text) const { return std::count(heard.begin(), heard.end(), text); }

private:
    void note(const std::wstring& text) {
        heard.push_back(text);
        if (stopsAfter && stopsAfter(text)) isStopped = true;
    }
};

/// A request for these folders and patterns, with subfolders.
struct Wanted : FindSearchRequest {
    Wanted(std::initializer_list<const wchar_t*> folders, std::initializer_list<const wchar_t*> patterns,
           int subfolders = 1) {
        for (const wchar_t* one : folders) m_folders.Add(one);
        for (const wchar_t* one : patterns) m_patterns.Add(one);
        m_includeSubfolders = subfolders;
        m_dateTo = m_dateFrom;
    }
};
