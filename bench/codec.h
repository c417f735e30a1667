// bench/codec.h
//
// A way to save and load a drawing, over standard streams and over files.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>

namespace lvx_bench {

/// Holds a drawing to save from its start on, and the one that was loaded last.
class Codec {
public:
    virtual ~Codec() = default;

    virtual void Write(std::ostream& out) = 0;
    /// Requires: nothing is loaded.
    virtual void Read(std::istream& in) = 0;
    /// By default those of streams on a file.
    virtual void WriteFile(const std::string& path);
    virtual void ReadFile(const std::string& path);

    /// Of the drawing that was loaded.
    virtual std::uint64_t Fingerprint() const = 0;
    /// Deletes the drawing that was loaded.
    virtual void Unload() = 0;
};

std::unique_ptr<Codec> make_lvx_codec();
std::unique_ptr<Codec> make_boost_codec();
std::unique_ptr<Codec> make_cereal_codec();
std::unique_ptr<Codec> make_raw_codec();

}  // namespace lvx_bench
