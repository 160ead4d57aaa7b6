// Other colours of the system while a test runs.
#pragma once

#include <windows.h>

#include <utility>
#include <vector>

namespace ui_test {

/// Puts colours (COLOR_ index and value) in force for as long as it lives.
class SystemColors {
public:
    explicit SystemColors(const std::vector<std::pair<int, COLORREF>>& colors) {
        for (const auto& [index, color] : colors) {
            m_indexes.push_back(index);
            m_former.push_back(::GetSysColor(index));
        }
        for (const auto& [index, color] : colors) ::SetSysColors(1, &index, &color);
    }
    ~SystemColors() { ::SetSysColors(static_cast<int>(m_indexes.size()), m_indexes.data(), m_former.data()); }
    SystemColors(const SystemColors&) = delete;
    SystemColors& operator=(const SystemColors&) = delete;

private:
    std::vector<int> m_indexes;
    std::vector<COLORREF> m_former;
};

}  // namespace ui_test
