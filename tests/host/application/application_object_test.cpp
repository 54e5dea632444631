#include "host/application/application_object.h"

#include "host/application/log.h"
#include "host/application/running_host.h"
#include "host/base/host_state.h"
#include "host/design/document.h"
#include "tests/support/fault_watch.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <gtest/gtest.h>

#include <vector>

namespace host {
namespace {

using namespace adsk::core;

class ApplicationObjectTest : public testing::Test {
protected:
    ~ApplicationObjectTest() override { faults.verify(); }

    static Ptr<adsk::core::Application> application() { return adsk::core::Application::get(); }

    RunningHost host_;
    test_support::FaultWatch faults;
};

// Application_log: a line is informative and goes to the file unless the caller says otherwise.
TEST_F(ApplicationObjectTest, KeepsTheLinesOfTheLogInTheirOrder) {
    application()->log("first");
    application()->log("second", ErrorLogLevel, ConsoleLogType);

    const auto* log = HostState::currentPart<Log>();
    ASSERT_NE(log, nullptr);
    EXPECT_EQ(log->lines, (std::vector<LogLine>{{"first", InfoLogLevel, FileLogType},
                                                {"second", ErrorLogLevel, ConsoleLogType}}));
}

// Documents_add: an empty design becomes the active document.
TEST_F(ApplicationObjectTest, AnAddedDocumentIsAnEmptyDesignAndActive) {
    const Ptr<Document> document = application()->documents()->add(FusionDesignDocumentType);

    ASSERT_TRUE(document);
    EXPECT_TRUE(application()->activeDocument() == document);
    EXPECT_FALSE(document->isSaved());
    const Ptr<adsk::fusion::Design> design = application()->activeProduct();
    ASSERT_TRUE(design);
    EXPECT_EQ(design->rootComponent()->occurrences()->count(), 0U);
}

// Documents_add: the document that was active stays open.
TEST_F(ApplicationObjectTest, AnAddedDocumentLeavesTheOthersOpen) {
    const Ptr<Document> first = application()->documents()->add(FusionDesignDocumentType);

    const Ptr<Document> second = application()->documents()->add(FusionDesignDocumentType);

    ASSERT_EQ(application()->documents()->count(), 2U);
    EXPECT_TRUE(application()->documents()->item(0) == first);
    EXPECT_TRUE(application()->documents()->item(1) == second);
    EXPECT_TRUE(first->isValid());
}

// Design_designType: it is kept, and changes nothing.
TEST_F(ApplicationObjectTest, TheTypeOfADesignIsKept) {
    application()->documents()->add(FusionDesignDocumentType);
    const Ptr<adsk::fusion::Design> design = application()->activeProduct();

    for (const auto type : {adsk::fusion::DirectDesignType, adsk::fusion::ParametricDesignType}) {
        EXPECT_TRUE(design->designType(type));
        EXPECT_EQ(design->designType(), type);
    }
}

}  // namespace
}  // namespace host
