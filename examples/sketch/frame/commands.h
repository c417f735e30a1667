// Commands in words, as other programs send them: what they are called, which arguments they take, and whom
// they ask to do it. docs/sketch-commands.md is their manual.
#pragma once

#include <string>

#include "owl/color.h"
#include "owl/geometry.h"

namespace sketch {

/// Who does what commands say. Each answers whether it was done; none asks the user or shows a box.
class Commanded {
public:
    /// An empty document; not while the present one has changes.
    virtual bool MakeNew() = 0;
    /// Likewise.
    virtual bool OpenFile(const std::string& file) = 0;
    /// An empty name is that of the document's own file; not if it has none.
    virtual bool SaveFile(const std::string& file) = 0;
    /// On the user's default printer.
    virtual bool PrintNow() = 0;
    /// Figures count from 1, the lowest; 0 is none.
    virtual bool SelectNumber(int number) = 0;
    virtual bool DeleteSelected() = 0;
    virtual bool AddRectangle(const owl::TRect& rect) = 0;
    virtual bool AddEllipse(const owl::TRect& rect) = 0;
    virtual bool AddWords(const std::string& words, const owl::TPoint& place) = 0;
    virtual bool SetLineColour(const owl::TColor& colour) = 0;
    virtual bool SetFillColour(const owl::TColor& colour) = 0;
    virtual bool ClearFill() = 0;

protected:
    ~Commanded() = default;
};

/// Runs one command, such as `select(2)`, or several in brackets, such as `[new][select(0)]`, up to the first
/// that fails. False for that, for a command that there is not, and for wrong arguments.
bool RunCommands(const std::string& text, Commanded& commanded);

}  // namespace sketch
