#include "tests/tarnix/refusal/refused_flow.h"

#include <gtest/gtest.h>

#include <string>

namespace refusal {
namespace {

class RefusedHostCalls : public testing::TestWithParam<RefusedFlow> {};

TEST_P(RefusedHostCalls, BreakNothing) {
    const RefusedFlow& flow = GetParam();

    EXPECT_GE(test_support::refuseEachCall(flow.sweep()), flow.leastCalls);
}

std::string nameOf(const testing::TestParamInfo<RefusedFlow>& flow) { return flow.param.name; }

using testing::ValuesIn;

INSTANTIATE_TEST_SUITE_P(Addin, RefusedHostCalls, ValuesIn(addinFlows()), nameOf);
INSTANTIATE_TEST_SUITE_P(BomColumns, RefusedHostCalls, ValuesIn(columnFlows()), nameOf);
INSTANTIATE_TEST_SUITE_P(BomRows, RefusedHostCalls, ValuesIn(rowFlows()), nameOf);
INSTANTIATE_TEST_SUITE_P(BomWriteBack, RefusedHostCalls, ValuesIn(writeFlows()), nameOf);
INSTANTIATE_TEST_SUITE_P(Properties, RefusedHostCalls, ValuesIn(propertiesFlows()), nameOf);
INSTANTIATE_TEST_SUITE_P(Configuration, RefusedHostCalls, ValuesIn(configurationFlows()), nameOf);
INSTANTIATE_TEST_SUITE_P(Commands, RefusedHostCalls, ValuesIn(commandFlows()), nameOf);
INSTANTIATE_TEST_SUITE_P(Helpdesk, RefusedHostCalls, ValuesIn(helpdeskFlows()), nameOf);

}  // namespace
}  // namespace refusal
