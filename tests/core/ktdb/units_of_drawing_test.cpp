// A mode or precision of -1 is that of the working drawing.
#include <gtest/gtest.h>

#include <od_db.h>

#include "number_cases.h"

namespace {

class UnitsOfDrawing : public ::testing::Test {
protected:
    void SetUp() override {
        services.setWorkingDatabase(drawing.get());
        oddbSetHostApplicationServices(&services);
    }
    void TearDown() override { oddbSetHostApplicationServices(nullptr); }
    OdDbDatabasePtr drawing{new OdDbDatabase};
    OdDbHostAppServices services;
};

}  // namespace

TEST_F(UnitsOfDrawing, LinearModeAndPrecisionAreTheDrawings) {
    drawing->setLUNITS(OdDb::kArchitectural);
    drawing->setLUPREC(3);
    EXPECT_EQ(distanceText(15.5, -1, -1), L"1'-3 1/2\"");
    EXPECT_EQ(distance(L"1'-3 1/2\"", -1), 15.5);
    drawing->setLUNITS(OdDb::kDecimal);
    EXPECT_EQ(distanceText(15.5, -1, -1), L"15.500");
    EXPECT_EQ(distance(L"1'", -1), kRefused);
    EXPECT_EQ(distanceText(15.5, -1, 1), L"15.5");
}

TEST_F(UnitsOfDrawing, PrecisionIsTheDrawingsForAModeOfItsOwnToo) {
    drawing->setLUPREC(2);
    drawing->setAUPREC(3);
    EXPECT_EQ(distanceText(1.5, OdDb::kDecimal, -1), L"1.50");
    EXPECT_EQ(angleText(0.7853981633974483, OdDb::kGrads, -1), L"50.000g");
}

TEST_F(UnitsOfDrawing, AngularModeAndPrecisionAreTheDrawings) {
    drawing->setAUNITS(OdDb::kSurveyor);
    drawing->setAUPREC(2);
    EXPECT_EQ(angleText(0.7853981633974483, -1, -1), L"N 45d0' E");
    drawing->setAUNITS(OdDb::kGrads);
    EXPECT_EQ(angleText(0.7853981633974483, -1, -1), L"50.00g");
    EXPECT_DOUBLE_EQ(angle(L"50", -1), 0.7853981633974483);
}

TEST_F(UnitsOfDrawing, TheInputFormHasNoBlanksAndIsReadToo) {
    drawing->setUNITMODE(1);
    drawing->setLUNITS(OdDb::kArchitectural);
    EXPECT_EQ(distanceText(15.5, -1, 4), L"1'3-1/2\"");
    EXPECT_EQ(distance(L"1'3-1/2\"", -1), 15.5);
    EXPECT_EQ(distanceText(12.5, -1, 4), L"1'0-1/2\"");
    drawing->setAUNITS(OdDb::kSurveyor);
    EXPECT_EQ(angleText(0.7853981633974483, -1, 0), L"N45dE");
    EXPECT_DOUBLE_EQ(angle(L"N45dE", -1), 0.7853981633974483);
}

TEST_F(UnitsOfDrawing, BaseAndDirectionCountOnlyWithoutTheFlag) {
    constexpr double kQuarter = 1.5707963267948966;
    drawing->setANGBASE(kQuarter);
    drawing->setANGDIR(1);
    EXPECT_DOUBLE_EQ(angle(L"30", -1, 1), kQuarter / 3);
    EXPECT_DOUBLE_EQ(angle(L"30", -1, 0), kQuarter * 2 / 3);
    EXPECT_DOUBLE_EQ(angle(L"30", 0, 1), kQuarter / 3) << "a mode of its own changes nothing in that";
    EXPECT_DOUBLE_EQ(angle(L"30", 0, 0), kQuarter * 2 / 3);
}

TEST(UnitsWithoutDrawing, AreDecimalAndWholeDegrees) {
    ASSERT_EQ(oddbHostApplicationServices(), nullptr);
    EXPECT_EQ(distanceText(15.5, -1, -1), L"15.5000");
    EXPECT_EQ(angleText(0.7853981633974483, -1, -1), L"45");
    EXPECT_EQ(distance(L"1'", -1), kRefused);
    EXPECT_EQ(angle(L"1r", -1, 0), 1) << "from the x axis, counter-clockwise";
}
