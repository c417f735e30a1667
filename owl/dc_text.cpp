#include <array>
#include <climits>
#include <cstring>
#include <cwchar>

#include "owl/dc.h"

namespace owl {
namespace {

/// Of a length what the system's calls can be told.
int Counted(std::size_t length) {
    return length > INT_MAX ? INT_MAX : static_cast<int>(length);
}

int Count(const char* text, int count) {
    if (!text)
        return 0;
    return count < 0 ? Counted(std::strlen(text)) : count;
}

int Count(const wchar_t* text, int count) {
    if (!text)
        return 0;
    return count < 0 ? Counted(std::wcslen(text)) : count;
}

}  // namespace

bool TDC::TextOut(int x, int y, const std::string& text) {
    return TextOut(x, y, text.data(), Counted(text.size()));
}

bool TDC::TextOut(int x, int y, const char* text, int count) {
    return ::TextOutA(m_handle, x, y, text ? text : "", Count(text, count)) != FALSE;
}

bool TDC::TextOutW(int x, int y, const wchar_t* text, int count) {
    return ::TextOutW(m_handle, x, y, text ? text : L"", Count(text, count)) != FALSE;
}

TSize TDC::GetTextExtent(const std::string& text) const {
    return GetTextExtent(text.data(), Counted(text.size()));
}

TSize TDC::GetTextExtent(const char* text, int count) const {
    TSize size;
    const bool measured =
        ::GetTextExtentPoint32A(m_handle, text ? text : "", Count(text, count), &size) != FALSE;
    return measured ? size : TSize();
}

TSize TDC::GetTextExtentPointW(const wchar_t* text, int count) const {
    TSize size;
    const bool measured =
        ::GetTextExtentPoint32W(m_handle, text ? text : L"", Count(text, count), &size) != FALSE;
    return measured ? size : TSize();
}

int TDC::DrawText(const std::string& text, TRect& rect, unsigned int format) {
    return DrawText(text.data(), Counted(text.size()), rect, format);
}

int TDC::DrawText(const char* text, int count, TRect& rect, unsigned int format) {
    TEXTMETRIC metrics;
    if (!GetTextMetrics(metrics))
        return 0;
    return ::DrawTextA(m_handle, text ? text : "", Count(text, count), &rect, format & ~DT_MODIFYSTRING);
}

bool TDC::GetTextMetrics(TEXTMETRIC& metrics) const {
    metrics = {};
    return ::GetTextMetrics(m_handle, &metrics) != FALSE;
}

int TDC::GetTextFace(char* buffer, int size) const {
    if (!buffer || size <= 0)
        return 0;
    *buffer = '\0';
    // Where there is no font the narrow call hands out what it happens to find.
    if (::GetTextFaceW(m_handle, 0, nullptr) <= 0)
        return 0;
    return ::GetTextFaceA(m_handle, size, buffer);
}

std::string TDC::GetTextFace() const {
    std::array<char, 4 * LF_FACESIZE> name{};
    GetTextFace(name.data(), static_cast<int>(name.size()));
    return name.data();
}

}  // namespace owl
