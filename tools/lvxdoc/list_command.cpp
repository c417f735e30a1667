#include "tools/lvxdoc/list_command.h"

#include <algorithm>
#include <optional>

#include "tools/lvxdoc/text.h"
#include "tools/lvxdoc/walk_part.h"

namespace lvxdoc {
namespace {

// Thrown out of a walk that has told enough.
struct Enough {};

// Looks at the beginning of a stream: its version, its first object, the numbers of a picture.
class FirstLook : public EventSink {
public:
    void Take(const Event& event) override;
    void BeginBitmap(std::uint64_t size) override;

    std::string Version() const { return m_version.value_or("-"); }
    std::string FirstObject() const;

private:
    void TakeMember(const Event& event);

    std::optional<std::string> m_version;
    std::string m_class;
    bool m_in_bitmap = false;
    std::int64_t m_width = 0;
    std::int64_t m_height = 0;
    std::optional<std::int64_t> m_bits;
};

void FirstLook::Take(const Event& event) {
    const bool is_first = event.offset == 0 && event.kind == Event::Kind::integer && event.type == "long";
    if (is_first) {
        m_version = std::to_string(event.number);
    } else if (!m_class.empty()) {
        TakeMember(event);
    } else if (event.kind == Event::Kind::object) {
        m_class = escape_bytes(event.text);
    }
}

void FirstLook::BeginBitmap(std::uint64_t) {
    m_in_bitmap = true;
}

void FirstLook::TakeMember(const Event& event) {
    if (!m_in_bitmap) {
        // The size in front of a bitmap, else a member of some other class.
        if (event.name != "size" || event.depth != 1) {
            throw Enough();
        }
    } else if (event.name == "width") {
        m_width = event.number;
    } else if (event.name == "height") {
        m_height = event.number;
    } else if (event.name == "bits per pixel") {
        m_bits = event.number;
        throw Enough();
    }
}

std::string FirstLook::FirstObject() const {
    if (m_class.empty()) {
        return "-";
    }
    std::string text = escape_bytes(m_class);
    if (m_bits) {
        text += ", " + std::to_string(m_width) + " x " + std::to_string(m_height < 0 ? -m_height : m_height) +
                ", " + counted(static_cast<std::uint64_t>(*m_bits), "bit") + " per pixel";
    }
    return text;
}

struct Row {
    std::string size;
    std::string version;
    std::string name;
    std::string first;
};

Row look_at(const Document& document, const Document::Part& part, const Schema& schema, Console& console) {
    const std::string name = part.name.empty() ? "(the whole file)" : part.name;
    if (part.is_storage) {
        return {"-", "-", name + '/', "storage"};
    }
    FirstLook look;
    Numbering numbering;
    ProgressBar bar(console.err, false, 0);
    std::string damage;
    try {
        walk_part(document, part, schema, false, numbering, look, bar);
    } catch (const Enough&) {
        // As it should be.
    } catch (const Damage& found) {
        damage = "; damage at " + tell_damage(found);
    }
    return {std::to_string(part.size), look.Version(), name, look.FirstObject() + damage};
}

void print_rows(const std::vector<Row>& rows, Output& output) {
    std::size_t size_width = 0;
    std::size_t version_width = 0;
    std::size_t name_width = 0;
    for (const Row& row : rows) {
        size_width = std::max(size_width, row.size.size());
        version_width = std::max(version_width, row.version.size());
        name_width = std::max(name_width, row.name.size());
    }
    for (const Row& row : rows) {
        output.Line(std::string(size_width - row.size.size(), ' ') + row.size + "  " +
                    std::string(version_width - row.version.size(), ' ') + row.version + "  " + row.name +
                    std::string(name_width - row.name.size(), ' ') + "  " + row.first);
    }
}

int run(const Arguments& arguments, Console& console) {
    const Schema schema = load_schema(arguments);
    const Document document(arguments.words.front());
    std::vector<Row> rows{{"bytes", "version", "stream", "first object"}};
    for (const Document::Part& part : document.Parts()) {
        rows.push_back(look_at(document, part, schema, console));
    }
    const auto streams =
        static_cast<std::size_t>(std::count_if(document.Parts().begin(), document.Parts().end(),
                                               [](const Document::Part& part) { return !part.is_storage; }));
    const std::size_t storages = document.Parts().size() - streams;
    console.out.Line(arguments.words.front() +
                     (document.IsCompound() ? ": compound file, " + counted(streams, "stream") +
                                                  (storages == 0 ? "" : ", " + counted(storages, "storage"))
                                            : ": plain store, no compound file"));
    if (rows.size() > 1) {
        print_rows(rows, console.out);
    }
    return 0;
}

}  // namespace

const Command list_command{"list",
                           "FILE",
                           1,
                           1,
                           "List the streams of a document",
                           "For every stream: its size, the version in front, the class of its first object, "
                           "and for a picture its width,\n"
                           "height and depth. Only the beginning of a stream is looked at; what is wrong "
                           "there is told in its line, and\n"
                           "'lvxdoc check' finds the rest.\n",
                           {schema_option},
                           &run};

}  // namespace lvxdoc
