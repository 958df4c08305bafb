#pragma once

#include <type_traits>

#include <windows.h>

#include <commctrl.h>

#include "window/command_target.h"

/// Inside a class: it has a message map. What follows in the class is protected.
#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(class_name, base_class_name)                                                                 \
    const AFX_MSGMAP* class_name::GetMessageMap() const                                                                \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* class_name::GetThisMessageMap()                                                                  \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = class_name;                                                                 \
        using BaseClassOfMap = base_class_name;                                                                        \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, nullptr                                                                                            \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP map = {&BaseClassOfMap::GetThisMessageMap, entries};                                       \
    return &map;                                                                                                       \
    }

/// Calling of handlers: each function here unpacks one kind of message. A handler with another signature than the
/// documented one does not compile.
namespace message_map
{
template <typename Handler>
struct HandlerTraits;

template <typename Class, typename Result, typename... Arguments>
struct HandlerTraits<Result (Class::*)(Arguments...)>
{
    using Target = Class;
    using Signature = Result(Arguments...);
};

template <typename Class, typename Result, typename... Arguments>
struct HandlerTraits<Result (Class::*)(Arguments...) noexcept> : HandlerTraits<Result (Class::*)(Arguments...)>
{
};

template <auto handler, typename Result, typename... Arguments>
Result Call(CCmdTarget& target, Arguments... arguments)
{
    using Traits = HandlerTraits<decltype(handler)>;
    static_assert(std::is_same_v<typename Traits::Signature, Result(Arguments...)>,
                  "the handler's signature is not the one documented for this message");
    return (static_cast<typename Traits::Target&>(target).*handler)(arguments...);
}

template <auto handler>
void Plain(CCmdTarget& target, HandlerCall&)
{
    Call<handler, void>(target);
}

template <auto handler>
void CommandRange(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, static_cast<UINT>(call.wParam));
}

template <auto handler>
void Notification(CCmdTarget& target, HandlerCall& call)
{
    Call<handler, void>(target, reinterpret_cast<NMHDR*>(call.lParam), &call.result);
}

template <auto handler>
void Message(CCmdTarget& target, HandlerCall& call)
{
    call.result = Call<handler, LRESULT>(target, call.wParam, call.lParam);
}

/// Codes travel as 16 bits: negative WM_NOTIFY codes lose their upper half on both sides.
constexpr UINT Code(UINT code)
{
    return code & 0xFFFF;
}
}  // namespace message_map

// Handlers are given as &Class::Handler. The signature stands before each macro.

// void OnCommand()
#define ON_COMMAND(id, handler) {WM_COMMAND, CN_COMMAND, id, id, &message_map::Plain<handler>},
// void OnCommand(UINT id)
#define ON_COMMAND_RANGE(id, last_id, handler)                                                                         \
    {WM_COMMAND, CN_COMMAND, id, last_id, &message_map::CommandRange<handler>},
// void OnControl()
#define ON_CONTROL(code, id, handler)                                                                                  \
    {WM_COMMAND, message_map::Code(static_cast<UINT>(code)), id, id, &message_map::Plain<handler>},
// void OnControl(), in the control's own map
#define ON_CONTROL_REFLECT(code, handler)                                                                              \
    {WM_COMMAND + kReflectedMessage, message_map::Code(static_cast<UINT>(code)), 0, 0, &message_map::Plain<handler>},
// void OnNotification(NMHDR* header, LRESULT* result)
#define ON_NOTIFY(code, id, handler)                                                                                   \
    {WM_NOTIFY, message_map::Code(static_cast<UINT>(code)), id, id, &message_map::Notification<handler>},
// void OnNotification(NMHDR* header, LRESULT* result), in the control's own map
#define ON_NOTIFY_REFLECT(code, handler)                                                                               \
    {WM_NOTIFY + kReflectedMessage, message_map::Code(static_cast<UINT>(code)), 0, 0,                                  \
     &message_map::Notification<handler>},
// LRESULT OnMessage(WPARAM, LPARAM)
#define ON_MESSAGE(message, handler) {message, 0, 0, 0, &message_map::Message<handler>},

#define ON_BN_CLICKED(id, handler) ON_CONTROL(BN_CLICKED, id, handler)

#define ON_CBN_CLOSEUP(id, handler) ON_CONTROL(CBN_CLOSEUP, id, handler)
#define ON_CBN_DROPDOWN(id, handler) ON_CONTROL(CBN_DROPDOWN, id, handler)
#define ON_CBN_EDITCHANGE(id, handler) ON_CONTROL(CBN_EDITCHANGE, id, handler)
#define ON_CBN_SELCHANGE(id, handler) ON_CONTROL(CBN_SELCHANGE, id, handler)

#define ON_EN_CHANGE(id, handler) ON_CONTROL(EN_CHANGE, id, handler)
#define ON_EN_UPDATE(id, handler) ON_CONTROL(EN_UPDATE, id, handler)
