// tools/lvxdoc/output.h
//
// Where results go. Writing to a file that takes no more ends the command with Failure, and to a pipe that
// nobody reads any longer with OutputGone.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace lvxdoc {

class Output {
public:
    Output() = default;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    virtual ~Output() = default;

    virtual void Write(std::string_view text) = 0;
    void Line(std::string_view text);
};

class StringOutput : public Output {
public:
    void Write(std::string_view text) override { m_text += text; }
    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

/// On a C stream that the caller owns.
class FileOutput : public Output {
public:
    explicit FileOutput(std::FILE* file) : m_file(file) {}
    void Write(std::string_view text) override;
    /// Hands on what is buffered. To be called at the end: a disk may be full only now.
    void Flush();

private:
    [[noreturn]] static void Fail(int error);

    std::FILE* m_file;
};

}  // namespace lvxdoc
