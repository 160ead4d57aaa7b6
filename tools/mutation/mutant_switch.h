// The switch behind every mutant that is woven into a source: the environment variable KTUI_MUTANT names the
// one that is on, or -1 to note which mutants are reached, one number a line, in the file named by
// KTUI_MUTANT_REACHED.
#pragma once

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <type_traits>
#include <utility>

#ifdef _WIN32
extern "C" __declspec(dllimport) unsigned long __stdcall GetLastError(void);
extern "C" __declspec(dllimport) void __stdcall SetLastError(unsigned long);
#endif

namespace ktui_mutation {

/// Puts back what a program may look at after a call.
class KeepErrors {
public:
    ~KeepErrors() {
        errno = m_errno;
#ifdef _WIN32
        SetLastError(m_lastError);
#endif
    }

private:
    int m_errno = errno;
#ifdef _WIN32
    unsigned long m_lastError = GetLastError();
#endif
};

constexpr int kMostMutants = 100000;
constexpr int kNoteReached = -1;

inline int chosen() {
    const char* text = std::getenv("KTUI_MUTANT");
    return text ? std::atoi(text) : 0;
}

inline void note(int mutant) {
    static unsigned char noted[kMostMutants] = {};
    if (mutant >= kMostMutants || noted[mutant]) return;
    noted[mutant] = 1;
    const KeepErrors keep;
    const char* file = std::getenv("KTUI_MUTANT_REACHED");
    if (!file) return;
    if (std::FILE* out = std::fopen(file, "ab")) {
        std::fprintf(out, "%d\n", mutant);
        std::fclose(out);
    }
}

/// Whether a mutant is on; notes that it was reached where that is asked for.
inline bool on(int mutant) {
    static const int choice = chosen();
    if (choice == kNoteReached) note(mutant);
    return choice == mutant;
}

/// Another value of a number, an enumeration or a pointer: 0 becomes 1, all else 0.
template <class T>
constexpr auto other(const T& value) {
    using Plain = std::decay_t<T>;
    if constexpr (std::is_pointer_v<Plain>)
        return static_cast<Plain>(nullptr);
    else if constexpr (std::is_same_v<Plain, bool>)
        return !value;
    else
        return value == static_cast<Plain>(0) ? static_cast<Plain>(1) : static_cast<Plain>(0);
}

/// One row of a message map, or a row that no message fits.
template <class Row>
Row row(bool left_out, std::initializer_list<Row> rows) {
    Row result = *rows.begin();
    if (left_out) result.nMessage = 0xFFFFFFF0u;
    return result;
}

}  // namespace ktui_mutation

#define KTUI_MUTANT(n) ::ktui_mutation::on(n)
#define KTUI_MUTANT_ROW(n, ...) \
    ::ktui_mutation::row<AFX_MSGMAP_ENTRY>(KTUI_MUTANT(n), {AFX_MSGMAP_ENTRY __VA_ARGS__}),
