// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/runtime/display.h"

#include <QApplication>

#include <cstdio>

#include <unistd.h>

namespace forms {

namespace {

int status = 0;
const char* words = nullptr;

// The toolkit tells of several attempts, and then aborts.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "%s\n", words);
    std::fflush(stderr);
    ::_exit(status);
}

} // namespace

std::unique_ptr<QApplication> openDisplay(int& argc, char* argv[], int statusWithout, const char* wordsWithout)
{
    status = statusWithout;
    words = wordsWithout;
    const QtMessageHandler former = qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(former);
    return application;
}

} // namespace forms
