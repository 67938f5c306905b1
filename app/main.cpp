#include <QApplication>

#include "app/program.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(KALCO_VERSION));
    kalco::app::prepare_application();
    kalco::app::Program program;
    return program.run();
}
