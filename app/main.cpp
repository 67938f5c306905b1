#include <QApplication>

#include "app/program.h"
#include "disc/image/process.h"

int main(int argc, char** argv) {
    kalco::guard_process();
    const QApplication application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(KALCO_VERSION));
    kalco::app::prepare_application();
    kalco::app::Program program;
    return program.run();
}
