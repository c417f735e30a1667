#include "bench/settings_bench.h"

// Bytes as they are: nothing to convert for the peer either.
#define SI_NO_CONVERSION
#include <SimpleIni.h>
#include <glib.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>

#include "bench/drawing.h"
#include "bench/scratch.h"
#include "lvx/files/settings.h"
#include "lvx/platform/profile_directory.h"

namespace lvx_bench {
namespace {

constexpr int sections = 20;
constexpr int keys_of_section = 50;
// Each opens the file anew.
constexpr int reads = 300;

struct Key {
    std::string section;
    std::string key;
};

Key key_at(int index) {
    return {"Section " + std::to_string(index / keys_of_section),
            "SomeSetting" + std::to_string(index % keys_of_section)};
}

std::string value_at(int index) {
    return "value of the setting with the number " + std::to_string(index);
}

std::string settings_path() {
    return scratch_file("settings.INI");
}

// What the three formats have in common.
void write_settings() {
    std::ofstream file(settings_path(), std::ios::binary);
    for (int i = 0; i < sections * keys_of_section; ++i) {
        if (i % keys_of_section == 0) {
            file << '[' << key_at(i).section << "]\n";
        }
        file << key_at(i).key << '=' << value_at(i) << '\n';
    }
    if (!file.flush()) {
        throw std::runtime_error("cannot write " + settings_path());
    }
}

// Any place in the file, the middle on the average.
std::vector<Key> chosen_keys() {
    std::mt19937 random(1);
    std::vector<Key> keys;
    for (int i = 0; i < reads; ++i) {
        keys.push_back(key_at(static_cast<int>(random() % (sections * keys_of_section))));
    }
    return keys;
}

class LvxReader {
public:
    LvxReader() { lvx::set_profile_directory(std::filesystem::path(settings_path()).parent_path().string()); }
    std::string Get(const Key& key) { return m_settings.GetStr(key.section, key.key, std::string()); }

private:
    LVXUtilities::Settings m_settings{"settings", false};
};

class SimpleIniReader {
public:
    std::string Get(const Key& key) {
        CSimpleIniA file;
        if (file.LoadFile(m_path.c_str()) < 0) {
            throw std::runtime_error("simpleini: cannot read " + m_path);
        }
        return file.GetValue(key.section.c_str(), key.key.c_str(), "");
    }

private:
    std::string m_path = settings_path();
};

struct KeyFileFreer {
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
};
struct TextFreer {
    void operator()(char* text) const { g_free(text); }
};

class KeyFileReader {
public:
    std::string Get(const Key& key) {
        const std::unique_ptr<GKeyFile, KeyFileFreer> file(g_key_file_new());
        if (g_key_file_load_from_file(file.get(), m_path.c_str(), G_KEY_FILE_NONE, nullptr) == 0) {
            throw std::runtime_error("gkeyfile: cannot read " + m_path);
        }
        const std::unique_ptr<char, TextFreer> text(
            g_key_file_get_string(file.get(), key.section.c_str(), key.key.c_str(), nullptr));
        return text != nullptr ? text.get() : "";
    }

private:
    std::string m_path = settings_path();
};

template <class Reader>
Contender reader(const char* name) {
    const auto file = std::make_shared<Reader>();
    const auto keys = std::make_shared<const std::vector<Key>>(chosen_keys());
    const auto values = std::make_shared<std::vector<std::string>>();
    return {name, [values] { values->clear(); },
            [file, keys, values] {
                for (const Key& key : *keys) {
                    values->push_back(file->Get(key));
                }
            },
            [values] {
                std::uint64_t sum = values->size();
                for (const std::string& value : *values) {
                    for (const char character : value) {
                        mix(sum, static_cast<unsigned char>(character));
                    }
                }
                return sum;
            },
            nullptr};
}

Benchmark make_read_key() {
    write_settings();
    return {
        "settings/read-key",
        "call",
        reads,
        {reader<LvxReader>("lvx"), reader<SimpleIniReader>("simpleini"), reader<KeyFileReader>("gkeyfile")}};
}

}  // namespace

std::vector<Entry> settings_benchmarks() {
    return {{"settings/read-key", make_read_key}};
}

}  // namespace lvx_bench
