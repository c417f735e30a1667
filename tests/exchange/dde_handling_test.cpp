#include "lvx/exchange/dde_handling.h"

#include <gtest/gtest.h>

namespace {

// With its functions under way made visible. The source of those is built into this program.
class OpenDde : public LVXDde {
public:
    using LVXDde::Handling;

    explicit OpenDde(bool* ended = nullptr) : m_ended(ended) {}
    ~OpenDde() override {
        Handling::Forget(*this);
        if (m_ended != nullptr)
            *m_ended = true;
    }
    void SetEvent(DdeEvent reason, const char* item, unsigned short format, void* data) {
        m_eventReason = reason;
        m_eventItem = item;
        m_itemFormat = format;
        m_eventData = data;
    }
    void SetRequest(bool responding, LPARAM lParam) {
        m_responding = responding;
        m_requestParam = lParam;
    }
    bool IsResponding() const { return m_responding; }
    LPARAM RequestParam() const { return m_requestParam; }

private:
    bool* m_ended;
};

using Handling = OpenDde::Handling;

}  // namespace

TEST(DdeHandling, is_under_way_from_its_beginning_to_its_end) {
    OpenDde dde;
    OpenDde other;
    EXPECT_FALSE(Handling::IsUnderWay(dde));
    {
        const Handling outer(dde);
        const Handling inner(other);
        EXPECT_TRUE(Handling::IsUnderWay(dde));
        EXPECT_TRUE(Handling::IsUnderWay(other));
    }
    EXPECT_FALSE(Handling::IsUnderWay(dde));
    EXPECT_FALSE(Handling::IsUnderWay(other));
}

TEST(DdeHandling, knows_that_its_object_was_deleted) {
    auto* const dde = new OpenDde;
    OpenDde other;
    const Handling outer(*dde);
    const Handling middle(other);
    const Handling inner(*dde);
    EXPECT_FALSE(inner.Gone());
    delete dde;
    EXPECT_TRUE(inner.Gone());
    EXPECT_TRUE(outer.Gone());
    EXPECT_FALSE(middle.Gone());
}

TEST(DdeHandling, deletes_its_object_behind_the_outermost_function) {
    bool ended = false;
    auto* const dde = new OpenDde(&ended);
    {
        const Handling outer(*dde);
        {
            const Handling inner(*dde);
            Handling::EndAfterwards(*dde);
        }
        EXPECT_FALSE(ended);
        EXPECT_FALSE(outer.Gone());
    }
    EXPECT_TRUE(ended);
}

TEST(DdeHandling, does_not_delete_twice) {
    auto* const dde = new OpenDde;
    const Handling outer(*dde);
    Handling::EndAfterwards(*dde);
    delete dde;
    EXPECT_TRUE(outer.Gone());
}

TEST(DdeHandling, puts_the_request_back) {
    OpenDde dde;
    dde.SetRequest(true, 77);
    {
        const Handling handling(dde);
        dde.SetRequest(false, 0);
    }
    EXPECT_TRUE(dde.IsResponding());
    EXPECT_EQ(77, dde.RequestParam());
}

TEST(DdeHandling, leaves_the_event_that_came_last) {
    OpenDde dde;
    int data = 0;
    dde.SetEvent(DdePoke, "before", 1, nullptr);
    {
        const Handling handling(dde);
        dde.SetEvent(DdeAdvise, "behind", 2, &data);
    }
    EXPECT_EQ(DdeAdvise, dde.reason());
    EXPECT_STREQ("behind", dde.item());
    EXPECT_EQ(2, dde.format());
    EXPECT_EQ(&data, dde.dataItem());
}

TEST(DdeHandling, puts_the_event_back_that_the_client_is_asked_about) {
    OpenDde dde;
    OpenDde other;
    int data = 0;
    Handling question(dde);
    question.Ask();
    const Handling of_another(other);
    dde.SetEvent(DdePoke, "before", 1, &data);
    {
        const Handling handling(dde);
        dde.SetEvent(DdeAdvise, "behind", 2, nullptr);
    }
    EXPECT_EQ(DdePoke, dde.reason());
    EXPECT_STREQ("before", dde.item());
    EXPECT_EQ(1, dde.format());
    EXPECT_EQ(&data, dde.dataItem());
}
