// bench/machine.h
//
// What measuring needs of the system.
#pragma once

namespace lvx_bench {

/// Nanoseconds of a clock that only goes forward.
double elapsed_time();

/// Nanoseconds that this thread has had a core. On some systems it goes by steps of 10 milliseconds.
double processor_time();

/// Lets memory that was given back stay with the process, as in one that has worked with large documents
/// before, where the system can be told so.
void keep_heap();

/// Keeps this process on one core from now on, the last that it may use. Throws std::system_error.
void pin_to_one_core();

}  // namespace lvx_bench
