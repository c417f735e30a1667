#include "tests/lvxdoc/support.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/platform/system.h"
#include "tools/lvxdoc/program.h"
#include "tools/lvxdoc/text_printer.h"

std::string bytes_of(std::string_view description) {
    std::string bytes;
    for (std::size_t i = 0; i < description.size();) {
        if (description[i] == ' ' || description[i] == '\n') {
            ++i;
        } else if (description[i] == '\'') {
            const auto end = description.find('\'', i + 1);
            bytes += description.substr(i + 1, end - i - 1);
            i = end + 1;
        } else {
            bytes += static_cast<char>(std::stoi(std::string(description.substr(i, 2)), nullptr, 16));
            i += 2;
        }
    }
    return bytes;
}

std::string int_bytes(std::uint32_t number) {
    std::string bytes;
    for (int i = 0; i < 4; ++i, number >>= 8) {
        bytes += static_cast<char>(number & 0xff);
    }
    return bytes;
}

void Lines::Take(const lvxdoc::Event& event) {
    lines.push_back(std::to_string(event.offset) + ' ' + lvxdoc::describe(event));
}

std::vector<std::string> walk(const std::string& bytes, const std::string& schema_text,
                              lvxdoc::WalkOptions options) {
    lvxdoc::Schema schema;
    schema.Add(schema_text, "test schema");
    lvxdoc::MemorySource source(bytes);
    lvxdoc::Numbering numbering;
    Lines lines;
    try {
        lvxdoc::Walker(source, schema, lines, numbering, options).Walk(schema.TopOf(""));
    } catch (const lvxdoc::Damage& damage) {
        lines.lines.push_back("damage at " + std::to_string(damage.Offset()) + ": " + damage.what());
    }
    return lines.lines;
}

std::string end_of_walk(const std::string& bytes, const std::string& schema, bool strict) {
    lvxdoc::WalkOptions options;
    options.strict = strict;
    const auto lines = walk(bytes, schema, options);
    return lines.empty() ? "" : lines.back();
}

Folder::Folder() {
    static unsigned count = 0;
    m_path =
        std::filesystem::temp_directory_path() /
        ("lvxdoc-test-" + std::to_string(lvxdoc::platform::process_number()) + '-' + std::to_string(++count));
    std::filesystem::remove_all(m_path);
    std::filesystem::create_directory(m_path);
}

Folder::~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string Folder::File(const std::string& name) const {
    return lvxdoc::platform::narrow_name(m_path / name);
}

std::string Folder::Write(const std::string& name, const std::string& bytes) const {
    // Some file systems wait for the disk when a file is overwritten.
    std::filesystem::remove(m_path / name);
    std::ofstream(m_path / name, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return File(name);
}

std::vector<std::string> Folder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_path)) {
        names.push_back(lvxdoc::platform::narrow_name(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string read_file(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Result run(const std::vector<std::string>& words) {
    lvxdoc::StringOutput out;
    lvxdoc::StringOutput err;
    lvxdoc::Console console{out, err, false, false};
    const int status = lvxdoc::run_program(words, console);
    return {status, out.Text(), err.Text()};
}
