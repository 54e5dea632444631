// A test of each fixture that misuses the host and does not name it: all of them have to fail.

#include "tests/host/design/design_fixture.h"
#include "tests/host/ui/host_test.h"
#include "tests/support/addin_test.h"

namespace {

class PlantedInAddin : public test_support::AddinTest {};

TEST_F(PlantedInAddin, Misuse) { host::misuse("Planted::call", "unnamed"); }

TEST_F(PlantedInAddin, Exception) {
    host::enterModule("OnPlanted", "", [] { throw 1; });
}

class PlantedInHost : public host::HostTest {};

TEST_F(PlantedInHost, Misuse) { host::misuse("Planted::call", "unnamed"); }

class PlantedInDesign : public host::DesignTest {};

TEST_F(PlantedInDesign, Misuse) { host::misuse("Planted::call", "unnamed"); }

}  // namespace
