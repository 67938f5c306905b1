#include <cstdio>

#include "app/application.h"
#include "app/arguments.h"
#include "app/program.h"
#include "disc/image/process.h"

namespace {

/// Help and version need no display: they are answered before Qt looks for one.
std::optional<int> answer_without_display(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const QString word = QString::fromLocal8Bit(argv[i]);
        if (word == u"--") break;
        const kalco::app::Arguments arguments = kalco::app::read_arguments({word});
        if (arguments.wish == kalco::app::Arguments::Wish::help) return answer_arguments(arguments);
        if (arguments.wish == kalco::app::Arguments::Wish::version) return answer_arguments(arguments);
    }
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    kalco::guard_process();
    try {
        if (const auto status = answer_without_display(argc, argv)) return *status;
        // Takes Qt's own options out of the arguments.
        kalco::app::Application application(argc, argv);
        kalco::app::Application::setApplicationVersion(QStringLiteral(KALCO_VERSION));
        const auto words = kalco::app::Application::arguments().sliced(1);
        const kalco::app::Arguments arguments = kalco::app::read_arguments(words);
        if (const auto status = kalco::app::answer_arguments(arguments)) return *status;
        kalco::app::prepare_application();
        kalco::app::Program program;
        application.on_failure = [&program](const std::exception_ptr& failure) { program.fail(failure); };
        if (!arguments.image.isEmpty()) program.open_at_start(arguments.image);
        const int status = program.run();
        application.on_failure = nullptr;
        return status;
    } catch (const std::exception& failure) {
        static_cast<void>(std::fprintf(stderr, "kalco: %s\n", failure.what()));
        return kalco::app::Program::exit_failed;
    }
}
