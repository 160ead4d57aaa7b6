// What the stand-in host calls the product and the application.
#include <kh_product_info.h>
#include <standin_host.h>

#include "ui_test.h"

TEST(StandinProduct, HasNamesAndHeadsMessagesWithTheApplications) {
    CStandinHost host(*AfxGetApp());
    CKhProductInfo& product = *host.productInfo();
    EXPECT_STREQ(product.productName(), L"Velmora");
    EXPECT_STREQ(product.programName(), L"Velmora");
    EXPECT_STREQ(product.companyFullName(), L"Quorvex Design Systems");
    EXPECT_STREQ(product.companyShortName(), L"Quorvex");
    EXPECT_STREQ(product.profileVersionKey(), L"1.0");
    EXPECT_STREQ(product.messageCaption(), AfxGetAppName());
    EXPECT_STRNE(product.messageCaption(), L"");
}
