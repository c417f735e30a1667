#include "lvx/drawing/my_font.h"

#include <algorithm>

#include "lvx/drawing/delete_unless_null.h"
#include "lvx/platform/fonts.h"
#include "lvx/store/object_store.h"

myFont::myFont() {
    const lvx::platform::SystemFont font = lvx::platform::system_font();
    m_face = font.face;
    m_size = font.points;
    m_bold = font.bold;
    m_italic = font.italic;
    m_underline = font.underline;
    m_strikeout = font.strikeOut;
}

myFont::myFont(const char* face, double size, bool bold, bool italic, bool underline, bool strikeout)
    : m_face(face != nullptr ? face : ""),
      m_size(size),
      m_bold(bold),
      m_italic(italic),
      m_underline(underline),
      m_strikeout(strikeout) {}

myFont::myFont(const myFont& other) = default;

myFont& myFont::operator=(const myFont& other) = default;

myFont::~myFont() = default;

void myFont::PutTo(ObjectStore& store) const {
    store << m_face << m_size << m_bold << m_italic << m_underline << m_strikeout;
}

void myFont::GetFrom(ObjectStore& store) {
    std::string face;
    double size = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
    store >> face >> size >> bold >> italic >> underline >> strikeout;
    m_face.swap(face);
    m_size = size;
    m_bold = bold;
    m_italic = italic;
    m_underline = underline;
    m_strikeout = strikeout;
}

void myFont::Face(const std::string& face) {
    m_face = face;
}

void myFont::Size(double size) {
    m_size = size;
}

void myFont::Bold(bool bold) {
    m_bold = bold;
}

void myFont::Italic(bool italic) {
    m_italic = italic;
}

void myFont::Underline(bool underline) {
    m_underline = underline;
}

void myFont::Strikeout(bool strikeout) {
    m_strikeout = strikeout;
}

bool myFont::operator==(const myFont& other) const {
    return m_face == other.m_face && m_size == other.m_size && m_bold == other.m_bold &&
           m_italic == other.m_italic && m_underline == other.m_underline && m_strikeout == other.m_strikeout;
}

void myFont::free() {
    lvx::drawing::delete_unless_null(this);
}

void myFont::faces_available(std::vector<std::string>& faces) {
    lvx::platform::add_scalable_faces(faces);
    std::sort(faces.begin(), faces.end());
}
