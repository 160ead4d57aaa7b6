// Run-time classes and exceptions.
#include <afx.h>
#include <gtest/gtest.h>

namespace {

class CShape : public CObject {
    DECLARE_DYNAMIC(CShape)
};

class CCircle : public CShape {
    DECLARE_DYNCREATE(CCircle)
public:
    int m_radius = 3;
};

class CSquare : public CShape {
    DECLARE_DYNAMIC(CSquare)
};

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CCircle, CShape)
IMPLEMENT_DYNAMIC(CSquare, CShape)

/// Counts live objects, so that a test can tell that one was freed.
class CCounted : public CException {
    DECLARE_DYNAMIC(CCounted)
public:
    CCounted() { ++live; }
    ~CCounted() override { --live; }
    static inline int live = 0;
};
IMPLEMENT_DYNAMIC(CCounted, CException)

}  // namespace

TEST(RuntimeClass, KnowsWhatAnObjectIs) {
    CCircle circle;
    const CObject& object = circle;
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CCircle)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CShape)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CSquare)));
    EXPECT_STREQ(object.GetRuntimeClass()->m_lpszClassName, "CCircle");
    EXPECT_FALSE(object.IsSerializable());
}

TEST(RuntimeClass, CastsDownOnlyToWhatTheObjectIs) {
    CCircle circle;
    CObject* object = &circle;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CCircle, object), &circle);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CShape, object), &circle);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CSquare, object), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CSquare, static_cast<CObject*>(nullptr)), nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(CCircle, object), &circle);
}

TEST(RuntimeClass, CreatesByNameWhatCanBeCreated) {
    std::unique_ptr<CObject> made(CRuntimeClass::CreateObject(L"CCircle"));
    ASSERT_TRUE(made);
    EXPECT_EQ(static_cast<CCircle*>(made.get())->m_radius, 3);
    EXPECT_EQ(CRuntimeClass::FromName("CSquare"), RUNTIME_CLASS(CSquare));
    EXPECT_EQ(CRuntimeClass::CreateObject("CSquare"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CNoSuchClass"), nullptr);
}

TEST(RuntimeClass, AClassOfAnUnloadedModuleIsNoLongerFound) {
    CRuntimeClass transient = {"CTransient", 8, 0xFFFF, nullptr, &CObject::GetThisClass, nullptr};
    {
        const AFX_CLASSINIT loaded(&transient);
        EXPECT_EQ(CRuntimeClass::FromName("CTransient"), &transient);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CTransient"), nullptr);
}

TEST(RuntimeClass, HooksDecideWhereClassesAreEntered) {
    static CRuntimeClass* module_list;
    module_list = nullptr;
    CRuntimeClass entered = {"CEntered", 8, 0xFFFF, nullptr, &CObject::GetThisClass, nullptr};
    const kmfc::ClassListHooks before = kmfc::set_class_list_hooks(
        [] { return &module_list; }, [](CRuntimeClass* at) { return at ? at->m_pNextClass : module_list; });
    AfxClassInit(&entered);
    EXPECT_EQ(module_list, &entered);
    EXPECT_EQ(CRuntimeClass::FromName("CEntered"), &entered);
    EXPECT_EQ(CRuntimeClass::FromName("CCircle"), nullptr);
    kmfc::set_class_list_hooks(before.head, before.walker);
    EXPECT_EQ(CRuntimeClass::FromName("CEntered"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CCircle"), RUNTIME_CLASS(CCircle));
}

TEST(Exceptions, AreThrownAsPointersAndToldApartByClass) {
    EXPECT_THROW(AfxThrowMemoryException(), CMemoryException*);
    EXPECT_THROW(AfxThrowNotSupportedException(), CNotSupportedException*);
    EXPECT_THROW(AfxThrowResourceException(), CResourceException*);
    EXPECT_THROW(AfxThrowUserException(), CUserException*);
    EXPECT_THROW(AfxThrowInvalidArgException(), CInvalidArgException*);
    try {
        AfxThrowResourceException();
    } catch (CException* e) {
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CSimpleException)));
        e->Delete();  // shared: stays
        wchar_t text[12];
        EXPECT_TRUE(e->GetErrorMessage(text, 12));
        EXPECT_STREQ(text, L"A required ");
    }
}

TEST(Exceptions, TheMacrosFreeWhatTheyCaught) {
    bool caught = false;
    TRY { throw new CCounted; }
    CATCH(CMemoryException, e) { FAIL() << "caught as " << e->GetRuntimeClass()->m_lpszClassName; }
    AND_CATCH(CCounted, e) {
        caught = true;
        EXPECT_EQ(e->live, 1);
    }
    END_CATCH
    EXPECT_TRUE(caught);
    EXPECT_EQ(CCounted::live, 0);
}

TEST(Exceptions, ThrowLastHandsTheSameObjectOn) {
    CException* inner = nullptr;
    CException* outer = nullptr;
    TRY{TRY{THROW(new CCounted);
}
CATCH_ALL(e) {
    inner = e;
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH_ALL(e) {
    outer = e;
    EXPECT_EQ(CCounted::live, 1);
}
END_CATCH_ALL
EXPECT_EQ(inner, outer);
EXPECT_NE(inner, nullptr);
EXPECT_EQ(CCounted::live, 0);
}

TEST(Exceptions, ANewExceptionFromAHandlerFreesTheOld) { TRY{TRY{THROW(new CCounted); }
CATCH(CCounted, e) {
    EXPECT_EQ(e->live, 1);
    AfxThrowUserException();
}
END_CATCH
}
CATCH(CUserException, e) { EXPECT_EQ(CCounted::live, 0) << e->m_bAutoDelete; }
END_CATCH
}
