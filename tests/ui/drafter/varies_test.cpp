// Objects that differ: the dialog says so by "*VARIES*", writes nothing for it, and it can be picked again.
#include "../../../samples/drafter/properties_dialog.h"
#include "drafter_fixture.h"

using namespace ui_test;

namespace {

constexpr const wchar_t* kVaries = L"*VARIES*";

class Varies : public DrafterTest {
protected:
    Varies() {
        OdDbLinetypeTablePtr linetypes;
        drawing->getLinetypeTable(linetypes, OdDb::kForWrite);
        const OdDbSymbolTableRecordPtr dashed = linetypes->newRecord();
        dashed->setName(L"DASHED");
        linetypes->add(dashed, &dashedId);
        for (int i = 0; i < 2; ++i) {
            OdSmartPtr<OdDbLine> line(new OdDbLine);
            OdDbEntityPtr entity(line.get());
            drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(entity);
            entity->setColorIndex(i + 1);
            entity->setLineWeight(i == 0 ? OdDb::kLnWt013 : OdDb::kLnWt050);
            entity->setThickness(i + 1);
            entity->setHyperlink(i == 0 ? L"a" : L"b");
            if (i == 0) entity->setLinetype(dashedId);
            objects.push_back(entity->objectId());
        }
        dialog = std::make_unique<WithOwnSettings<CPropertiesDialog>>(*drawing, objects, &parent);
    }
    CWnd& at(int id) { return item(*dialog, id); }
    std::wstring entry(int id) {
        wchar_t text[100] = {};
        at(id).SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(selected(at(id))),
                           reinterpret_cast<LPARAM>(text));
        return text;
    }
    std::wstring field(int id) { return text_of(at(id).m_hWnd).GetString(); }
    /// Picks an entry of a picker by keys.
    void pick(int id, int index) {
        drop(at(id));
        key(at(id), VK_HOME);
        for (int i = 0; i < index; ++i) key(at(id), VK_DOWN);
        key(at(id), VK_RETURN);
    }
    void enter(int id, const wchar_t* text) {
        at(id).SetFocus();
        at(id).SendMessage(EM_SETSEL, 0, -1);
        at(id).SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
        pump();
    }
    OdDbEntityPtr object(int i) { return objects[static_cast<std::size_t>(i)].open<OdDbEntity>(); }

    OdDbObjectId dashedId;
    std::vector<OdDbObjectId> objects;
    std::unique_ptr<WithOwnSettings<CPropertiesDialog>> dialog;
};

TEST_F(Varies, ShowsInPickersAndFieldsAndIsNotWritten) {
    show(
        *dialog,
        [&] {
            for (const int id : {IDC_TRUE_COLOR, IDC_INDEX_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT})
                EXPECT_EQ(entry(id), kVaries) << id;
            EXPECT_EQ(field(IDC_THICKNESS), kVaries);
            EXPECT_EQ(field(IDC_HYPERLINK), kVaries);
            EXPECT_EQ(field(IDC_ELEVATION), L"0.0000") << "the same in both";
            EXPECT_TRUE(field(IDC_MESSAGE).empty()) << "it is no mistake";
        },
        IDOK);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(object(i)->colorIndex(), i + 1);
        EXPECT_EQ(object(i)->thickness(), i + 1);
    }
    EXPECT_EQ(object(0)->linetypeId(), dashedId);
    EXPECT_EQ(object(1)->hyperlink(), L"b");
}

TEST_F(Varies, CanBePickedAgainInEveryPicker) {
    show(
        *dialog,
        [&] {
            for (const int id : {IDC_TRUE_COLOR, IDC_INDEX_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT}) {
                pick(id, 3);
                EXPECT_NE(entry(id), kVaries) << id;
                pick(id, 0);
                EXPECT_EQ(entry(id), kVaries) << id;
            }
        },
        IDOK);
    EXPECT_EQ(object(0)->colorIndex(), 1);
    EXPECT_EQ(object(1)->colorIndex(), 2);
    EXPECT_EQ(object(0)->linetypeId(), dashedId);
    EXPECT_EQ(object(0)->lineWeight(), OdDb::kLnWt013);
}

TEST_F(Varies, BothColorPickersSayTheSame) {
    show(*dialog, [&] {
        pick(IDC_INDEX_COLOR, 4);
        EXPECT_EQ(entry(IDC_TRUE_COLOR), entry(IDC_INDEX_COLOR));
        pick(IDC_TRUE_COLOR, 0);
        EXPECT_EQ(entry(IDC_INDEX_COLOR), kVaries);
    });
}

TEST_F(Varies, AnotherValueIsWrittenToAll) {
    show(
        *dialog,
        [&] {
            pick(IDC_LINE_WEIGHT, 1);
            enter(IDC_THICKNESS, L"7");
        },
        IDOK);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(object(i)->lineWeight(), OdDb::kLnWtByLayer);
        EXPECT_EQ(object(i)->thickness(), 7);
    }
}

TEST_F(Varies, DeletingAFieldsTextOrTypingItBringsItBack) {
    show(
        *dialog,
        [&] {
            enter(IDC_THICKNESS, L"7");
            enter(IDC_THICKNESS, L"");
            at(IDC_HYPERLINK).SetFocus();
            EXPECT_EQ(field(IDC_THICKNESS), kVaries);
            enter(IDC_HYPERLINK, L"c");
            enter(IDC_HYPERLINK, kVaries);
            EXPECT_TRUE(field(IDC_MESSAGE).empty());
        },
        IDOK);
    EXPECT_EQ(object(1)->thickness(), 2);
    EXPECT_EQ(object(0)->hyperlink(), L"a");
}

TEST_F(Varies, NoTextIsAHyperlinkOfItsOwn) {
    show(
        *dialog,
        [&] {
            enter(IDC_HYPERLINK, L"");
            at(IDC_THICKNESS).SetFocus();
            EXPECT_EQ(field(IDC_HYPERLINK), L"");
        },
        IDOK);
    EXPECT_TRUE(object(1)->hyperlink().isEmpty());
}

TEST_F(Varies, OneObjectIsOne) {
    objects.resize(1);
    WithOwnSettings<CPropertiesDialog> one(*drawing, objects, &parent);
    show(one, [&] {
        EXPECT_STREQ(text_of(one.m_hWnd), L"Properties - Line");
        EXPECT_EQ(
            item(one, IDC_LINE_WEIGHT)
                .SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(kVaries)),
            CB_ERR);
    });
}

}  // namespace
