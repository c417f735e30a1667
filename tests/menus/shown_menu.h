// What the system shows of a menu, and what the tests of menus put into one.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "lvx/menus/menu.h"
#include "owl/command_enabler.h"

namespace lvx_test {

using Lines = std::vector<std::string>;

namespace detail {

inline std::string Text(HMENU menu, UINT position) {
    char text[400] = "";
    ::GetMenuStringA(menu, position, text, sizeof text, MF_BYPOSITION);
    return text;
}

// The flags of a drop-down are in the lower half; above them is how many entries it has.
inline UINT Flags(HMENU menu, UINT position) {
    const UINT state = ::GetMenuState(menu, position, MF_BYPOSITION);
    return ::GetSubMenu(menu, static_cast<int>(position)) != nullptr ? state & 0xFF : state;
}

inline std::string Line(HMENU menu, UINT position) {
    const UINT flags = Flags(menu, position);
    if ((flags & MF_SEPARATOR) != 0)
        return (flags & MF_MENUBARBREAK) != 0 ? "||||" : "----";
    std::string line = Text(menu, position);
    if ((flags & MF_CHECKED) != 0)
        line += " *";
    if ((flags & MF_GRAYED) != 0)
        line += " -";
    if (::GetSubMenu(menu, static_cast<int>(position)) != nullptr)
        line += " >";
    return line;
}

}  // namespace detail

/// The entries in their order: "Text" of a command, "Text >" of a drop-down, "----" of a separator, "||||" of
/// a new column; "*" behind it if it is checked, "-" if it is greyed.
inline Lines Shown(HMENU menu) {
    Lines lines;
    const int count = ::GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position)
        lines.push_back(detail::Line(menu, static_cast<UINT>(position)));
    return lines;
}

/// The labels of a menu's items, with ">" behind those of sub-menus.
inline Lines Labels(const LVXMenu& menu) {
    Lines lines;
    for (const LVXMenuItem* const item : menu.mitems()) {
        const bool below = dynamic_cast<const LVXPopupMenu*>(item) != nullptr;
        lines.push_back(item->getLabel() + (below ? " >" : ""));
    }
    return lines;
}

/// Notes the label of the item whenever it is called.
class Note : public CallBack<LVXMenuItem*> {
public:
    explicit Note(Lines& notes, bool answer = true) : m_notes(notes), m_answer(answer) {}
    ~Note() override { m_notes.push_back("gone"); }

    bool operator()(LVXMenuItem* item) override {
        m_notes.push_back(item->getLabel());
        return m_answer;
    }

private:
    Lines& m_notes;
    bool m_answer;
};

/// Does nothing, and says yes.
class Nothing : public CallBack<LVXMenuItem*> {
public:
    bool operator()(LVXMenuItem*) override { return true; }
};

/// A question about a command that nobody shows.
class Question : public owl::TCommandEnabler {
public:
    explicit Question(unsigned int id) : TCommandEnabler(id) {}

    void Enable(bool enable) override {
        TCommandEnabler::Enable(enable);
        answer = enable ? "enabled" : "disabled";
    }
    void SetText(const char*) override { answer += " text"; }
    void SetCheck(int) override { answer += " check"; }

    std::string answer = "none";
};

/// A command with a callback that does nothing.
inline LVXMenuItem* Command(const char* label) {
    return new LVXMenuItem(label, new Nothing);
}

}  // namespace lvx_test
