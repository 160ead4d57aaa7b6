// Texts in the languages of the product.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include <windows.h>

namespace ui_test {

constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr LANGID kChinese = MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED);

/// The language in which the system takes texts from a library, for as long as it lives.
class InLanguage {
public:
    explicit InLanguage(LANGID language) : m_former(::GetThreadLocale()) {
        ::SetThreadLocale(MAKELCID(language, SORT_DEFAULT));
    }
    ~InLanguage() { ::SetThreadLocale(m_former); }
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;

private:
    LCID m_former;
};

/// A string of the resource library in both languages.
struct LibraryText {
    UINT id;
    const wchar_t* english;
    const wchar_t* chinese;
};

inline void expect_library_texts(std::initializer_list<LibraryText> texts) {
    const HMODULE library = ::GetModuleHandleW(L"ktdsres.dll");
    ASSERT_NE(library, nullptr);
    for (const LANGID language : {kEnglish, kChinese}) {
        const InLanguage user(language);
        for (const LibraryText& expected : texts) {
            wchar_t text[200] = {};
            ::LoadStringW(library, expected.id, text, 200);
            EXPECT_STREQ(text, language == kChinese ? expected.chinese : expected.english) << expected.id;
        }
    }
}

}  // namespace ui_test
