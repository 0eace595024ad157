// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

QtMessageHandler usualHandler = nullptr;

// The platform without a screen says this once for every window that is raised.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        usualHandler(type, context, message);
}

void setUnlessGiven(const char* variable, const QByteArray& value)
{
    if (qEnvironmentVariableIsEmpty(variable))
        qputenv(variable, value);
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir runtimeFolder;
    setUnlessGiven("QT_QPA_PLATFORM", "offscreen");
    setUnlessGiven("XDG_RUNTIME_DIR", runtimeFolder.path().toLocal8Bit());
    usualHandler = qInstallMessageHandler(quietHandler);

    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
