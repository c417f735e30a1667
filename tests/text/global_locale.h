// tests/text/global_locale.h
//
// Another global std::locale for the length of a scope.
#pragma once

#include <locale>

class GlobalLocale {
public:
    explicit GlobalLocale(const std::locale& locale) : m_before(std::locale::global(locale)) {}
    ~GlobalLocale() { std::locale::global(m_before); }
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;

private:
    std::locale m_before;
};
