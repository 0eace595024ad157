// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/data_store.h"
#include "frame/ending.h"
#include "frame/frmBW_Splash.h"
#include "platform/system/signals.h"
#include "shared/conventions.h"
#include "shared/manual.h"
#include "shared/program_name.h"
#include "shared/theme.h"

#include <QApplication>

namespace {

// The system or the session asks the program to end: in order, and without a question.
void endFromOutside()
{
    forms::endProcess(ending::closeStore() ? 0 : 1);
}

void start()
{
    forms::setReportWords(conventions::Title, ending::whatIsKnown);
    forms::setHelpHandler(manual::open);
    forms::onEnd([] { ending::closeStore(); });
    forms::onHandlerReturn([] { Data1.Home.commitPending(); });
    sys::onTermination(endFromOutside);
    forms::screen<frmBW_Splash>().show();
}

} // namespace

int main(int argc, char* argv[])
{
    const auto application = openProgram(argc, argv);
    forms::prepare(*application, programTheme());
    forms::runAsHandler("main", start);
    return QApplication::exec();
}
