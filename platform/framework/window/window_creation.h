#pragma once

#include <afx.h>

class CWnd;

/// Gives an object its window while Windows creates it, before the window's first message. Creations may nest. When
/// Windows gives the window up without a message, the object is told at the end as of a destroyed one.
class WindowCreation
{
public:
    /// @param className  of the expected window: others, such as those of input methods, are left alone
    WindowCreation(CWnd& object, LPCWSTR className);
    ~WindowCreation();
    WindowCreation(const WindowCreation&) = delete;
    WindowCreation& operator=(const WindowCreation&) = delete;

    /// Whether the object got its window, which may be gone again, and the object with it.
    bool HasBegun() const { return m_object == nullptr; }

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);
    bool IsExpected(HWND window) const;

    CWnd* m_object;  // null from the moment it has its window
    HWND m_window = nullptr;
    LPCWSTR m_className;
    WindowCreation* m_outer;
    HHOOK m_hook;
};
