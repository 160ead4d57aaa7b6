// What the linetype picker asks of the host: the linetype manager and the samples.
#include "line_type_fixture.h"

using ui_test::addLinetype;
using ui_test::Canvas;
using ui_test::LinetypePickerInHolder;
using ui_test::OneDocument;
using ui_test::RecordingView;

namespace {

/// A mirrored drawing that is the current document, with a view of the host.
struct Shown : LinetypePickerInHolder {
    OneDocument document{drawing.database()};
    RecordingView view;
    Canvas canvas{100, 16, RGB(200, 100, 50)};

    Shown() {
        host.document = &document;
        host.view = &view;
    }
    void draw(__int64 cargo) {
        CRect rect(10, 1, 60, 15);
        picker.DrawItemImage(canvas.dc, rect, cargo);
    }
};

}  // namespace

TEST(LinetypeOther, DialogGetsTheFormerLinetypeAndItsChoiceIsSelected) {
    LinetypePickerInHolder of;
    OdDbObjectId startedFrom;
    of.host.onLinetypeDialog = [&](const OdDbObjectId& current, OdDbObjectId& chosen) {
        startedFrom = current;
        EXPECT_TRUE(chosen.isNull());
        chosen = addLinetype(of.drawing.database(), L"Loaded");
        return true;
    };
    of.in.choose(4);
    of.in.choose(6);
    EXPECT_EQ(startedFrom, of.dash10);
    EXPECT_EQ(of.host.linetypeDialogMode, 1);
    EXPECT_EQ(of.picker.getOIDCurSel(), of.idOf(L"Loaded"));
    EXPECT_EQ(of.picker.GetCount(), 7) << "the reload has dropped Other and added the new one";
}

TEST(LinetypeOther, CancelStillReloadsAndKeepsTheIndex) {
    LinetypePickerInHolder of;
    of.host.onLinetypeDialog = [&](const OdDbObjectId&, OdDbObjectId&) {
        addLinetype(of.drawing.database(), L"Centre");
        return false;
    };
    of.in.choose(4);
    int index = -1;
    EXPECT_EQ(of.picker.OnSelectOther(0, 4, index), 1);
    EXPECT_EQ(index, 4);
    EXPECT_EQ(of.picker.GetCount(), 7);
    EXPECT_EQ(of.in.texts()[4], L"Dash2") << "another linetype stands at the index now";
}

TEST(LinetypeOther, AnswerOfTheDialogIsNotLookedAt) {
    LinetypePickerInHolder of;
    of.host.onLinetypeDialog = [&](const OdDbObjectId&, OdDbObjectId& chosen) {
        chosen = of.zigzag;
        return false;
    };
    int index = -1;
    EXPECT_EQ(of.picker.OnSelectOther(1, 99, index), 1);
    EXPECT_EQ(index, 5);
}

TEST(LinetypeOther, WithoutAHostNothingIsReloaded) {
    LinetypePickerInHolder of;
    of.host.hasUiHost = false;
    addLinetype(of.drawing.database(), L"New");
    int index = 77;
    EXPECT_EQ(of.picker.OnSelectOther(0, 4, index), 0);
    EXPECT_EQ(index, 77);
    EXPECT_EQ(of.picker.GetCount(), 6);
}

TEST(LinetypeOther, ForcingWhileOtherIsSelectedOnlyClosesTheList) {
    LinetypePickerInHolder of;
    int dialogs = 0;
    of.host.onLinetypeDialog = [&](const OdDbObjectId&, OdDbObjectId&) { return ++dialogs > 0; };
    of.in.dropDown();
    ASSERT_TRUE(of.picker.GetDroppedState());
    // A list that is closed with Other selected would open the dialog by itself.
    of.picker.SetUseOther(0);
    of.picker.SetCurSel(6);
    of.picker.forceSelectOther(0);
    EXPECT_EQ(dialogs, 0);
    EXPECT_FALSE(of.picker.GetDroppedState());
    EXPECT_EQ(of.picker.GetCurSel(), 6);
}

TEST(LinetypeOther, ForcingOtherwiseShowsTheDialog) {
    LinetypePickerInHolder of;
    of.picker.setCurSelByOID(of.dash2);
    OdDbObjectId startedFrom;
    of.host.onLinetypeDialog = [&](const OdDbObjectId& current, OdDbObjectId& chosen) {
        startedFrom = current;
        chosen = of.zigzag;
        return true;
    };
    EXPECT_FALSE(of.picker.isOtherSelected());
    of.picker.forceSelectOther(0);
    EXPECT_EQ(startedFrom, of.dash2);
    EXPECT_EQ(of.picker.getOIDCurSel(), of.zigzag);
}

TEST(LinetypeOther, DialogIsTheHostsWhicheverIsForced) {
    LinetypePickerInHolder of;
    int dialogs = 0;
    of.host.onLinetypeDialog = [&](const OdDbObjectId&, OdDbObjectId&) { return ++dialogs > 0; };
    of.picker.setCurSelByOID(of.dash2);
    of.picker.forceSelectOther(1);
    EXPECT_EQ(dialogs, 1);
    EXPECT_EQ(of.picker.getOIDCurSel(), of.dash2);
}

TEST(LinetypeOther, ForcingAnOpenListShowsTheDialogToo) {
    LinetypePickerInHolder of;
    int dialogs = 0;
    of.host.onLinetypeDialog = [&](const OdDbObjectId&, OdDbObjectId& chosen) {
        chosen = of.dash10;
        return ++dialogs > 0;
    };
    of.in.dropDown();
    of.picker.setCurSelByOID(of.dash2);
    of.picker.forceSelectOther(0);
    EXPECT_EQ(dialogs, 1);
    EXPECT_EQ(of.picker.getOIDCurSel(), of.dash10);
    EXPECT_EQ(of.picker.getLastSelection(), of.picker.GetCurSel());
}

TEST(LinetypeSample, IsDrawnByTheViewInsideTheMargins) {
    Shown of;
    of.draw(of.picker.GetItemCargo(5));
    EXPECT_EQ(of.view.drawn, 1);
    EXPECT_EQ(of.view.dc, of.canvas.dc.m_hDC);
    EXPECT_EQ(of.view.rect, CRect(13, 2, 57, 14));
    EXPECT_EQ(of.view.id, of.zigzag);
    EXPECT_EQ(of.view.foreground, 0u);
    EXPECT_EQ(of.view.background, 0xFFFFFFu);
}

TEST(LinetypeSample, ByLayerMayShowTheLayersLinetypeInstead) {
    Shown of;
    of.draw(of.picker.GetItemCargo(0));
    EXPECT_EQ(of.view.id, of.idOf(L"ByLayer"));
    of.picker.layerLinetype = of.dash2;
    of.draw(of.picker.GetItemCargo(0));
    EXPECT_EQ(of.view.id, of.dash2) << "although the question was answered by false";
    of.draw(of.picker.GetItemCargo(1));
    EXPECT_EQ(of.view.id, of.idOf(L"ByBlock"));
}

TEST(LinetypeSample, ViewOfTheDocumentComesFirst) {
    Shown of;
    RecordingView own;
    of.document.view = &own;
    of.draw(of.picker.GetItemCargo(5));
    EXPECT_EQ(own.drawn, 1);
    EXPECT_EQ(of.view.drawn, 0);
}

TEST(LinetypeSample, NotDrawnWhileAnotherDocumentIsCurrent) {
    Shown of;
    const OdSmartPtr<OdDbDatabase> another(new OdDbDatabase);
    OneDocument other(another.get());
    of.host.document = &other;
    of.draw(of.picker.GetItemCargo(5));
    of.host.document = nullptr;
    of.draw(of.picker.GetItemCargo(5));
    EXPECT_EQ(of.view.drawn, 0);
}

TEST(LinetypeSample, NotDrawnWithoutAViewOrItsPreview) {
    Shown of;
    of.view.hasPreview = false;
    of.draw(of.picker.GetItemCargo(5));
    of.host.view = nullptr;
    of.draw(of.picker.GetItemCargo(5));
    EXPECT_EQ(of.view.drawn, 0);
}

TEST(LinetypeSample, NotDrawnForOtherForOptionsOrForForeignRecords) {
    Shown of;
    CKtUiLTypeRecord foreign(L"Foreign", of.zigzag);
    const std::vector<__int64> cargos = {kCargoOther, -104, -105, 0, -1, foreign.cargo()};
    for (const __int64 cargo : cargos) of.draw(cargo);
    EXPECT_EQ(of.view.drawn, 0);
}
