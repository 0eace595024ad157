// SPDX-License-Identifier: GPL-3.0-or-later
// main() of the benchmarks that work with screens.
#include "platform/forms/prepare.h"
#include "shared/theme.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace {

// The platform without a screen complains of every window that is raised.
void quietHandler(QtMsgType, const QMessageLogContext&, const QString&) { }

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(quietHandler);
    QApplication application(argc, argv);
    forms::prepare(application, programTheme());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
