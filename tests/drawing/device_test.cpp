#include "lvx/drawing/device.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "owl/dc.h"

namespace {

class Probe : public LVX::Device {
public:
    owl::TDC* AcquireDC() override { return m_dc; }
    void ReleaseDC() override { --m_openCount; }

    int Users() const { return m_openCount; }
};

class Counted : public Probe {
public:
    explicit Counted(int& count) : m_count(count) { ++m_count; }
    ~Counted() override { --m_count; }

private:
    int& m_count;
};

}  // namespace

TEST(Device, has_no_context_and_no_users_at_first) {
    Probe probe;
    EXPECT_EQ(nullptr, probe.AcquireDC());
    EXPECT_EQ(0, probe.Users());
}

TEST(Device, is_a_base_that_is_not_copied) {
    EXPECT_TRUE(std::is_abstract_v<LVX::Device>);
    EXPECT_FALSE(std::is_copy_constructible_v<Probe>);
    EXPECT_FALSE(std::is_copy_assignable_v<Probe>);
}

TEST(Device, deleted_by_its_base_ends_all_of_it) {
    int count = 0;
    const LVX::Device* const device = new Counted(count);
    EXPECT_EQ(1, count);
    delete device;
    EXPECT_EQ(0, count);
}
