#include <memory>

#include <afxcoll.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/second_module.h"

namespace
{
class CShape : public CObject
{
    DECLARE_DYNAMIC(CShape)
};

class CCircle : public CShape
{
    DECLARE_DYNCREATE(CCircle)

public:
    int m_radius = 5;
};

class CUnnamedCircle : public CCircle
{
};

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CCircle, CShape)
}  // namespace

TEST(CRuntimeClass, KnowsNameAndSize)
{
    EXPECT_STREQ(RUNTIME_CLASS(CCircle)->m_lpszClassName, "CCircle");
    EXPECT_EQ(RUNTIME_CLASS(CCircle)->m_nObjectSize, static_cast<int>(sizeof(CCircle)));
    EXPECT_STREQ(RUNTIME_CLASS(CObject)->m_lpszClassName, "CObject");
}

TEST(CRuntimeClass, AnObjectGivesTheClassItWasMadeAs)
{
    const CCircle circle;
    const CObject& object = circle;
    EXPECT_EQ(object.GetRuntimeClass(), RUNTIME_CLASS(CCircle));
}

TEST(CRuntimeClass, IsDerivedFromEveryBaseAndItself)
{
    EXPECT_TRUE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CCircle)));
    EXPECT_TRUE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CShape)));
    EXPECT_TRUE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(RUNTIME_CLASS(CShape)->IsDerivedFrom(RUNTIME_CLASS(CCircle)));
    EXPECT_FALSE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CPtrList)));
}

TEST(CObject, IsKindOfItsClassAndEveryBase)
{
    const CCircle circle;
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CCircle)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CShape)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(CShape().IsKindOf(RUNTIME_CLASS(CCircle)));
}

TEST(CObject, AClassWithoutMacrosCountsAsItsBase)
{
    const CUnnamedCircle circle;
    EXPECT_EQ(circle.GetRuntimeClass(), RUNTIME_CLASS(CCircle));
}

TEST(CRuntimeClass, CreatesObjectsOfAClassThatAllowsIt)
{
    const std::unique_ptr<CObject> object(RUNTIME_CLASS(CCircle)->CreateObject());
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(dynamic_cast<CCircle&>(*object).m_radius, 5);
}

TEST(CRuntimeClass, CreatesNothingOfOtherClasses)
{
    EXPECT_EQ(RUNTIME_CLASS(CShape)->CreateObject(), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CObject)->CreateObject(), nullptr);
}

TEST(CRuntimeClass, IsFoundByName)
{
    EXPECT_EQ(CRuntimeClass::FromName("CCircle"), RUNTIME_CLASS(CCircle));
    EXPECT_EQ(CRuntimeClass::FromName(L"CShape"), RUNTIME_CLASS(CShape));
    EXPECT_EQ(CRuntimeClass::FromName(L"CObject"), RUNTIME_CLASS(CObject));
    EXPECT_EQ(CRuntimeClass::FromName("CPtrList"), RUNTIME_CLASS(CPtrList));
    EXPECT_EQ(CRuntimeClass::FromName("CNowhere"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(L"\u0421Circle"), nullptr);  // begins with a Cyrillic letter es
}

TEST(CRuntimeClass, IsTheSameInEveryModule)
{
    CRuntimeClass* const found = CRuntimeClass::FromName("CForeignObject");
    ASSERT_EQ(found, RUNTIME_CLASS(CForeignObject));
    const std::unique_ptr<CObject> object(found->CreateObject());
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_EQ(dynamic_cast<CForeignObject&>(*object).m_value, 7);
}

TEST(CRuntimeClass, IsForgottenWhenItsModuleGoes)
{
    CRuntimeClass passing = {"CPassing", 1, nullptr, nullptr, nullptr};
    CRuntimeClass other = {"COther", 1, nullptr, nullptr, nullptr};
    {
        const AFX_CLASSINIT registration(&passing);
        const AFX_CLASSINIT otherRegistration(&other);
        EXPECT_EQ(CRuntimeClass::FromName("CPassing"), &passing);
        EXPECT_EQ(CRuntimeClass::FromName("COther"), &other);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CPassing"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("COther"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CCircle"), RUNTIME_CLASS(CCircle));
}
