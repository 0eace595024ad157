// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/conventions.h"
#include "core/data_store.h"
#include "core/ending.h"
#include "core/frmBW_Splash.h"
#include "platform/system/signals.h"

#include <QApplication>
#include <QIcon>

namespace {

QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256, 512})
        icon.addFile(QStringLiteral(":/pictures/logo-%1.png").arg(size));
    return icon;
}

void nameProgram()
{
    QApplication::setApplicationName("Kestrill");
    QApplication::setDesktopFileName("kestrill");
    QApplication::setWindowIcon(programIcon());
}

// The system or the session asks the program to end: in order, and without a question.
void endFromOutside()
{
    forms::endProcess(ending::close_Store() ? 0 : 1);
}

void start()
{
    forms::setReportWords(conventions::Title, ending::what_Is_Known);
    forms::onEnd([] { ending::close_Store(); });
    forms::onHandlerReturn([] { Data1.Home.commitPending(); });
    sys::onTermination(endFromOutside);
    forms::screen<frmBW_Splash>().show();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    nameProgram();
    forms::prepare(application);
    forms::runAsHandler("main", start);
    return QApplication::exec();
}
