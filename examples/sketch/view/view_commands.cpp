// What the view does on commands from the menu and by their keys.
#include <numbers>

#include "owl/command_enabler.h"
#include "sketch/frame/look_dialog.h"
#include "sketch/frame/properties_dialog.h"
#include "sketch/frame/sketch_ids.h"
#include "sketch/frame/skew_dialog.h"
#include "sketch/frame/text_dialog.h"
#include "sketch/frame/turn_dialog.h"
#include "sketch/model/error.h"
#include "sketch/model/picture_file.h"
#include "sketch/view/view.h"

namespace sketch {
namespace {

constexpr double step_in_degrees = 15;

}  // namespace

const Picture* View::SelectedPicture() const {
    return dynamic_cast<const Picture*>(SelectedFigure().get());
}

void View::AddPicture(const std::string& file) {
    const auto picture = std::make_shared<Picture>(LoadPicture(file), PictureName(file), owl::TPoint());
    MoveToMiddle(*picture);
    Add(picture);
}

const Text* View::SelectedText() const {
    return dynamic_cast<const Text*>(SelectedFigure().get());
}

void View::AddText(const owl::TPoint& place) {
    TextDialog dialog(this, "", m_preferred.font);
    if (dialog.Execute() != IDOK) {
        return;
    }
    m_preferred.font = dialog.Font();
    Add(std::make_shared<Text>(dialog.Words(), m_preferred.font, m_preferred.look, place));
}

void View::CmUndo() {
    m_tool->Cancel();
    m_document.Undo();
    Select(none);
}

void View::CmRedo() {
    m_tool->Cancel();
    m_document.Redo();
    Select(none);
}

void View::CmDelete() {
    if (m_selected == none) {
        return;
    }
    Figures figures = Contents();
    figures.erase(figures.begin() + m_selected);
    Edit(std::move(figures), none);
}

void View::CmToFront() {
    MoveSelected(static_cast<int>(Contents().size()) - 1);
}

void View::CmToBack() {
    MoveSelected(0);
}

void View::MoveSelected(int index) {
    if (m_selected == none) {
        return;
    }
    Figures figures = Contents();
    figures.erase(figures.begin() + m_selected);
    figures.insert(figures.begin() + index, SelectedFigure());
    Edit(std::move(figures), index);
}

// Of the selected shape, and of those to come.
void View::CmLook() {
    const Look* const selectedLook = SelectedLook();
    LookDialog dialog(this, selectedLook != nullptr ? *selectedLook : m_preferred.look);
    if (dialog.Execute() != IDOK) {
        return;
    }
    m_preferred.look = dialog.Chosen();
    ChangeLook([this](Look& look) { look = m_preferred.look; });
}

std::string View::SelectedDescription() const {
    const FigurePointer selected = SelectedFigure();
    return selected != nullptr ? selected->Describe() : "";
}

const Look* View::SelectedLook() const {
    const FigurePointer selected = SelectedFigure();
    return selected != nullptr ? selected->LookOf() : nullptr;
}

bool View::ChangeLook(const std::function<void(Look&)>& change) {
    if (SelectedLook() == nullptr) {
        return false;
    }
    const std::shared_ptr<Figure> changed = SelectedFigure()->Clone();
    change(*changed->LookOf());
    Replace(changed);
    return true;
}

// Of the selected figure, or with none of those to come.
void View::CmProperties() {
    const FigurePointer selected = SelectedFigure();
    Properties properties = selected != nullptr ? PropertiesOf(*selected) : PropertiesToCome();
    if (!EditProperties(this, properties)) {
        return;
    }
    if (selected == nullptr) {
        m_preferred.look = properties.look;
        m_preferred.font = properties.font;
        return;
    }
    const std::shared_ptr<Figure> changed = selected->Clone();
    if (!Apply(properties, *changed)) {
        TellUser("The figure cannot be brought into that form or place.");
    }
    Replace(changed);
}

Properties View::PropertiesToCome() const {
    Properties properties;
    properties.hasLook = true;
    properties.look = m_preferred.look;
    properties.hasFont = true;
    properties.font = m_preferred.font;
    return properties;
}

void View::CmText() {
    const Text* const selected = SelectedText();
    if (selected == nullptr) {
        return;
    }
    TextDialog dialog(this, selected->Words(), selected->Font());
    if (dialog.Execute() != IDOK) {
        return;
    }
    m_preferred.font = dialog.Font();
    const auto changed = std::make_shared<Text>(*selected);
    changed->Write(dialog.Words(), m_preferred.font);
    Replace(changed);
}

void View::ChangeSelected() {
    if (SelectedText() != nullptr) {
        CmText();
    } else {
        CmProperties();
    }
}

void View::CmTool(UINT command) {
    m_tool->Cancel();
    UseTool(static_cast<int>(command));
    Select(none);
}

template <class Change>
void View::ChangePicture(const Change& change) {
    const Picture* const selected = SelectedPicture();
    if (selected == nullptr) {
        return;
    }
    const auto changed = std::make_shared<Picture>(*selected);
    if (change(*changed)) {
        Replace(changed);
    } else {
        TellUser("The picture cannot be brought into that form.");
    }
}

void View::TurnByDegrees(double degrees) {
    ChangePicture([&](Picture& picture) { return picture.Turn(degrees * std::numbers::pi / 180); });
}

void View::CmTurnLeft() {
    TurnByDegrees(step_in_degrees);
}

void View::CmTurnRight() {
    TurnByDegrees(-step_in_degrees);
}

void View::CmTurn() {
    TurnDialog dialog(this);
    if (dialog.Execute() == IDOK) {
        TurnByDegrees(dialog.Degrees());
    }
}

void View::CmSkew() {
    SkewDialog dialog(this);
    if (dialog.Execute() == IDOK) {
        ChangePicture([&](Picture& picture) { return picture.SkewBy(dialog.Corner(), dialog.Way()); });
    }
}

void View::CmStraighten() {
    ChangePicture([](Picture& picture) {
        picture.Straighten();
        return true;
    });
}

void View::CeUndo(owl::TCommandEnabler& enabler) {
    enabler.Enable(m_document.CanUndo());
}

void View::CeRedo(owl::TCommandEnabler& enabler) {
    enabler.Enable(m_document.CanRedo());
}

void View::CeSelection(owl::TCommandEnabler& enabler) {
    enabler.Enable(m_selected != none);
}

void View::CeText(owl::TCommandEnabler& enabler) {
    enabler.Enable(SelectedText() != nullptr);
}

void View::CePicture(owl::TCommandEnabler& enabler) {
    enabler.Enable(SelectedPicture() != nullptr);
}

void View::CeFigures(owl::TCommandEnabler& enabler) {
    enabler.Enable(!Contents().empty());
}

void View::CeTool(owl::TCommandEnabler& enabler) {
    enabler.Enable(true);
    enabler.SetCheck(static_cast<int>(enabler.GetId()) == m_toolCommand ? owl::TCommandEnabler::Checked
                                                                        : owl::TCommandEnabler::Unchecked);
}

DEFINE_RESPONSE_TABLE1(View, owl::TWindow)
    EV_WM_ERASEBKGND, EV_WM_SIZE, EV_WM_HSCROLL, EV_WM_VSCROLL, EV_WM_LBUTTONDOWN, EV_WM_LBUTTONUP,
        EV_WM_LBUTTONDBLCLK, EV_WM_MOUSEMOVE, EV_WM_SETCURSOR, EV_WM_KEYDOWN,
        EV_MESSAGE(WM_MOUSEWHEEL, EvMouseWheel), EV_MESSAGE(WM_CAPTURECHANGED, EvCaptureChanged),
        EV_COMMAND(CM_UNDO, CmUndo), EV_COMMAND(CM_REDO, CmRedo), EV_COMMAND(CM_DELETE, CmDelete),
        EV_COMMAND(CM_DUPLICATE, CmDuplicate), EV_COMMAND(CM_CUT, CmCut), EV_COMMAND(CM_COPY, CmCopy),
        EV_COMMAND(CM_PASTE, CmPaste), EV_COMMAND(CM_TO_FRONT, CmToFront), EV_COMMAND(CM_TO_BACK, CmToBack),
        EV_COMMAND(CM_SELECT_NEXT, CmSelectNext), EV_COMMAND(CM_SELECT_PREVIOUS, CmSelectPrevious),
        EV_COMMAND(CM_SELECT_NONE, CmSelectNone), EV_COMMAND(CM_LOOK, CmLook),
        EV_COMMAND_AND_ID(CM_TOOL_SELECT, CmTool), EV_COMMAND_AND_ID(CM_TOOL_RECTANGLE, CmTool),
        EV_COMMAND_AND_ID(CM_TOOL_ELLIPSE, CmTool), EV_COMMAND_AND_ID(CM_TOOL_POLYGON, CmTool),
        EV_COMMAND_AND_ID(CM_TOOL_TEXT, CmTool), EV_COMMAND(CM_TEXT, CmText),
        EV_COMMAND(CM_PROPERTIES, CmProperties), EV_COMMAND(CM_TURN_LEFT, CmTurnLeft),
        EV_COMMAND(CM_TURN_RIGHT, CmTurnRight), EV_COMMAND(CM_TURN, CmTurn), EV_COMMAND(CM_SKEW, CmSkew),
        EV_COMMAND(CM_STRAIGHTEN, CmStraighten), EV_COMMAND_ENABLE(CM_UNDO, CeUndo),
        EV_COMMAND_ENABLE(CM_REDO, CeRedo), EV_COMMAND_ENABLE(CM_DELETE, CeSelection),
        EV_COMMAND_ENABLE(CM_DUPLICATE, CeSelection), EV_COMMAND_ENABLE(CM_CUT, CeSelection),
        EV_COMMAND_ENABLE(CM_COPY, CeSelection), EV_COMMAND_ENABLE(CM_PASTE, CePaste),
        EV_COMMAND_ENABLE(CM_TO_FRONT, CeSelection), EV_COMMAND_ENABLE(CM_TO_BACK, CeSelection),
        EV_COMMAND_ENABLE(CM_SELECT_NEXT, CeFigures), EV_COMMAND_ENABLE(CM_SELECT_PREVIOUS, CeFigures),
        EV_COMMAND_ENABLE(CM_SELECT_NONE, CeSelection), EV_COMMAND_ENABLE(CM_TOOL_SELECT, CeTool),
        EV_COMMAND_ENABLE(CM_TOOL_RECTANGLE, CeTool), EV_COMMAND_ENABLE(CM_TOOL_ELLIPSE, CeTool),
        EV_COMMAND_ENABLE(CM_TOOL_POLYGON, CeTool), EV_COMMAND_ENABLE(CM_TOOL_TEXT, CeTool),
        EV_COMMAND_ENABLE(CM_TEXT, CeText), EV_COMMAND_ENABLE(CM_TURN_LEFT, CePicture),
        EV_COMMAND_ENABLE(CM_TURN_RIGHT, CePicture), EV_COMMAND_ENABLE(CM_TURN, CePicture),
        EV_COMMAND_ENABLE(CM_SKEW, CePicture), EV_COMMAND_ENABLE(CM_STRAIGHTEN, CePicture),
END_RESPONSE_TABLE;

}  // namespace sketch
