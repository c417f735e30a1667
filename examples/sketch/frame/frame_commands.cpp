// What the main window does for other programs. Nothing here asks the user.
#include <new>

#include "sketch/frame/frame.h"
#include "sketch/frame/printing.h"
#include "sketch/model/box.h"
#include "sketch/model/colour_text.h"
#include "sketch/model/error.h"

namespace sketch {
namespace {

// Does `work`; false if it fails.
template <class Work>
bool Succeeds(const Work& work) {
    try {
        work();
        return true;
    } catch (const DocumentError&) {
    } catch (const std::bad_alloc&) {
    }
    return false;
}

std::string FillText(const Look& look) {
    return look.filled ? ColourText(look.fillColour) : "";
}

}  // namespace

Items Frame::PresentItems() const {
    const Look* const look = m_view->SelectedLook();
    return {
        {"Count", std::to_string(m_document.Contents().size())},
        {"Selected", std::to_string(m_view->SelectedIndex() + 1)},
        {"Description", m_view->SelectedDescription()},
        {"Colour", look != nullptr ? ColourText(look->lineColour) : ""},
        {"Fill", look != nullptr ? FillText(*look) : ""},
        {"File", m_document.File()},
        {"Changed", m_document.IsChanged() ? "1" : "0"},
    };
}

// While a dialog is shown, or the mouse pulls something, the user works on what a command would change.
bool Frame::IsBusy() const {
    return !IsWindowEnabled() || ::GetCapture() != nullptr;
}

bool Frame::MakeNew() {
    if (m_document.IsChanged()) {
        return false;
    }
    m_document = Document();
    m_view->BeginAnew();
    return true;
}

bool Frame::OpenFile(const std::string& file) {
    return !m_document.IsChanged() && Succeeds([&] { Load(file); });
}

bool Frame::SaveFile(const std::string& file) {
    if (file.empty() && !m_document.HasOwnFile()) {
        return false;
    }
    return Succeeds([&] { Store(file.empty() ? m_document.File() : file); });
}

bool Frame::PrintNow() {
    return PrintQuietly(*this, m_document.Title(), m_document.Contents());
}

bool Frame::SelectNumber(int number) {
    if (number < 0 || static_cast<std::size_t>(number) > m_document.Contents().size()) {
        return false;
    }
    m_view->SelectFigure(number - 1);
    return true;
}

bool Frame::DeleteSelected() {
    const bool isSelected = m_view->SelectedIndex() >= 0;
    m_view->CmDelete();
    return isSelected;
}

bool Frame::AddRectangle(const owl::TRect& rect) {
    m_view->PutFigure(std::make_shared<Rectangle>(rect, m_view->LookToCome()));
    return true;
}

bool Frame::AddEllipse(const owl::TRect& rect) {
    m_view->PutFigure(std::make_shared<Ellipse>(rect, m_view->LookToCome()));
    return true;
}

bool Frame::AddWords(const std::string& words, const owl::TPoint& place) {
    if (words.empty() || words.size() > Text::most_letters) {
        return false;
    }
    m_view->PutFigure(std::make_shared<Text>(words, m_view->FontToCome(), m_view->LookToCome(), place));
    return true;
}

bool Frame::SetLineColour(const owl::TColor& colour) {
    return m_view->ChangeLook([&](Look& look) { look.lineColour = colour; });
}

bool Frame::SetFillColour(const owl::TColor& colour) {
    return m_view->ChangeLook([&](Look& look) {
        look.filled = true;
        look.fillColour = colour;
    });
}

bool Frame::ClearFill() {
    return m_view->ChangeLook([](Look& look) { look.filled = false; });
}

}  // namespace sketch
