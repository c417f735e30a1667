#include "sketch/model/document.h"

#include <utility>

#include "sketch/model/document_file.h"

namespace sketch {

void Document::Open(const std::string& file) {
    LoadedDocument loaded = LoadDocument(file);
    *this = Document();
    m_file = file;
    m_isOwn = loaded.isOwn;
    m_now.figures = std::move(loaded.figures);
}

void Document::Save(const std::string& file) {
    SaveDocument(file, m_now.figures);
    m_file = file;
    m_isOwn = true;
    m_saved = m_now.number;
}

std::string Document::Title() const {
    return m_file.empty() ? "Untitled" : m_file.substr(m_file.find_last_of("\\/:") + 1);
}

void Document::Edit(Figures figures) {
    m_before.push_back(std::exchange(m_now, {std::move(figures), ++m_lastNumber}));
    m_undone.clear();
    if (m_before.size() > most_states) {
        m_before.erase(m_before.begin());
    }
}

void Document::Undo() {
    if (CanUndo()) {
        m_undone.push_back(std::exchange(m_now, m_before.back()));
        m_before.pop_back();
    }
}

void Document::Redo() {
    if (CanRedo()) {
        m_before.push_back(std::exchange(m_now, m_undone.back()));
        m_undone.pop_back();
    }
}

}  // namespace sketch
