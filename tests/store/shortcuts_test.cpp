#include "lvx/store/shortcuts.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

#include "support/shapes.h"

using lvx::store::Shortcuts;

namespace {

class CountingMedium : public lvx::store::Medium {
public:
    CountingMedium(std::string& delivered, bool accepts) : m_delivered(delivered), m_accepts(accepts) {}
    std::size_t Fetch(void*, std::size_t) override { return 0; }
    bool Deliver(const void* data, std::size_t size) override {
        m_delivered.append(static_cast<const char*>(data), size);
        return m_accepts;
    }
    void SkipToEnd() override {}
    std::optional<std::uint64_t> Remaining() override { return 42; }

private:
    std::string& m_delivered;
    bool m_accepts;
};

class TextMedium : public lvx::store::Medium {
public:
    explicit TextMedium(std::string text) : m_text(std::move(text)) {}
    std::size_t Fetch(void* data, std::size_t size) override {
        return std::exchange(m_text, "").copy(static_cast<char*>(data), size);
    }
    bool Deliver(const void*, std::size_t) override { return false; }
    void SkipToEnd() override {}
    std::optional<std::uint64_t> Remaining() override { return m_text.size(); }

private:
    std::string m_text;
};

}  // namespace

TEST(Shortcuts, detaching_hands_the_last_block_over) {
    std::string delivered;
    Shortcuts shortcuts;
    shortcuts.AttachWriter(std::make_unique<CountingMedium>(delivered, true), true);
    EXPECT_TRUE(shortcuts.GetWriter()->Write("abc", 3));
    EXPECT_EQ("", delivered);
    EXPECT_TRUE(shortcuts.Detach());
    EXPECT_EQ("abc", delivered);
    EXPECT_EQ(nullptr, shortcuts.GetWriter());
    EXPECT_EQ(nullptr, shortcuts.Claim(1));
}

TEST(Shortcuts, a_loss_is_told_once) {
    std::string delivered;
    Shortcuts shortcuts;
    shortcuts.AttachWriter(std::make_unique<CountingMedium>(delivered, false), true);
    shortcuts.GetWriter()->Write("abc", 3);
    EXPECT_FALSE(shortcuts.Detach());
    shortcuts.AttachWriter(std::make_unique<CountingMedium>(delivered, false), true);
    shortcuts.GetWriter()->Write("abc", 3);
    EXPECT_FALSE(shortcuts.GetWriter()->Flush());
    EXPECT_TRUE(shortcuts.Detach()) << "the failed write has told";
    EXPECT_TRUE(shortcuts.Detach()) << "nothing is attached";
}

TEST(Shortcuts, a_hosts_class_is_not_reached_past_its_operations) {
    std::string delivered;
    Shortcuts shortcuts;
    shortcuts.AttachWriter(std::make_unique<CountingMedium>(delivered, true), false);
    EXPECT_NE(nullptr, shortcuts.GetWriter());
    EXPECT_EQ(nullptr, shortcuts.Claim(1));
    shortcuts.Detach();
    shortcuts.AttachReader(std::make_unique<CountingMedium>(delivered, true), false);
    EXPECT_NE(nullptr, shortcuts.GetReader());
    EXPECT_EQ(nullptr, shortcuts.GetDirectReader());
    EXPECT_FALSE(shortcuts.Remaining().has_value());
    shortcuts.Detach();
    shortcuts.AttachReader(std::make_unique<CountingMedium>(delivered, true), true);
    EXPECT_EQ(42u, *shortcuts.Remaining());
}

TEST(Shortcuts, classes_are_found_by_their_text) {
    Shortcuts shortcuts;
    std::vector<std::string> names{"a", "b", "b"};
    EXPECT_EQ(0, shortcuts.FindClass("a", names));
    EXPECT_EQ(1, shortcuts.FindClass("b", names)) << "the first of equal names";
    EXPECT_EQ(-1, shortcuts.FindClass("c", names));
    names.push_back("c");
    EXPECT_EQ(3, shortcuts.FindClass("c", names));
    char changing[2] = "a";
    EXPECT_EQ(0, shortcuts.FindClass(changing, names));
    changing[0] = 'b';
    EXPECT_EQ(1, shortcuts.FindClass(changing, names));
    changing[0] = 'z';
    EXPECT_EQ(-1, shortcuts.FindClass(changing, names));
}

TEST(Shortcuts, a_class_registered_later_is_found_later) {
    Shortcuts shortcuts;
    EXPECT_EQ(nullptr, shortcuts.FindCreator(3, "ShortcutsLate"));
    ObjectFactory::Register("ShortcutsLate", ObjectFactory::CreateStorable<lvx_test::Node>);
    EXPECT_EQ(&ObjectFactory::CreateStorable<lvx_test::Node>, shortcuts.FindCreator(3, "ShortcutsLate"));
}

TEST(Shortcuts, bytes_of_a_stream_are_taken_where_they_lie) {
    std::istringstream stream("abcdef");
    Shortcuts shortcuts;
    EXPECT_EQ(nullptr, shortcuts.Peek(1)) << "nothing is attached";
    shortcuts.AttachStream(stream);
    ASSERT_NE(nullptr, shortcuts.Take(2));
    const unsigned char* const next = shortcuts.Peek(4);
    ASSERT_NE(nullptr, next);
    EXPECT_EQ("cdef", std::string(reinterpret_cast<const char*>(next), 4));
    EXPECT_EQ(2, stream.tellg());
    EXPECT_EQ(nullptr, shortcuts.Take(5)) << "there are four";
    shortcuts.Skip(4);
    EXPECT_EQ(6, stream.tellg());
    shortcuts.Detach();
    stream.seekg(0);
    EXPECT_EQ(nullptr, shortcuts.Peek(1));
}

TEST(Shortcuts, room_in_a_stream_counts_as_written) {
    std::ostringstream stream;
    stream << 'x';
    Shortcuts shortcuts;
    shortcuts.AttachStream(stream);
    unsigned char* const place = shortcuts.Claim(2);
    ASSERT_NE(nullptr, place);
    place[0] = 'a';
    place[1] = 'b';
    EXPECT_EQ("xab", stream.str());
    EXPECT_EQ(nullptr, shortcuts.Claim(1'000'000));
    shortcuts.Detach();
    EXPECT_EQ(nullptr, shortcuts.Claim(1));
}

TEST(Shortcuts, bytes_of_a_block_can_be_looked_at_before_they_are_taken) {
    Shortcuts shortcuts;
    shortcuts.AttachReader(std::make_unique<TextMedium>("abc"), true);
    EXPECT_EQ(nullptr, shortcuts.Peek(1)) << "nothing was fetched";
    EXPECT_EQ('a', shortcuts.GetReader()->Get());
    ASSERT_NE(nullptr, shortcuts.Peek(2));
    EXPECT_EQ('b', *shortcuts.Peek(2));
    EXPECT_EQ(nullptr, shortcuts.Peek(3));
    shortcuts.Skip(1);
    EXPECT_EQ('c', shortcuts.GetReader()->Get());
}
