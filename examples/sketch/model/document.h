// The document that the user works on: its figures, its file, and what it was before each edit.
#pragma once

#include <string>
#include <vector>

#include "sketch/model/figure.h"

namespace sketch {

class Document {
public:
    /// An empty document without a file.
    Document() = default;

    /// What is in `file`; this document is as it was if that throws (see LoadDocument).
    void Open(const std::string& file);
    /// Throws DocumentError, and the document is unsaved still.
    void Save(const std::string& file);

    /// Where it came from or was saved to last; empty if nowhere.
    const std::string& File() const { return m_file; }
    /// Whether Save may go to File() without asking.
    bool HasOwnFile() const { return m_isOwn; }
    /// The file's name without its folder, or "Untitled".
    std::string Title() const;
    bool IsChanged() const { return m_now.number != m_saved; }

    const Figures& Contents() const { return m_now.figures; }
    /// Makes `figures` the contents, in one step that Undo takes back.
    void Edit(Figures figures);

    bool CanUndo() const { return !m_before.empty(); }
    bool CanRedo() const { return !m_undone.empty(); }
    void Undo();
    void Redo();

private:
    // Figures are shared by the states that have them: a state costs no more than a list.
    struct State {
        Figures figures;
        int number = 0;
    };

    static constexpr std::size_t most_states = 200;

    std::string m_file;
    bool m_isOwn = false;
    State m_now;
    std::vector<State> m_before;
    std::vector<State> m_undone;
    int m_saved = 0;
    int m_lastNumber = 0;
};

}  // namespace sketch
