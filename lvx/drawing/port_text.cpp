// What a port writes and measures.
#include <cstddef>
#include <string>
#include <string_view>

#include "lvx/drawing/port.h"
#include "owl/dc.h"

namespace LVX {
namespace {

/// The text of `count` characters; empty if it is null or there are none.
template <class Character>
std::basic_string_view<Character> counted(const Character* text, int count) {
    return text == nullptr || count <= 0
               ? std::basic_string_view<Character>()
               : std::basic_string_view<Character>(text, static_cast<std::size_t>(count));
}

template <class Character>
std::basic_string_view<Character> whole(const Character* text) {
    return text == nullptr ? std::basic_string_view<Character>() : std::basic_string_view<Character>(text);
}

owl::TSize extent(const owl::TDC& dc, std::string_view text) {
    return dc.GetTextExtent(std::string(text));
}

owl::TSize extent(const owl::TDC& dc, std::wstring_view text) {
    return dc.GetTextExtentPointW(text.data(), static_cast<int>(text.size()));
}

void put(owl::TDC& dc, int x, int y, std::string_view text) {
    dc.TextOut(x, y, std::string(text));
}

void put(owl::TDC& dc, int x, int y, std::wstring_view text) {
    dc.TextOutW(x, y, text.data(), static_cast<int>(text.size()));
}

/// The width of what was written; `dc` may be null.
template <class Text>
int write(owl::TDC* dc, Text text, int x, int y) {
    if (dc == nullptr || text.empty()) {
        return 0;
    }
    put(*dc, x, y, text);
    return static_cast<int>(extent(*dc, text).cx);
}

template <class Text>
void measure(const owl::TDC* dc, Text text, int* width, int* height) {
    const owl::TSize size = dc == nullptr || text.empty() ? owl::TSize() : extent(*dc, text);
    if (width != nullptr) {
        *width = static_cast<int>(size.cx);
    }
    if (height != nullptr) {
        *height = static_cast<int>(size.cy);
    }
}

}  // namespace

int Port::wrtText(const char* text, int x, int y) {
    return write(m_dc, whole(text), x, y);
}

int Port::wrtText(const char* text, int count, int x, int y) {
    return write(m_dc, counted(text, count), x, y);
}

int Port::wrtText(const wchar_t* text, int x, int y) {
    return write(m_dc, whole(text), x, y);
}

int Port::wrtText(const wchar_t* text, int count, int x, int y) {
    return write(m_dc, counted(text, count), x, y);
}

void Port::textSize(const char* text, int* width, int* height) {
    measure(m_dc, whole(text), width, height);
}

void Port::textSize(const char* text, int count, int* width, int* height) {
    measure(m_dc, counted(text, count), width, height);
}

void Port::textSize(const wchar_t* text, int* width, int* height) {
    measure(m_dc, whole(text), width, height);
}

void Port::textSize(const wchar_t* text, int count, int* width, int* height) {
    measure(m_dc, counted(text, count), width, height);
}

int Port::textLineSpace() {
    TEXTMETRIC metrics;
    if (!IsOpen() || !m_dc->GetTextMetrics(metrics)) {
        return 0;
    }
    return static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading);
}

}  // namespace LVX
