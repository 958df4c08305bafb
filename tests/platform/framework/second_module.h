#pragma once

#include <afxcoll.h>
#include <afxtempl.h>

#ifdef SECOND_MODULE_EXPORTS
#define SECOND_MODULE_API __declspec(dllexport)
#else
#define SECOND_MODULE_API __declspec(dllimport)
#endif

// A second module beside the test program, for what has to work across modules.

SECOND_MODULE_API HINSTANCE SecondModuleInstance();

/// A class of the second module that can be made by name.
class SECOND_MODULE_API CForeignObject : public CObject
{
    DECLARE_DYNCREATE(CForeignObject)

public:
    int m_value = 7;
};

/// An exception that only the second module defines.
class SECOND_MODULE_API CForeignException : public CUserException
{
    DECLARE_DYNAMIC(CForeignException)

public:
    ~CForeignException() override;
};

SECOND_MODULE_API void ThrowForeignException();
SECOND_MODULE_API void IndexOutOfBounds(const CStringArray& texts);
SECOND_MODULE_API void AppendNumbers(CStringArray& texts, int count);
SECOND_MODULE_API void AppendText(CString& text, LPCWSTR added);
SECOND_MODULE_API void AddNumbersToList(CList<CString, LPCWSTR>& texts, int count);
SECOND_MODULE_API void SetSquares(CMap<int, int, int, int>& squares, int count);
