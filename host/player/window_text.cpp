#include "host/player/window_text.h"

#include <vector>

#include "host/player/script.h"
#include "host/player/step_failure.h"

std::wstring ToWide(std::string_view utf8)
{
    const int size = static_cast<int>(utf8.size());
    std::wstring text(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

std::string ToUtf8(std::wstring_view text)
{
    const int size = static_cast<int>(text.size());
    std::string utf8(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
    return utf8;
}

std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (const char character : text)
    {
        if (character == '\n')
            quoted += "\\n";
        else
            quoted += character;
    }
    return quoted + "\"";
}

std::string WindowText(HWND window)
{
    // WM_GETTEXT itself, not GetWindowText: controls such as combo boxes answer it with what they show.
    const auto length = static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
    std::vector<wchar_t> text(length + 1);
    const auto copied =
        static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    return ToUtf8({text.data(), copied});
}

std::wstring WindowClass(HWND window)
{
    wchar_t name[256] = {};
    const int length = GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return {name, static_cast<std::size_t>(length)};
}

HMODULE ResourceLibrary()
{
    const HMODULE library = GetModuleHandleW(L"ModuleSkin.dll");
    if (library == nullptr)
        throw StepFailure("the resource library ModuleSkin.dll is not loaded");
    return library;
}

std::string ResourceString(int id)
{
    const wchar_t* text = nullptr;
    // A buffer size of 0 asks for a pointer to the text inside the library.
    const int length = LoadStringW(ResourceLibrary(), static_cast<UINT>(id), reinterpret_cast<wchar_t*>(&text), 0);
    if (length <= 0)
        throw StepFailure("the resource library has no string " + std::to_string(id));
    return ToUtf8({text, static_cast<std::size_t>(length)});
}

std::string ResolveText(const ScriptText& text)
{
    return text.resource ? ResourceString(*text.resource) : text.text;
}
