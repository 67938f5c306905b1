#include <cstdio>

#include "app/application.h"
#include "app/program.h"
#include "disc/image/process.h"

int main(int argc, char** argv) {
    kalco::guard_process();
    try {
        kalco::app::Application application(argc, argv);
        kalco::app::Application::setApplicationVersion(QStringLiteral(KALCO_VERSION));
        kalco::app::prepare_application();
        kalco::app::Program program;
        application.on_failure = [&program](const std::exception_ptr& failure) { program.fail(failure); };
        const int status = program.run();
        application.on_failure = nullptr;
        return status;
    } catch (const std::exception& failure) {
        static_cast<void>(std::fprintf(stderr, "kalco: %s\n", failure.what()));
        return kalco::app::Program::exit_failed;
    }
}
