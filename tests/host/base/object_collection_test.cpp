#include "host/base/host_state.h"

#include <Core/CoreAll.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace host {
namespace {

using namespace adsk::core;

class ObjectCollections : public testing::Test {
    HostState host_;

protected:
    const Ptr<Base> one = Point3D::create(1);
    const Ptr<Base> two = Point3D::create(2);
};

// ObjectCollection.
TEST_F(ObjectCollections, HoldObjectsInTheirOrder) {
    const Ptr<ObjectCollection> all = ObjectCollection::createWithArray({one, two});
    EXPECT_TRUE(all->add(one));
    EXPECT_FALSE(all->add(nullptr));

    EXPECT_EQ(all->count(), 3U);
    EXPECT_EQ(all->asArray(), (std::vector<Ptr<Base>>{one, two, one}));
    EXPECT_EQ(all->find(one), 0);
    EXPECT_EQ(all->find(one, 1), 2);
    EXPECT_EQ(all->find(two, 2), -1);
    EXPECT_TRUE(all->contains(two));
    EXPECT_EQ(all->item(3), nullptr);
    EXPECT_EQ(ObjectCollection::createWithArray({one, nullptr}), nullptr);
}

TEST_F(ObjectCollections, LoseWhatIsRemoved) {
    const Ptr<ObjectCollection> all = ObjectCollection::createWithArray({one, two, one});

    EXPECT_TRUE(all->removeByItem(one));
    EXPECT_EQ(all->asArray(), (std::vector<Ptr<Base>>{two, one}));
    EXPECT_TRUE(all->removeByIndex(0));
    EXPECT_FALSE(all->removeByIndex(1));
    EXPECT_FALSE(all->removeByItem(two));
    EXPECT_EQ(all->asArray(), std::vector<Ptr<Base>>{one});
    EXPECT_TRUE(all->clear());
    EXPECT_EQ(ObjectCollection::create()->count(), all->count());
}

}  // namespace
}  // namespace host
