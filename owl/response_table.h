// owl/response_table.h
//
// Response tables: which function of a class answers which event.
//
//     class Sketch : public owl::TFrameWindow {
//         …
//         void EvSize(UINT type, const owl::TSize& size);
//         void CmClear();
//         DECLARE_RESPONSE_TABLE(Sketch);
//     };
//
//     DEFINE_RESPONSE_TABLE1(Sketch, owl::TFrameWindow)
//         EV_WM_SIZE,
//         EV_COMMAND(CM_CLEAR, CmClear),
//     END_RESPONSE_TABLE;
//
// The first entry that fits wins; what the class's own table lacks is looked up in the bases, from left to
// right. Each entry is checked by the compiler: a function that cannot take what the event brings does not
// compile. A function that a table names must not be overloaded. owl/response_messages.h, included here, has
// the entries for messages.
#pragma once

#include "owl/event_handler.h"

namespace owl {

/// One line of the table of class `T`. A table ends with an entry whose `Call` is null.
template <class T>
struct TResponseTableEntry {
    /// As `NotifyCode`: any.
    static constexpr UINT AllCodes = ~0u;

    UINT Msg = 0;
    UINT Id = 0;
    UINT NotifyCode = 0;
    /// The name of a message that is registered by name; null for the others.
    const char* Registered = nullptr;
    LRESULT (*Call)(T& object, const TEvent& event) = nullptr;

    bool Fits(const TEventInfo& info) const {
        if (Registered != nullptr)
            return info.Msg >= FirstRegistered && ::RegisterWindowMessageA(Registered) == info.Msg;
        return Msg == info.Msg && Id == info.Id && (NotifyCode == AllCodes || NotifyCode == info.NotifyCode);
    }

    /// What the system gives out for names lies from here on.
    static constexpr UINT FirstRegistered = 0xC000;
};

/// An entry, for the macros.
template <class T>
constexpr TResponseTableEntry<T> MakeEntry(UINT msg, UINT id, UINT code, const char* registered,
                                           LRESULT (*call)(T&, const TEvent&)) {
    return {msg, id, code, registered, call};
}

/// Looks for the first entry of `entries` that fits `info`.
template <class T>
bool SearchEntries(T& object, const TResponseTableEntry<T>* entries, TEventInfo& info) {
    for (; entries->Call != nullptr; ++entries) {
        if (entries->Fits(info)) {
            info.SetFound(object, *entries);
            return true;
        }
    }
    return false;
}

}  // namespace owl

#include "owl/response_messages.h"

/// Stands last in a class that has a table; what follows it is private.
#define DECLARE_RESPONSE_TABLE(cls)            \
public:                                        \
    bool Find(owl::TEventInfo& info) override; \
                                               \
private:                                       \
    using TMyClass = cls;                      \
    static const owl::TResponseTableEntry<cls> __entries[]

#define OWL_BEGIN_ENTRIES(cls) const owl::TResponseTableEntry<cls> cls::__entries[] = {
/// Begins the table of a class whose bases have none.
#define DEFINE_RESPONSE_TABLE(cls)                              \
    bool cls::Find(owl::TEventInfo& info) {                     \
        return owl::SearchEntries<cls>(*this, __entries, info); \
    }                                                           \
    OWL_BEGIN_ENTRIES(cls)

/// Begins the table of a class with one base that answers events.
#define DEFINE_RESPONSE_TABLE1(cls, base)                                           \
    bool cls::Find(owl::TEventInfo& info) {                                         \
        return owl::SearchEntries<cls>(*this, __entries, info) || base::Find(info); \
    }                                                                               \
    OWL_BEGIN_ENTRIES(cls)

/// Likewise with two bases.
#define DEFINE_RESPONSE_TABLE2(cls, base1, base2)                                                         \
    bool cls::Find(owl::TEventInfo& info) {                                                               \
        return owl::SearchEntries<cls>(*this, __entries, info) || base1::Find(info) || base2::Find(info); \
    }                                                                                                     \
    OWL_BEGIN_ENTRIES(cls)

/// Likewise with three bases.
#define DEFINE_RESPONSE_TABLE3(cls, base1, base2, base3)                                                    \
    bool cls::Find(owl::TEventInfo& info) {                                                                 \
        return owl::SearchEntries<cls>(*this, __entries, info) || base1::Find(info) || base2::Find(info) || \
               base3::Find(info);                                                                           \
    }                                                                                                       \
    OWL_BEGIN_ENTRIES(cls)

/// Ends a table.
#define END_RESPONSE_TABLE \
    {}                     \
    }
