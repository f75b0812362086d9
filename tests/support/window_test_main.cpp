// The main function of test programs that link the desktop driver: one connection to the desktop for all
// tests.
#include <gmock/gmock.h>

#include "support/desktop_driver.h"

namespace tarnix::testing {

namespace {

Application* g_application = nullptr;

} // namespace

Application& application() {
    return *g_application;
}

} // namespace tarnix::testing

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    tarnix::Application application(argc, argv);
    tarnix::testing::g_application = &application;
    return RUN_ALL_TESTS();
}
