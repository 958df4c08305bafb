#pragma once

#include "base/object.h"

/// Root of the framework's exceptions. They are thrown and caught as pointers; who catches one and does not rethrow it
/// calls Delete.
class FRAMEWORK_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    /// Made with new: Delete frees the object.
    CException();
    /// @param autoDelete  TRUE for an object made with new, FALSE for one that its owner frees otherwise
    explicit CException(BOOL autoDelete);
    ~CException() override;

    /// Ends the use of a caught exception: frees it when it was made with automatic deletion.
    void Delete();

    /// The text for the user, cut to `capacity` characters with the terminator. This class has none.
    /// @param helpContext  when given, set to 0: no exception here has a help topic
    /// @return             zero, and an empty text, when there is no message
    virtual BOOL GetErrorMessage(LPWSTR buffer, UINT capacity, PUINT helpContext = nullptr) const;

    /// Shows the message in a message box.
    /// @param type       style of the box, as for AfxMessageBox
    /// @param messageId  string resource shown when the exception has no message; 0 for a general sentence
    /// @return           the button pressed
    virtual int ReportError(UINT type = MB_OK, UINT messageId = 0);

private:
    BOOL m_autoDelete;
};

/// An exception whose message is a string of the framework's own resources, so that neither throwing nor reporting it
/// allocates.
class FRAMEWORK_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    BOOL GetErrorMessage(LPWSTR buffer, UINT capacity, PUINT helpContext = nullptr) const override;

protected:
    CSimpleException(BOOL autoDelete, UINT messageId);

private:
    UINT m_messageId;
};

/// Memory has run out.
class FRAMEWORK_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    explicit CMemoryException(BOOL autoDelete = TRUE);
};

/// What was asked for is not supported.
class FRAMEWORK_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

public:
    explicit CNotSupportedException(BOOL autoDelete = TRUE);
};

/// A resource is missing, or Windows refused a window or a graphics object.
class FRAMEWORK_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    explicit CResourceException(BOOL autoDelete = TRUE);
};

/// An operation of the user was stopped, and the user has been told already.
class FRAMEWORK_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

public:
    explicit CUserException(BOOL autoDelete = TRUE);
};

/// An argument is outside of what the operation allows.
class FRAMEWORK_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    explicit CInvalidArgException(BOOL autoDelete = TRUE);
};

// Each throws a pointer to an object that lives as long as the framework: throwing needs no memory and Delete frees
// none.
[[noreturn]] FRAMEWORK_API void AfxThrowMemoryException();
[[noreturn]] FRAMEWORK_API void AfxThrowNotSupportedException();
[[noreturn]] FRAMEWORK_API void AfxThrowResourceException();
[[noreturn]] FRAMEWORK_API void AfxThrowUserException();
[[noreturn]] FRAMEWORK_API void AfxThrowInvalidArgException();
