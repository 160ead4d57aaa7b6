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

TEST(StandinProduct, TakesTheNamesOfTheApplication) {
    CStandinHost host(*AfxGetApp());
    host.SetProduct({L"Halden Works Ltd.", L"Halden", L"Plan", L"Plan Viewer", L"Plan says", L"4.2"});
    CKhProductInfo& product = *host.productInfo();
    EXPECT_STREQ(product.companyFullName(), L"Halden Works Ltd.");
    EXPECT_STREQ(product.companyShortName(), L"Halden");
    EXPECT_STREQ(product.productName(), L"Plan");
    EXPECT_STREQ(product.programName(), L"Plan Viewer");
    EXPECT_STREQ(product.messageCaption(), L"Plan says");
    EXPECT_STREQ(product.profileVersionKey(), L"4.2");
}

TEST(StandinProduct, TextsAnsweredBeforeStayValid) {
    CStandinHost host(*AfxGetApp());
    const wchar_t* before = host.productInfo()->productName();
    for (int i = 0; i < 100; ++i) {
        StandinProduct names;
        names.productName.Format(L"Product %d", i);
        host.SetProduct(names);
        CString expected;
        expected.Format(L"Product %d", i);
        EXPECT_STREQ(host.productInfo()->productName(), expected);
    }
    EXPECT_STREQ(before, L"Velmora");
}
