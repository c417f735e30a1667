// lvx/platform/printf_format.h
//
// LVX_PRINTF_FORMAT has the compiler check the arguments of a function that takes a printf format: `text` is
// the number of the format among the function's parameters, `first` that of the first argument for it. The
// library prints by the rules of the C standard on every system, so %zu and %lld are right on Windows too.
#pragma once

#if defined(__clang__)
#define LVX_PRINTF_FORMAT(text, first) __attribute__((format(printf, text, first)))
#elif defined(__GNUC__)
#define LVX_PRINTF_FORMAT(text, first) __attribute__((format(gnu_printf, text, first)))
#else
#define LVX_PRINTF_FORMAT(text, first)
#endif
