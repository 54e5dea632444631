#include "host/base/object.h"

#include "host/base/host_state.h"

#include <Core/Material.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace host {
namespace {

/// A material that also has an operation of another class.
class TestMaterial final : public Object<core::Material> {
public:
    [[nodiscard]] std::string name() const override { return get<"name">(name_); }
    bool name(const std::string& value) override { return set<"name">(name_, value); }
    [[nodiscard]] std::string id() const { return get<"Library::id">(std::string("7")); }

private:
    std::string name_ = "Steel";
};

class ObjectDialect : public ::testing::Test {
protected:
    HostState host;
    core::Ptr<TestMaterial> material = make<TestMaterial>();
};

TEST_F(ObjectDialect, PassesTheGateUnderTheNameOfItsInterface) {
    const gate::Module running;
    gate::record(true);

    material->name("Brass");
    EXPECT_EQ(material->name(), "Brass");
    EXPECT_EQ(material->id(), "7");

    EXPECT_EQ(gate::recorded(),
              (std::vector<std::string>{"Material::name", "Material::name", "Library::id"}));
}

TEST_F(ObjectDialect, ChangesNothingWhenACallIsRefused) {
    const gate::Module running;
    gate::refuse("Material::name", 1);

    EXPECT_FALSE(material->name("Brass"));
    EXPECT_EQ(material->name(), "Steel");
}

TEST_F(ObjectDialect, ListsACallOnADeletedObjectAsMisuse) {
    material->invalidate();

    EXPECT_EQ(material->name(), "");

    ASSERT_EQ(misuses().size(), 1U);
    EXPECT_EQ(misuses().front().operation, "Material::name");
}

}  // namespace
}  // namespace host
