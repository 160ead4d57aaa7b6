#include <ktui/pickers/lweight_util.h>

#include <ktdsres/resource_ids.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using ui_test::Canvas;
using ui_test::WorkingDrawing;

TEST(LineWeightUtil, UnitsAreMillimetresWithoutHostServices) {
    EXPECT_EQ(KhUtLWeightUtil::getLWeightUnits(), 1);
    WorkingDrawing drawing;
    drawing.services().setLineWeightsInMillimetres(false);
    EXPECT_EQ(KhUtLWeightUtil::getLWeightUnits(), 0);
    drawing.services().setLineWeightsInMillimetres(true);
    EXPECT_EQ(KhUtLWeightUtil::getLWeightUnits(), 1);
}

TEST(LineWeightUtil, DefaultWeightIsZeroWithoutHostServices) {
    EXPECT_EQ(KhUtLWeightUtil::getDefaultLWeight(), OdDb::kLnWt000);
    WorkingDrawing drawing;
    EXPECT_EQ(KhUtLWeightUtil::getDefaultLWeight(), OdDb::kLnWt025);
}

TEST(LineWeightUtil, LayerWeightIsThatOfTheDrawingGivenOrTheWorkingOne) {
    EXPECT_EQ(KhUtLWeightUtil::getCurrentLayerLineWeight(nullptr), OdDb::kLnWt000);
    const OdSmartPtr<OdDbDatabase> other(new OdDbDatabase);
    other->clayer().open<OdDbLayerTableRecord>(OdDb::kForWrite)->setLineWeight(OdDb::kLnWt070);
    EXPECT_EQ(KhUtLWeightUtil::getCurrentLayerLineWeight(other.get()), OdDb::kLnWt070);
    WorkingDrawing drawing;
    const OdDbObjectId layer = drawing.database()->clayer();
    layer.open<OdDbLayerTableRecord>(OdDb::kForWrite)->setLineWeight(OdDb::kLnWt050);
    EXPECT_EQ(KhUtLWeightUtil::getCurrentLayerLineWeight(nullptr), OdDb::kLnWt050);
    EXPECT_EQ(KhUtLWeightUtil::getCurrentLayerLineWeight(other.get()), OdDb::kLnWt070);
}

TEST(LineWeightUtil, NamesInBothUnits) {
    EXPECT_EQ(KhUtLWeightUtil::getLintWeightName(true, OdDb::kLnWt025), L"0.010\"");
    EXPECT_EQ(KhUtLWeightUtil::getLintWeightName(false, OdDb::kLnWt025), L"0.25 mm");
    EXPECT_TRUE(KhUtLWeightUtil::getLintWeightName(false, static_cast<OdDb::LineWeight>(7)).isEmpty());
    EXPECT_TRUE(KhUtLWeightUtil::getLintWeightName(true, static_cast<OdDb::LineWeight>(-4)).isEmpty());
}

TEST(LineWeightUtil, NamesThatStandForAnothersWeight) {
    EXPECT_EQ(KhUtLWeightUtil::getLintWeightName(true, OdDb::kLnWtByLayer), L"ByLayer");
    EXPECT_EQ(KhUtLWeightUtil::getLintWeightName(false, OdDb::kLnWtByBlock), L"ByBlock");
    CString expected;
    ASSERT_TRUE(expected.LoadString(IDS_DEFAULT_LINEWEIGHT));
    EXPECT_EQ(KhUtLWeightUtil::getLintWeightName(false, OdDb::kLnWtByLwDefault), expected.GetString());
}

TEST(LineWeightUtil, DrawsTheBarInItsColour) {
    Canvas canvas(20, 20, RGB(255, 255, 255));
    RECT rect = {2, 0, 18, 10};
    EXPECT_TRUE(KhUtLWeightUtil::drawLineWeight(canvas.dc.m_hDC, &rect, 30, 0.5, RGB(1, 2, 3)));
    EXPECT_EQ(canvas.dc.GetPixel(2, 3), RGB(255, 255, 255));
    EXPECT_EQ(canvas.dc.GetPixel(2, 4), RGB(1, 2, 3));
    EXPECT_EQ(canvas.dc.GetPixel(17, 5), RGB(1, 2, 3));
    EXPECT_EQ(canvas.dc.GetPixel(17, 6), RGB(255, 255, 255));
    EXPECT_EQ(canvas.dc.GetPixel(18, 5), RGB(255, 255, 255));
    EXPECT_EQ(rect.top, 0) << "the caller's rectangle stays";
}

TEST(LineWeightUtil, RectangleOfNoHeightStillShowsARow) {
    Canvas canvas(20, 20, RGB(255, 255, 255));
    RECT flat = {0, 5, 20, 5};
    EXPECT_TRUE(KhUtLWeightUtil::drawLineWeight(canvas.dc.m_hDC, &flat, 1, 0.5, 0));
    EXPECT_EQ(canvas.dc.GetPixel(10, 5), RGB(0, 0, 0));
    EXPECT_EQ(canvas.dc.GetPixel(10, 6), RGB(255, 255, 255));
    RECT negative = {0, 12, 20, 11};
    EXPECT_FALSE(KhUtLWeightUtil::drawLineWeight(canvas.dc.m_hDC, &negative, 211, 0.5, 0));
    EXPECT_EQ(canvas.dc.GetPixel(10, 12), RGB(255, 255, 255));
}
