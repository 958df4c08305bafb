#pragma once

#include "controls/scroll_bar.h"
#include "graphics/dc.h"
#include "graphics/menu.h"
#include "window/message_map.h"
#include "window/wnd.h"

namespace message_map
{
inline int SignedLow(LPARAM value)
{
    return static_cast<short>(LOWORD(value));
}

inline int SignedHigh(LPARAM value)
{
    return static_cast<short>(HIWORD(value));
}

inline CWnd* WindowOf(WPARAM value)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(value));
}

template <auto handler>
void Create(CCmdTarget& target, HandlerCall& call)
{
    call.result = Call<handler, int>(target, reinterpret_cast<LPCREATESTRUCT>(call.lParam));
}

template <auto handler>
void EraseBackground(CCmdTarget& target, HandlerCall& call)
{
    call.result = Call<handler, BOOL>(target, CDC::FromHandle(reinterpret_cast<HDC>(call.wParam)));
}

template <auto handler>
void Size(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, static_cast<UINT>(call.wParam), static_cast<int>(LOWORD(call.lParam)),
                        static_cast<int>(HIWORD(call.lParam)));
}

template <auto handler>
void Key(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, static_cast<UINT>(call.wParam), static_cast<UINT>(LOWORD(call.lParam)),
                        static_cast<UINT>(HIWORD(call.lParam)));
}

template <auto handler>
void Focus(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, WindowOf(call.wParam));
}

template <auto handler>
void Mouse(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, static_cast<UINT>(call.wParam),
                        CPoint(SignedLow(call.lParam), SignedHigh(call.lParam)));
}

template <auto handler>
void MouseWheel(CCmdTarget& target, HandlerCall& call)
{
    call.result =
        Call<handler, BOOL>(target, static_cast<UINT>(LOWORD(call.wParam)), static_cast<short>(HIWORD(call.wParam)),
                            CPoint(SignedLow(call.lParam), SignedHigh(call.lParam)));
}

// A trackbar reports like a scroll bar: the documented pointer type is CScrollBar for it as well.
template <auto handler>
void Scroll(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, static_cast<UINT>(LOWORD(call.wParam)), static_cast<UINT>(HIWORD(call.wParam)),
                        static_cast<CScrollBar*>(WindowOf(static_cast<WPARAM>(call.lParam))));
}

template <auto handler>
void InitMenuPopup(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, CMenu::FromHandle(reinterpret_cast<HMENU>(call.wParam)),
                        static_cast<UINT>(LOWORD(call.lParam)), static_cast<BOOL>(HIWORD(call.lParam)));
}

template <auto handler>
void ContextMenu(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, WindowOf(call.wParam), CPoint(SignedLow(call.lParam), SignedHigh(call.lParam)));
}

template <auto handler>
void DialogCode(CCmdTarget& target, HandlerCall& call)
{
    call.result = Call<handler, UINT>(target);
}

template <auto handler>
void SetCursor(CCmdTarget& target, HandlerCall& call)
{
    call.result = Call<handler, BOOL>(target, WindowOf(call.wParam), static_cast<UINT>(LOWORD(call.lParam)),
                                      static_cast<UINT>(HIWORD(call.lParam)));
}

template <auto handler>
void DrawItem(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, static_cast<int>(call.wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(call.lParam));
    call.result = TRUE;
}

template <auto handler>
void MeasureItem(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, static_cast<int>(call.wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(call.lParam));
    call.result = TRUE;
}

}  // namespace message_map

#define FRAMEWORK_ON_WM(message, kind, handler) {message, 0, 0, 0, &message_map::kind<&ThisClass::handler>},

// The handlers are declared in CWnd, where their signatures stand.
#define ON_WM_CREATE() FRAMEWORK_ON_WM(WM_CREATE, Create, OnCreate)
#define ON_WM_DESTROY() FRAMEWORK_ON_WM(WM_DESTROY, Plain, OnDestroy)
#define ON_WM_NCDESTROY() FRAMEWORK_ON_WM(WM_NCDESTROY, Plain, OnNcDestroy)
#define ON_WM_CLOSE() FRAMEWORK_ON_WM(WM_CLOSE, Plain, OnClose)
#define ON_WM_PAINT() FRAMEWORK_ON_WM(WM_PAINT, Plain, OnPaint)
#define ON_WM_ERASEBKGND() FRAMEWORK_ON_WM(WM_ERASEBKGND, EraseBackground, OnEraseBkgnd)
#define ON_WM_SIZE() FRAMEWORK_ON_WM(WM_SIZE, Size, OnSize)
#define ON_WM_CHAR() FRAMEWORK_ON_WM(WM_CHAR, Key, OnChar)
#define ON_WM_KEYDOWN() FRAMEWORK_ON_WM(WM_KEYDOWN, Key, OnKeyDown)
#define ON_WM_KEYUP() FRAMEWORK_ON_WM(WM_KEYUP, Key, OnKeyUp)
#define ON_WM_SETFOCUS() FRAMEWORK_ON_WM(WM_SETFOCUS, Focus, OnSetFocus)
#define ON_WM_KILLFOCUS() FRAMEWORK_ON_WM(WM_KILLFOCUS, Focus, OnKillFocus)
#define ON_WM_LBUTTONDOWN() FRAMEWORK_ON_WM(WM_LBUTTONDOWN, Mouse, OnLButtonDown)
#define ON_WM_LBUTTONUP() FRAMEWORK_ON_WM(WM_LBUTTONUP, Mouse, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() FRAMEWORK_ON_WM(WM_LBUTTONDBLCLK, Mouse, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() FRAMEWORK_ON_WM(WM_RBUTTONDOWN, Mouse, OnRButtonDown)
#define ON_WM_MOUSEMOVE() FRAMEWORK_ON_WM(WM_MOUSEMOVE, Mouse, OnMouseMove)
#define ON_WM_MOUSEWHEEL() FRAMEWORK_ON_WM(WM_MOUSEWHEEL, MouseWheel, OnMouseWheel)
#define ON_WM_HSCROLL() FRAMEWORK_ON_WM(WM_HSCROLL, Scroll, OnHScroll)
#define ON_WM_VSCROLL() FRAMEWORK_ON_WM(WM_VSCROLL, Scroll, OnVScroll)
#define ON_WM_INITMENUPOPUP() FRAMEWORK_ON_WM(WM_INITMENUPOPUP, InitMenuPopup, OnInitMenuPopup)
#define ON_WM_CONTEXTMENU() FRAMEWORK_ON_WM(WM_CONTEXTMENU, ContextMenu, OnContextMenu)
#define ON_WM_GETDLGCODE() FRAMEWORK_ON_WM(WM_GETDLGCODE, DialogCode, OnGetDlgCode)
#define ON_WM_SETCURSOR() FRAMEWORK_ON_WM(WM_SETCURSOR, SetCursor, OnSetCursor)
#define ON_WM_DRAWITEM() FRAMEWORK_ON_WM(WM_DRAWITEM, DrawItem, OnDrawItem)
#define ON_WM_MEASUREITEM() FRAMEWORK_ON_WM(WM_MEASUREITEM, MeasureItem, OnMeasureItem)
