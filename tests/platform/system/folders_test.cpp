// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folders.h"

#include "support/print.h"

#include <QDir>

#include <gtest/gtest.h>

TEST(Folders, FollowAnAbsoluteDataHomeAndTakeARelativeOneForNone)
{
    const QByteArray former = qgetenv("XDG_DATA_HOME");
    const QString usual = QDir::homePath() + "/.local/share/a/b";
    const std::pair<const char*, QString> cases[] = {{"/data/home", "/data/home/a/b"}, {"data", usual}, {"", usual}};
    for (const auto& [home, folder] : cases) {
        qputenv("XDG_DATA_HOME", home);
        EXPECT_EQ(sys::dataFolder("a/b"), folder) << home;
    }
    qputenv("XDG_DATA_HOME", former);
    EXPECT_EQ(sys::backupFolder("Copy"), QDir::homePath() + "/Copy");
}
