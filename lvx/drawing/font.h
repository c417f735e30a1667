// lvx/drawing/font.h
//
// A font: a face, a size in points and a style. The system's font is made from them anew for each device that
// the font is selected on, in that device's units. What the device really has in its place is told by the
// getters; when no device has been asked yet, they ask the screen.
//
//     LVXFont title("Times New Roman", 24, true, false, false, false);
//     port.useFont(&title);
//     title.italic(true);  // what the port writes from here on is italic
//
// A device's answer becomes what is asked of the next one: a face that one device had to replace stays
// replaced, until face() names it again. Only the size in points stays the host's.
// Owns the system's font, but none of the ports. A font that goes while ports use it leaves them with their
// own default fonts; a port that goes first has to be told `useFont(nullptr)` before (see port.h). Where
// several open ports use one font, the system keeps the font of each until that port lets go of it. For the
// thread that draws: what the device answers is kept in const objects too. Windows only.
// Where the system refuses a font, owl::TXGdi comes out of what would have made it; the values of before
// stay.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "lvx/platform/export.h"

namespace owl {
class TDC;
class TFont;
}  // namespace owl
namespace LVX {
class Port;
}

class LVX_EXPORT LVXFont {
public:
    /// The system's own font. It has no size until a device gives it one.
    LVXFont();
    /// The system's own font, or the one whose characters are all equally wide.
    explicit LVXFont(bool fixed);
    /// A name alone would be taken for `true`.
    explicit LVXFont(const char*) = delete;
    /// Of `face` at most 31 bytes count; null is no name, for which the system chooses. With 0 points it
    /// chooses the size too.
    LVXFont(const char* face, int pointSize, bool bold, bool italic, bool underline, bool strikeOut);
    LVXFont(const std::string& face, int pointSize, bool bold, bool italic, bool underline, bool strikeOut);
    /// The values of `other`, to be asked of a device anew; no port uses the copy.
    LVXFont(const LVXFont& other);
    /// Takes the values of `other`. The ports that use this font go on using it.
    LVXFont& operator=(const LVXFont& other);
    /// Ports that use the font go over to their own default fonts.
    virtual ~LVXFont();

    /// Forgets the system's font and what a device has answered; ports that use the font select it anew.
    /// True.
    bool make();

    /// Makes the system's font of `height`: in the units of the device it is for, negative for the height of
    /// characters, 0 for any. It is selected nowhere. True.
    bool make(int height) const;

    /// Notes, or forgets, that `port` uses this font, for LVX::Port to call. Noting twice is noting once.
    /// Null is ignored.
    void bind(LVX::Port* port, bool add);

    /// Asks for another face, at the next make(): the first 31 bytes of `name`, and, by the whole name, the
    /// character set that goes with it.
    void copyFace(const std::string& name);

    /// Makes the system's font for `dc`, selects it there and takes over what `dc` has given for it. `dc`
    /// has to let go of it before this object goes, or makes another one.
    void select(owl::TDC& dc) const;

    /// Asks a device like the screen what it has for this font.
    void getActual() const;

    /// Deletes a font that was made by `new`, within the library. Does nothing for a null pointer.
    void free();

    // Setters make the font anew, also if the value is the same.

    void pointSize(int points);
    /// The angle of the line of text, in tenths of a degree, to the left about.
    void orientation(int tenths);
    void bold(bool bold);
    void italic(bool italic);
    void underline(bool underline);
    void strikeOut(bool strikeOut);
    /// Null is no name.
    void face(const char* name);
    void face(const std::string& name);

    // What the device has given, asked of the screen if there was no device yet.

    const std::string& face() const;
    bool bold() const;
    bool italic() const;
    bool underline() const;
    bool strikeOut() const;
    /// Of a line, and of a character on the average and at most, in the device's units.
    int height() const;
    int width() const;
    short maxWidth() const;

    /// As it was set; of a font without a size that of the device, asked of the screen if there was none yet.
    int pointSize() const;
    /// As it was set.
    int orientation() const { return static_cast<int>(m_description.lfEscapement); }

    /// The system's font of now, made for the screen if there is none: the next change or device replaces it.
    operator owl::TFont&();
    operator owl::TFont&() const;

private:
    template <class Setting>
    LVX_HIDDEN void Change(const Setting& setting);
    template <class Setting>
    LVX_HIDDEN void Set(const Setting& setting);
    LVX_HIDDEN void Forget() const;
    LVX_HIDDEN std::unique_ptr<owl::TFont> MakeFont(int height) const;
    LVX_HIDDEN void TakeActual(const owl::TDC& dc, int dpi) const;
    LVX_HIDDEN const LOGFONTA& Actual() const;

    mutable std::unique_ptr<owl::TFont> m_font;
    mutable LOGFONTA m_description{};
    mutable bool m_actualValid = false;
    mutable int m_pointSize = 0;
    mutable short m_maxWidth = 0;
    mutable std::string m_face;
    bool m_isStock = false;
    std::vector<LVX::Port*> m_ports;
};
