#include <gtest/gtest.h>

#include "tests/platform/framework/raised.h"
#include "tests/platform/framework/second_module.h"
#include "tests/support/framework_printers.h"

namespace
{
// An exception that tells when it is destroyed.
class CWatchedException : public CException
{
public:
    CWatchedException(BOOL autoDelete, bool& destroyed) : CException(autoDelete), m_destroyed(destroyed) {}
    ~CWatchedException() override { m_destroyed = true; }

private:
    bool& m_destroyed;
};

CString MessageOf(const CException& exception)
{
    CString message;
    exception.GetErrorMessage(message.GetBuffer(256), 256);
    message.ReleaseBuffer();
    return message;
}
}  // namespace

TEST(CException, DeleteFreesAnObjectMadeForIt)
{
    bool destroyed = false;
    CException* const exception = new CWatchedException(TRUE, destroyed);
    exception->Delete();
    EXPECT_TRUE(destroyed);
}

TEST(CException, DeleteLeavesAnObjectThatItsOwnerFrees)
{
    bool destroyed = false;
    {
        CWatchedException exception(FALSE, destroyed);
        exception.Delete();
        EXPECT_FALSE(destroyed);
    }
    EXPECT_TRUE(destroyed);
}

TEST(CException, HasNoMessageOfItsOwn)
{
    bool destroyed = false;
    const CWatchedException exception(FALSE, destroyed);
    wchar_t message[8] = L"before";
    UINT help = 5;
    EXPECT_FALSE(exception.GetErrorMessage(message, 8, &help));
    EXPECT_STREQ(message, L"");
    EXPECT_EQ(help, 0U);
}

TEST(Exceptions, EachThrowFunctionThrowsItsClassByPointer)
{
    EXPECT_TRUE(Raises<CMemoryException>(AfxThrowMemoryException));
    EXPECT_TRUE(Raises<CNotSupportedException>(AfxThrowNotSupportedException));
    EXPECT_TRUE(Raises<CResourceException>(AfxThrowResourceException));
    EXPECT_TRUE(Raises<CUserException>(AfxThrowUserException));
    EXPECT_TRUE(Raises<CInvalidArgException>(AfxThrowInvalidArgException));
}

TEST(Exceptions, AreCaughtAsTheirBases)
{
    EXPECT_TRUE(Raises<CSimpleException>(AfxThrowInvalidArgException));
    EXPECT_TRUE(Raises<CException>(AfxThrowInvalidArgException));
}

TEST(Exceptions, CanBeThrownAgainAfterDelete)
{
    for (int time = 0; time < 3; ++time)
        EXPECT_TRUE(Raises<CInvalidArgException>(AfxThrowInvalidArgException)) << time;
}

TEST(Exceptions, KnowTheirClass)
{
    try
    {
        AfxThrowResourceException();
    }
    catch (CException* exception)
    {
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CResourceException)));
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CException)));
        EXPECT_FALSE(exception->IsKindOf(RUNTIME_CLASS(CInvalidArgException)));
        exception->Delete();
    }
}

TEST(Exceptions, HaveAMessageForTheUser)
{
    EXPECT_EQ(MessageOf(CMemoryException(FALSE)), L"There is not enough memory for this operation.");
    EXPECT_EQ(MessageOf(CNotSupportedException(FALSE)), L"This operation is not supported.");
    EXPECT_EQ(MessageOf(CResourceException(FALSE)),
              L"A window, picture or text that this operation needs is not available.");
    EXPECT_EQ(MessageOf(CUserException(FALSE)), L"The operation was stopped.");
    EXPECT_EQ(MessageOf(CInvalidArgException(FALSE)), L"The operation was given a value that it can't work with.");
}

TEST(Exceptions, CutTheMessageToTheBuffer)
{
    wchar_t message[11] = {};
    message[10] = L'!';
    EXPECT_TRUE(CUserException(FALSE).GetErrorMessage(message, 10));
    EXPECT_STREQ(message, L"The opera");  // nine characters and the terminator
    EXPECT_EQ(message[10], L'!');
}

TEST(Exceptions, OfAnotherModuleAreCaughtByTypeAndByBase)
{
    EXPECT_TRUE(Raises<CForeignException>(ThrowForeignException));
    EXPECT_TRUE(Raises<CUserException>(ThrowForeignException));
    EXPECT_TRUE(Raises<CException>(ThrowForeignException));
}

TEST(Exceptions, OfAContainerInAnotherModuleAreCaughtHere)
{
    CStringArray texts;
    texts.Add(L"one");
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { IndexOutOfBounds(texts); }));
    EXPECT_EQ(texts.GetSize(), 1);
}

TEST(Exceptions, OfAnotherModuleCanBeThrownOn)
{
    const auto throwOn = [] {
        try
        {
            ThrowForeignException();
        }
        catch (CUserException*)
        {
            throw;
        }
    };
    EXPECT_TRUE(Raises<CForeignException>(throwOn));
}

TEST(CString, GrowsInOneModuleAndIsFreedInTheOther)
{
    CString text(L"made in the program");
    AppendText(text, L" and made longer in the second module than any small buffer");
    EXPECT_EQ(text, L"made in the program and made longer in the second module than any small buffer");
    text = L"short";
    EXPECT_EQ(text, L"short");
}
