#include "lvx/store/shortcuts.h"

#include <algorithm>

namespace lvx::store {

void Shortcuts::AttachWriter(std::unique_ptr<Medium> medium, bool own_class) {
    m_writer = std::make_unique<BlockWriter>(*medium);
    m_medium = std::move(medium);
    m_direct_writer = own_class ? m_writer.get() : nullptr;
}

void Shortcuts::AttachReader(std::unique_ptr<Medium> medium, bool own_class) {
    m_reader = std::make_unique<BlockReader>(*medium);
    m_medium = std::move(medium);
    m_direct_reader = own_class ? m_reader.get() : nullptr;
}

void Shortcuts::AttachMeasure(std::unique_ptr<Measurable> measure) {
    m_measure = std::move(measure);
}

bool Shortcuts::Detach() {
    const bool complete = m_writer == nullptr || m_writer->HasFailed() || m_writer->Flush();
    m_direct_writer = nullptr;
    m_direct_reader = nullptr;
    m_output = nullptr;
    m_input = nullptr;
    m_writer.reset();
    m_reader.reset();
    m_medium.reset();
    m_measure.reset();
    fell_short = false;
    return complete;
}

std::optional<std::uint64_t> Shortcuts::Remaining() const {
    // A class derived from ours may deliver more than the medium has, by unpacking it.
    if (m_direct_reader != nullptr) {
        return m_direct_reader->Remaining();
    }
    return m_measure != nullptr ? m_measure->Remaining() : std::nullopt;
}

void Shortcuts::SkipToEnd() {
    if (m_direct_reader != nullptr) {
        m_direct_reader->SkipToEnd();
    } else if (m_measure != nullptr) {
        m_measure->SkipToEnd();
    }
}

long Shortcuts::FindClass(const char* name, const std::vector<std::string>& class_names) {
    KnownName& known = m_known_names[(reinterpret_cast<std::uintptr_t>(name) >> 4) % m_known_names.size()];
    if (known.name != name || known.number >= class_names.size() || class_names[known.number] != name) {
        const auto found = std::find(class_names.begin(), class_names.end(), name);
        if (found == class_names.end()) {
            return -1;
        }
        known = {name, static_cast<std::size_t>(found - class_names.begin())};
    }
    return static_cast<long>(known.number);
}

ObjectFactory::Creator Shortcuts::AskFactory(std::size_t number, const std::string& name) {
    if (number >= m_creators.size()) {
        m_creators.resize(number + 1, nullptr);
    }
    m_creators[number] = ObjectFactory::Find(name);
    return m_creators[number];
}

}  // namespace lvx::store
