#include <ktui/input/value_validation.h>

#include <gtest/gtest.h>

#include <od_db.h>

#include <cmath>
#include <string>

namespace {

constexpr double kNoMinimum = 0;
constexpr double kNoMaximum = 0;

KTUI_ERROR_CODE Validate(DWORD mask, const wchar_t* text, double minimum = kNoMinimum,
                         double maximum = kNoMaximum) {
    CString copy = text;
    return ValidateValue(mask, minimum, maximum, copy);
}

std::wstring Rewritten(DWORD mask, const wchar_t* text, double minimum = kNoMinimum,
                       double maximum = kNoMaximum) {
    CString copy = text;
    ValidateValue(mask, minimum, maximum, copy);
    return copy.GetString();
}

}  // namespace

TEST(ValueValidation, NumberInRangePassesBothEndsIncluded) {
    constexpr DWORD kMask = kKtUiEditNumeric | kKtUiEditRange;
    EXPECT_EQ(Validate(kMask, L"10", 0, 10), kKtUiErrorNone);
    EXPECT_EQ(Validate(kMask, L"0", 0, 10), kKtUiErrorNone);
    EXPECT_EQ(Validate(kMask, L"10.0001", 0, 10), kKtUiErrorOutOfRange);
    EXPECT_EQ(Validate(kMask, L"-0.0001", 0, 10), kKtUiErrorOutOfRange);
    EXPECT_EQ(Validate(kMask, L"abc", 0, 10), kKtUiErrorNotNumeric);
}

TEST(ValueValidation, RangeCountsOnlyWithItsBit) {
    EXPECT_EQ(Validate(kKtUiEditNumeric, L"99", 0, 10), kKtUiErrorNone);
}

TEST(ValueValidation, MinimumAboveMaximumPutsEveryNumberOutOfRange) {
    for (const wchar_t* text : {L"0", L"1", L"3", L"5", L"7"})
        EXPECT_EQ(Validate(kKtUiEditNumeric | kKtUiEditRange, text, 5, 1), kKtUiErrorOutOfRange);
}

TEST(ValueValidation, SymbolSyntaxIsNotExaminedWithoutTheNoBlankBit) {
    EXPECT_EQ(Validate(kKtUiEditSymbol, L"a<b"), kKtUiErrorNone);
    EXPECT_EQ(Validate(kKtUiEditSymbol, L""), kKtUiErrorNone);
}

TEST(ValueValidation, SymbolWithTheNoBlankBitIsExamined) {
    constexpr DWORD kMask = kKtUiEditSymbol | kKtUiEditNoBlank;
    EXPECT_EQ(Validate(kMask, L""), kKtUiErrorBlank);
    EXPECT_EQ(Validate(kMask, L"a<b"), kKtUiErrorSymbolSyntax);
    EXPECT_EQ(Validate(kMask, L"DETAIL-1"), kKtUiErrorNone);
}

TEST(ValueValidation, StringWithTheNoBlankBitPassesAnythingButBlank) {
    constexpr DWORD kMask = kKtUiEditString | kKtUiEditNoBlank;
    EXPECT_EQ(Validate(kMask, L""), kKtUiErrorBlank);
    EXPECT_EQ(Validate(kMask, L"a<b?*"), kKtUiErrorNone);
    EXPECT_EQ(Validate(kMask, L" "), kKtUiErrorNone);
}

TEST(ValueValidation, EmptyMaskAcceptsEverythingAndConvertsNothing) {
    EXPECT_EQ(Validate(0, L""), kKtUiErrorNone);
    EXPECT_EQ(Validate(0, L"anything"), kKtUiErrorNone);
    CString text = L"1.50000000";
    EXPECT_FALSE(ConvertValue(0, 0, 0, text));
    EXPECT_STREQ(text.GetString(), L"1.50000000");
}

TEST(ValueValidation, RangeBitHasNoEffectOnText) {
    EXPECT_EQ(Validate(kKtUiEditString | kKtUiEditRange, L"99", 0, 10), kKtUiErrorNone);
    EXPECT_FALSE(IsContradictoryMask(kKtUiEditString | kKtUiEditRange));
}

TEST(ValueValidation, NumericBitWinsOverTheAngleBit) {
    constexpr DWORD kBoth = kKtUiEditNumeric | kKtUiEditAngle;
    EXPECT_FALSE(IsContradictoryMask(kBoth));
    EXPECT_EQ(Validate(kBoth, L"N"), kKtUiErrorNotNumeric);
    EXPECT_EQ(Validate(kKtUiEditAngle, L"N"), kKtUiErrorNone);
}

TEST(ValueValidation, BitsOfBothFamiliesContradict) {
    EXPECT_TRUE(IsContradictoryMask(0x5));
    EXPECT_TRUE(IsContradictoryMask(kKtUiEditSymbol | kKtUiEditAngle));
    EXPECT_FALSE(IsContradictoryMask(kKtUiEditString | kKtUiEditSymbol));
    EXPECT_FALSE(IsContradictoryMask(0));
}

TEST(ValueValidation, LegalNumberIsRewrittenIntoItsCanonicalSpelling) {
    EXPECT_EQ(Rewritten(kKtUiEditNumeric, L"1.5000000000"), L"1.5000");
    EXPECT_EQ(Rewritten(kKtUiEditNumeric, L" 3 "), L"3.0000");
    EXPECT_EQ(Rewritten(kKtUiEditAngle, L"45.000"), L"45");
}

TEST(ValueValidation, IllegalTextStaysAsTyped) {
    EXPECT_EQ(Rewritten(kKtUiEditNumeric, L"1.5x"), L"1.5x");
    EXPECT_EQ(Rewritten(kKtUiEditAngle, L"around"), L"around");
    EXPECT_EQ(Rewritten(kKtUiEditNumeric | kKtUiEditRange, L"7.00", 0, 5), L"7.00");
    EXPECT_EQ(Rewritten(kKtUiEditNumeric | kKtUiEditNoZero, L"0.0"), L"0.0");
}

TEST(ValueValidation, TestsRunInTheOrderRangeNegativeZero) {
    constexpr DWORD kAll = kKtUiEditNumeric | kKtUiEditNoNegative | kKtUiEditNoZero;
    EXPECT_EQ(Validate(kAll, L"0"), kKtUiErrorZero);
    EXPECT_EQ(Validate(kAll, L"-1"), kKtUiErrorNegative);
    EXPECT_EQ(Validate(kAll | kKtUiEditRange, L"-1", 0, 10), kKtUiErrorOutOfRange);
    EXPECT_EQ(Validate(kAll | kKtUiEditRange, L"-1", -5, 10), kKtUiErrorNegative);
}

TEST(ValueValidation, ZeroTestIsExact) {
    EXPECT_EQ(Validate(kKtUiEditNumeric | kKtUiEditNoZero, L"1e-300"), kKtUiErrorNone);
    EXPECT_EQ(Validate(kKtUiEditNumeric | kKtUiEditNoZero, L"-0"), kKtUiErrorZero);
    EXPECT_EQ(Validate(kKtUiEditNumeric | kKtUiEditNoNegative, L"-0"), kKtUiErrorNone);
}

TEST(ValueValidation, EmptyNumberGoesToTheParserLikeAnyText) {
    EXPECT_EQ(Validate(kKtUiEditNumeric, L""), kKtUiErrorNotNumeric);
    EXPECT_EQ(Validate(kKtUiEditNumeric | kKtUiEditNoBlank, L""), kKtUiErrorNotNumeric);
    EXPECT_EQ(Validate(kKtUiEditAngle | kKtUiEditNoBlank, L""), kKtUiErrorNotAngle);
}

TEST(ValueValidation, ConvertAnswersWhetherANumberIsLegal) {
    CString good = L"2.50";
    EXPECT_TRUE(ConvertValue(kKtUiEditNumeric, 0, 0, good));
    EXPECT_STREQ(good.GetString(), L"2.5000");
    CString bad = L"two";
    EXPECT_FALSE(ConvertValue(kKtUiEditNumeric, 0, 0, bad));
    EXPECT_STREQ(bad.GetString(), L"two");
    CString text = L"two";
    EXPECT_FALSE(ConvertValue(kKtUiEditString, 0, 0, text)) << "text has no canonical spelling";
}

TEST(ValueValidation, RewrittenTextIsStable) {
    for (const wchar_t* text : {L"0", L"1", L"-1.25", L"12345.678901", L"1e3", L".5"}) {
        const std::wstring once = Rewritten(kKtUiEditNumeric, text);
        EXPECT_EQ(Rewritten(kKtUiEditNumeric, once.c_str()), once);
    }
}

TEST(ValueValidation, EveryCodeHasItsText) {
    const wchar_t* expected[] = {L"No error; OK.",
                                 L"Data is blank",
                                 L"Detected illegal symbol syntax",
                                 L"Detected non-numeric data",
                                 L"Data does not represent an angle",
                                 L"Data is zero",
                                 L"Data is negative",
                                 L"Data is out of range"};
    for (unsigned code = 0; code < 8; ++code) EXPECT_STREQ(ValueErrorText(code), expected[code]);
    EXPECT_EQ(ValueErrorText(8), nullptr);
}

TEST(ValueValidation, NegativeNumbersPassWithoutTheBitAgainstThem) {
    EXPECT_EQ(Validate(kKtUiEditNumeric, L"-5"), kKtUiErrorNone);
    EXPECT_EQ(Validate(kKtUiEditAngle, L"-5"), kKtUiErrorNone);
    EXPECT_EQ(Validate(kKtUiEditNumeric | kKtUiEditNoZero, L"-5"), kKtUiErrorNone);
    EXPECT_EQ(Validate(kKtUiEditNumeric | kKtUiEditNoNegative, L"-5"), kKtUiErrorNegative);
}

TEST(ValueValidation, TextsAreReadAndWrittenInTheDrawingsUnits) {
    const OdDbDatabasePtr drawing = new OdDbDatabase;
    OdDbHostAppServices services;
    services.setWorkingDatabase(drawing.get());
    oddbSetHostApplicationServices(&services);
    drawing->setLUNITS(OdDb::kArchitectural);
    drawing->setLUPREC(2);
    drawing->setAUNITS(OdDb::kGrads);
    drawing->setAUPREC(3);
    EXPECT_EQ(Rewritten(kKtUiEditNumeric, L"1'2.5"), L"1'-2 1/2\"");
    EXPECT_EQ(Rewritten(kKtUiEditAngle, L"50"), L"50.000g") << "a bare number is in grads";
    oddbSetHostApplicationServices(nullptr);
}
