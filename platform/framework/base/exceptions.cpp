#include "base/exceptions.h"

#include "application/message_box.h"
#include "base/messages.h"
#include "base/resource_lookup.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;  // the linker's name for the first byte of this library

namespace
{
constexpr UINT kMessageCapacity = 256;  // characters of the longest message shown, with the terminator

bool LoadOwnMessage(UINT id, LPWSTR buffer, UINT capacity)
{
    const auto framework = reinterpret_cast<HINSTANCE>(&__ImageBase);
    return ::LoadStringW(framework, id, buffer, static_cast<int>(capacity)) > 0;
}

// An exception object that is never freed by a handler.
template <class EXCEPTION>
EXCEPTION* LastingException()
{
    static EXCEPTION exception(FALSE);
    return &exception;
}
}  // namespace

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

CException::CException() : CException(TRUE) {}

CException::CException(BOOL autoDelete) : m_autoDelete(autoDelete) {}

CException::~CException() = default;

void CException::Delete()
{
    if (m_autoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPWSTR buffer, UINT capacity, PUINT helpContext) const
{
    if (helpContext != nullptr)
        *helpContext = 0;
    if (capacity > 0)
        buffer[0] = L'\0';
    return FALSE;
}

int CException::ReportError(UINT type, UINT messageId)
{
    wchar_t message[kMessageCapacity];
    if (!GetErrorMessage(message, kMessageCapacity))
    {
        if (messageId == 0 || AfxLoadString(messageId, message, kMessageCapacity) == 0)
            LoadOwnMessage(AFX_IDS_NO_MESSAGE, message, kMessageCapacity);
    }
    return AfxMessageBox(message, type);
}

CSimpleException::CSimpleException(BOOL autoDelete, UINT messageId) : CException(autoDelete), m_messageId(messageId) {}

BOOL CSimpleException::GetErrorMessage(LPWSTR buffer, UINT capacity, PUINT helpContext) const
{
    CException::GetErrorMessage(buffer, capacity, helpContext);
    return capacity > 0 && LoadOwnMessage(m_messageId, buffer, capacity);
}

CMemoryException::CMemoryException(BOOL autoDelete) : CSimpleException(autoDelete, AFX_IDS_MEMORY_EXCEPTION) {}

CNotSupportedException::CNotSupportedException(BOOL autoDelete)
    : CSimpleException(autoDelete, AFX_IDS_NOT_SUPPORTED_EXCEPTION)
{
}

CResourceException::CResourceException(BOOL autoDelete) : CSimpleException(autoDelete, AFX_IDS_RESOURCE_EXCEPTION) {}

CUserException::CUserException(BOOL autoDelete) : CSimpleException(autoDelete, AFX_IDS_USER_EXCEPTION) {}

CInvalidArgException::CInvalidArgException(BOOL autoDelete)
    : CSimpleException(autoDelete, AFX_IDS_INVALID_ARG_EXCEPTION)
{
}

void AfxThrowMemoryException()
{
    throw LastingException<CMemoryException>();
}

void AfxThrowNotSupportedException()
{
    throw LastingException<CNotSupportedException>();
}

void AfxThrowResourceException()
{
    throw LastingException<CResourceException>();
}

void AfxThrowUserException()
{
    throw LastingException<CUserException>();
}

void AfxThrowInvalidArgException()
{
    throw LastingException<CInvalidArgException>();
}
