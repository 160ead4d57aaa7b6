// The exception of a call that failed.
#include <afxdisp.h>

#include <gtest/gtest.h>

namespace {

TEST(OleException, CarriesItsCode) {
    try {
        AfxThrowOleException(E_INVALIDARG);
    } catch (COleException* exception) {
        EXPECT_EQ(exception->m_sc, E_INVALIDARG);
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CException)));
        wchar_t text[200] = {}, wanted[200] = {};
        UINT help = 7;
        EXPECT_TRUE(exception->GetErrorMessage(text, 200, &help));
        ::FormatMessageW(
            FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
            nullptr, static_cast<DWORD>(E_INVALIDARG), 0, wanted, 200, nullptr);
        EXPECT_STREQ(text, wanted);
        EXPECT_EQ(help, 0u);
        EXPECT_NE(exception->m_bAutoDelete, FALSE);
        exception->Delete();
        return;
    }
    FAIL() << "nothing was thrown";
}

TEST(OleException, ACodeWithoutATextHasNone) {
    const COleException exception;
    COleException unknown;
    unknown.m_sc = static_cast<SCODE>(0x8FFF7777);
    wchar_t text[50] = L"before";
    EXPECT_FALSE(unknown.GetErrorMessage(text, 50));
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(exception.m_sc, S_OK);
}

}  // namespace
