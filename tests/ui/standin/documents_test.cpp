// The stand-in host's documents: the current one, resource modules, save formats, the view.
#include "host_fixture.h"

namespace {

class OneDocument final : public KtApDocument {
public:
    explicit OneDocument(OdDbDatabase& drawing) : m_drawing(drawing) {}
    OdDbDatabase* database() override { return &m_drawing; }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return nullptr; }

private:
    OdDbDatabase& m_drawing;
};

class Documents : public ui_test::HostTest {
protected:
    CKhDocumentServices& documents() { return *host.documentServices(); }
};

}  // namespace

TEST_F(Documents, TheCurrentDocumentBringsItsDrawing) {
    EXPECT_EQ(documents().currentDocument(), nullptr);
    OneDocument document(*drawing);
    oddbHostApplicationServices()->setWorkingDatabase(nullptr);
    host.SetCurrentDocument(&document);
    EXPECT_EQ(documents().currentDocument(), &document);
    EXPECT_EQ(oddbHostApplicationServices()->workingDatabase(), drawing.get());
    host.SetCurrentDocument(nullptr);
    EXPECT_EQ(documents().currentDocument(), nullptr);
    EXPECT_EQ(oddbHostApplicationServices()->workingDatabase(), nullptr);
}

TEST_F(Documents, ResourceModulesNestAndOnePopTooManyDoesNothing) {
    const HINSTANCE first = AfxGetResourceHandle();
    const HINSTANCE system = ::GetModuleHandleW(L"user32.dll"), kernel = ::GetModuleHandleW(L"kernel32.dll");
    documents().pushResourceHandle(system);
    documents().pushResourceHandle(kernel);
    EXPECT_EQ(AfxGetResourceHandle(), kernel);
    documents().popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), system);
    documents().popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), first);
    documents().popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), first);
}

TEST_F(Documents, ThereAreNoSaveFormatsUntilTheApplicationAddsSome) {
    int format = -7;
    OdString name = L"before";
    EXPECT_EQ(documents().saveFormatCount(), 0);
    EXPECT_FALSE(documents().saveFormatAt(0, format, name));
    EXPECT_FALSE(documents().saveFormatName(1060, name));
    EXPECT_EQ(format, -7);
    EXPECT_STREQ(name.c_str(), L"before");
}

TEST_F(Documents, AddedSaveFormatsAreListedInOrderAndNamed) {
    host.SetSaveFormats({{1060, L"Own drawing"}, {1013, L"Kept back", false}, {1001, L"Own exchange"}});
    ASSERT_EQ(documents().saveFormatCount(), 3);
    int format = 0;
    OdString name;
    EXPECT_TRUE(documents().saveFormatAt(0, format, name));
    EXPECT_EQ(format, 1060);
    EXPECT_STREQ(name.c_str(), L"Own drawing");
    EXPECT_FALSE(documents().saveFormatAt(1, format, name));
    EXPECT_TRUE(documents().saveFormatAt(2, format, name));
    EXPECT_EQ(format, 1001);
    EXPECT_FALSE(documents().saveFormatAt(3, format, name));
    EXPECT_FALSE(documents().saveFormatAt(-1, format, name));
    EXPECT_TRUE(documents().saveFormatName(1013, name));
    EXPECT_STREQ(name.c_str(), L"Kept back");
    EXPECT_FALSE(documents().saveFormatName(13, name));
    EXPECT_STREQ(name.c_str(), L"Kept back");
}

TEST_F(Documents, TheViewPaintsLinetypes) {
    ASSERT_NE(documents().drawingView(), nullptr);
    ASSERT_NE(documents().drawingView()->linetypePreview(), nullptr);
    OdDbLinetypeTablePtr table;
    drawing->getLinetypeTable(table);
    CDC canvas;
    CBitmap bitmap;
    CClientDC screen(&parent);
    canvas.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, 60, 11);
    CBitmap* former = canvas.SelectObject(&bitmap);
    documents().drawingView()->linetypePreview()->drawLinetype(
        canvas, {0, 0, 60, 11}, table->getAt(L"Continuous"), RGB(255, 0, 0), RGB(0, 0, 255));
    EXPECT_EQ(canvas.GetPixel(30, 5), static_cast<COLORREF>(RGB(255, 0, 0)));
    EXPECT_EQ(canvas.GetPixel(30, 1), static_cast<COLORREF>(RGB(0, 0, 255)));
    canvas.SelectObject(former);
    documents().drawingView()->linetypePreview()->drawLinetype(nullptr, {0, 0, 60, 11},
                                                               table->getAt(L"Continuous"), 0, 0);
}
