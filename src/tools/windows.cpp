// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/windows.h"

#include "shared/conventions.h"
#include "shared/manual.h"
#include "shared/program_name.h"
#include "shared/theme.h"
#include "tools/frmExport.h"
#include "tools/frmImport.h"
#include "tools/frmRestore.h"

#include <QApplication>

namespace windows {

namespace {

template <class First>
int run(int& argc, char* argv[])
{
    const auto application = openProgram(argc, argv);
    forms::prepare(*application, programTheme());
    forms::setReportWords(conventions::Title, [] { return QStringLiteral("Nothing was lost."); });
    forms::setHelpHandler(manual::open);
    forms::runAsHandler("main", [] { forms::screen<First>().show(); });
    return QApplication::exec();
}

} // namespace

int restore(int& argc, char* argv[])
{
    return run<frmRestore>(argc, argv);
}

int exportAll(int& argc, char* argv[])
{
    return run<frmExport>(argc, argv);
}

int importAll(int& argc, char* argv[])
{
    return run<frmImport>(argc, argv);
}

} // namespace windows
