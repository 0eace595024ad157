// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "tools/exporting.h"
#include "tools/household.h"

using exporting::Former;

namespace {

class ExportingTest : public ToolsTest {
protected:
    ExportingTest()
    {
        addAsset("Lamp", "$10.00", QString(70'000, u'\u00fc'));
        runOnFile(today(),
            "INSERT INTO Outdoor_Items SELECT a.* FROM Indoor_Items AS a, sqlite_master, sqlite_master AS b, "
            "sqlite_master");
        household_.emplace(today());
    }

    void write(Former former = Former::Kept, const exporting::Progress& progress = {}) const
    {
        exporting::write(*household_, folder_, former, progress);
    }

    static QStringList leftovers() { return QDir(below({})).entryList({".kestrill*"}, QDir::Dirs | QDir::Hidden); }

    QString folder_ = below("out");
    std::optional<Household> household_;
};

} // namespace

TEST_F(ExportingTest, EndsWhereItIsCancelledAndReplacesNone)
{
    const auto before = everything();
    QStringList told;
    for (const int count : {1, 2, 8, 9, 20}) {
        told.clear();
        const auto cancel = [&](int done, int all) {
            told.append(QString::number(done));
            return told.size() < count && done < all;
        };
        EXPECT_EQ(refusal([&] { write(Former::Kept, cancel); }), exit_code::Declined);
    }
    EXPECT_EQ(told.first(10).join(' '), "256 512 768 1024 1280 1536 1792 2048 2060 2061") << "then page by page";
    EXPECT_EQ(everything(), before);
    int left = 0;
    write(Former::Kept, [&left](int done, int all) { return left = all - done, true; });
    EXPECT_EQ(left, 1) << "at the last page";
    EXPECT_EQ(refusal([this] { write(); }), exit_code::Failed) << "an export is there";
}

TEST_F(ExportingTest, ClearsWhatKilledOnesHaveLeftAndNothingElse)
{
    QDir().mkdir(below(".kestrill-export-of-mine"));
    inProcess([this] { write(Former::Kept, [](int, int) -> bool { _exit(1); }); });
    EXPECT_EQ(leftovers().size(), 2);
    bool isFirst = true;
    write(Former::Kept, [&](int, int) {
        if (std::exchange(isFirst, false))
            exporting::write(*household_, below("another"), Former::Kept); // this one's folder stays
        return true;
    });
    EXPECT_EQ(leftovers(), QStringList(".kestrill-export-of-mine"));
    // What others put there under such a name isn't followed and loses nothing.
    putFile(below("photos/wedding.jpg"), "not an export's");
    ASSERT_TRUE(QFile::link(".kestrill-export-photos", below(".kestrill-export-Linked")));
    ASSERT_TRUE(QDir().rename(below("photos"), below(".kestrill-export-photos")));
    write(Former::Replaced);
    EXPECT_EQ(bytesOf(below(".kestrill-export-photos/wedding.jpg")), "not an export's");
    EXPECT_EQ(QDir(folder_).count(), exporting::fileNames().size() + 2); // with "." and ".."
}
