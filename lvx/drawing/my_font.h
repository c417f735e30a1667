// lvx/drawing/my_font.h
//
// The description of a font as a document stores it and a dialog edits it: face, size in points and four
// flags. Nothing of the system's hangs on it; an LVXFont to draw with is made from it when it is wanted.
//
//     myFont caption("Times New Roman", 24, true, false, false, false);
//     store << caption;                       // or caption.PutTo(store), as a member of something else
//     LVXFont* const font = caption.make_font();
//     port.useFont(font);
//     …
//     font->free();
//
// A plain value, for one thread at a time. It is stored alike on every system; what makes or takes an LVXFont
// is for Windows only. Does not: check that there is such a face, or register its class: hosts that store
// fonts as objects register "myFont" (see object_factory.h).
#pragma once

#include <string>
#include <vector>

#include "lvx/platform/export.h"
#include "lvx/store/storable.h"

class LVXFont;
struct tagLOGFONTA;
struct tagNEWTEXTMETRICA;

class LVX_EXPORT myFont : public virtual Storable {
public:
    /// The system's own font: that of brushes_etc::GetSysFont(), or, where there is none, what it is by
    /// custom: "System" of 12 points, bold.
    myFont();
    /// Null is a face without a name, for which the system chooses.
    myFont(const char* face, double size, bool bold, bool italic, bool underline, bool strikeout);
    /// What `font` tells of itself: of the face and the style that is what the last device, or else the
    /// screen, has for it. Windows only.
    myFont(const LVXFont& font);
    /// The same; null gives the system's own font. Windows only.
    myFont(const LVXFont* font);
    myFont(const myFont& other);
    myFont& operator=(const myFont& other);

    /// Writes face, size, bold, italic, underline, strikeout. Exceptions of the store pass through.
    void PutTo(ObjectStore& store) const override;
    /// Reads what PutTo writes, the face up to its first zero. Exceptions of the store pass through; the
    /// description is then as it was.
    void GetFrom(ObjectStore& store) override;

    virtual void Face(const std::string& face);
    /// In points; fractions and what is no size at all are kept as they are.
    virtual void Size(double size);
    virtual void Bold(bool bold);
    virtual void Italic(bool italic);
    virtual void Underline(bool underline);
    virtual void Strikeout(bool strikeout);

    ~myFont() override;

    const std::string& Face() const { return m_face; }
    double Size() const { return m_size; }
    bool Bold() const { return m_bold; }
    bool Italic() const { return m_italic; }
    bool Underline() const { return m_underline; }
    bool Strikeout() const { return m_strikeout; }

    /// True if all six values are equal, the size to the last bit: one that is no number equals none.
    bool operator==(const myFont& other) const;

    /// A font of these values to draw with, which the caller owns and frees by LVXFont::free. Its size is
    /// whole points, cut off towards 0. Windows only.
    LVXFont* make_font() const;

    /// Deletes a description that was made by `new`, within the library. Does nothing for a null pointer.
    void free();

    /// Adds the faces whose size can be any, as the system has them now, each once, and sorts all that is in
    /// `faces` then, by bytes. Windows asks the screen, other systems fontconfig, whose names are in UTF-8.
    static void faces_available(std::vector<std::string>& faces);

private:
    std::string m_face;
    double m_size = 0;
    bool m_bold = false;
    bool m_italic = false;
    bool m_underline = false;
    bool m_strikeout = false;
};

/// What faces_available has the system call for each font. `data` is the std::vector<std::string> of faces:
/// the face of a TrueType `type` is added unless it is there already. 1, to go on. Windows only.
LVX_EXPORT int add_face(tagLOGFONTA* font, tagNEWTEXTMETRICA* metrics, short type, char* data);
