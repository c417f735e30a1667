// What the view does with the clipboard.
#include <new>

#include "owl/command_enabler.h"
#include "sketch/model/error.h"
#include "sketch/view/exchange.h"
#include "sketch/view/view.h"

namespace sketch {
namespace {

// A copy lies beside what it was made of.
constexpr owl::TSize way_of_copies(16, 16);

}  // namespace

void View::TellUser(const char* text) {
    MessageBox(text, "Sketch", MB_OK | MB_ICONEXCLAMATION);
}

void View::CmCopy() {
    CopySelected();
}

void View::CmCut() {
    if (CopySelected()) {
        CmDelete();
    }
}

bool View::CopySelected() {
    const FigurePointer selected = SelectedFigure();
    if (selected == nullptr) {
        return false;
    }
    if (!CopyFigure(GetHandle(), *selected)) {
        TellUser("The clipboard is in use by another program.");
        return false;
    }
    return true;
}

void View::CmPaste() {
    try {
        const std::shared_ptr<Figure> pasted =
            PasteFigure(GetHandle(), m_preferred.font, m_preferred.look, Visible().TopLeft());
        if (pasted == nullptr) {
            TellUser("There is nothing to paste, or the clipboard is in use by another program.");
            return;
        }
        Place(*pasted);
        Add(pasted);
    } catch (const DocumentError& error) {
        TellUser((std::string("What is on the clipboard cannot be pasted.\n\n") + error.what()).c_str());
    } catch (const std::bad_alloc&) {
        TellUser("There is not enough memory.");
    }
}

// Beside what it is a copy of, if that is to be seen; else in the middle.
void View::Place(Figure& pasted) const {
    const owl::TRect seen = Visible();
    const owl::TRect bounds = pasted.Bounds();
    const bool isAsCopied = bounds.TopLeft() != seen.TopLeft();
    if (isAsCopied && seen.Contains(bounds.TopLeft() + way_of_copies)) {
        pasted.MoveBy(way_of_copies);
    } else {
        MoveToMiddle(pasted);
    }
}

void View::MoveToMiddle(Figure& figure) const {
    const owl::TRect seen = Visible();
    const owl::TRect bounds = figure.Bounds();
    figure.MoveBy({(seen.left + seen.right - bounds.left - bounds.right) / 2,
                   (seen.top + seen.bottom - bounds.top - bounds.bottom) / 2});
}

void View::CmDuplicate() {
    if (m_selected == none) {
        return;
    }
    const std::shared_ptr<Figure> copy = SelectedFigure()->Clone();
    copy->MoveBy(way_of_copies);
    Add(copy);
}

void View::CePaste(owl::TCommandEnabler& enabler) {
    enabler.Enable(CanPaste());
}

}  // namespace sketch
