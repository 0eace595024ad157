// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <iostream>

namespace {

// In any language dates, numbers and order are the desktop's. The C library's own words, which tests quote, are
// English.
void quoteInEnglish()
{
    const QByteArray language = qgetenv("LC_ALL");
    if (!language.isEmpty())
        qputenv("LANG", language);
    else if (qEnvironmentVariableIsEmpty("LANG"))
        qputenv("LANG", "C.UTF-8"); // as on a bare system: the toolkit would complain of another encoding
    qunsetenv("LC_ALL");
    qunsetenv("LANGUAGE");
    qputenv("LC_MESSAGES", "C.UTF-8");
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsSet("KESTRILL_KEEP") && qEnvironmentVariableIsSet("CI")) {
        std::cerr << "KESTRILL_KEEP is refused where CI is set: there lists are compared and never rewritten.\n";
        return 1;
    }
    const QTemporaryDir runtimeFolder;
    const std::pair<const char*, QByteArray> usual[] = {
        {"QT_QPA_PLATFORM", "offscreen"}, {"XDG_RUNTIME_DIR", runtimeFolder.path().toLocal8Bit()}};
    for (const auto& [variable, value] : usual)
        if (qEnvironmentVariableIsEmpty(variable))
            qputenv(variable, value);
    quoteInEnglish();
    qputenv("QT_FONT_DPI", "96"); // by which sizes go that tests keep
    // The platform without a screen tells at each window what it doesn't support.
    static const QtMessageHandler usualHandler =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (!message.startsWith(QLatin1String("This plugin does not support")))
                usualHandler(type, context, message);
        });
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
