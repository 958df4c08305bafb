#include "texts.h"

#include <cwctype>

#include <afxwin.h>

#include "platform/moduleskin/module_skin.h"

std::wstring SkinText(unsigned id)
{
    const CModuleSkin skin(kModuleCalcTol);
    CString text;
    text.LoadString(id);
    return text.GetString();
}

int WidthIn(HFONT font, const std::wstring& text)
{
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ former = ::SelectObject(dc, font);
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    ::SelectObject(dc, former);
    ::ReleaseDC(nullptr, dc);
    return size.cx;
}

int WidthIn(HWND window, const std::wstring& text)
{
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    return WidthIn(font, WithoutMnemonicMark(text));
}

wchar_t Mnemonic(const std::wstring& text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
    {
        if (text[i] != L'&')
            continue;
        if (text[i + 1] != L'&')
            return static_cast<wchar_t>(std::towupper(text[i + 1]));
        ++i;
    }
    return 0;
}

std::wstring WithoutMnemonicMark(const std::wstring& text)
{
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != L'&' || (++i < text.size()))
            result += text[i];
    return result;
}

std::string Narrow(const std::wstring& text)
{
    return std::string(text.begin(), text.end());
}
