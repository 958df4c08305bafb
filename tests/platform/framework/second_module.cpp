#include "tests/platform/framework/second_module.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;  // the linker's name for the first byte of this library

IMPLEMENT_DYNCREATE(CForeignObject, CObject)
IMPLEMENT_DYNAMIC(CForeignException, CUserException)

CForeignException::~CForeignException() = default;

HINSTANCE SecondModuleInstance()
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

void ThrowForeignException()
{
    throw new CForeignException;
}

void IndexOutOfBounds(const CStringArray& texts)
{
    texts.GetAt(texts.GetSize());
}

void AppendNumbers(CStringArray& texts, int count)
{
    for (int number = 0; number < count; ++number)
    {
        CString text;
        text.Format(L"number %d of a text that is too long for a small buffer", number);
        texts.Add(text);
    }
}

void AppendText(CString& text, LPCWSTR added)
{
    text += added;
}

void AddNumbersToList(CList<CString, LPCWSTR>& texts, int count)
{
    for (int number = 0; number < count; ++number)
    {
        CString text;
        text.Format(L"%d", number);
        texts.AddTail(text);
    }
}

void SetSquares(CMap<int, int, int, int>& squares, int count)
{
    for (int number = 0; number < count; ++number)
        squares.SetAt(number, number * number);
}
