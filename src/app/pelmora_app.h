// The application object: one instance, the program's parts, the main window's modal run.
#pragma once

#include "platform/application.h"

namespace tarnix {

class CPelmoraApp {
  public:
    CPelmoraApp(int& argc, char** argv) : m_application(argc, argv) {}

    /// Runs the program from start to end; a second copy only says so. The answer is the process's status.
    int InitInstance();

  private:
    Application m_application;
};

} // namespace tarnix
