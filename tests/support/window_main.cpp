// main() of the tests that need a display.
#include <gmock/gmock.h>

#include "platform/application.h"
#include "support/ui_scenario.h"

namespace {
tarnix::Application* g_application = nullptr;
}

tarnix::MainLoop& tarnix::testLoop() {
    return g_application->mainLoop();
}

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    tarnix::Application application(argc, argv);
    g_application = &application;
    return RUN_ALL_TESTS();
}
