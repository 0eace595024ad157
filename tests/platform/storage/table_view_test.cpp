// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

#include <QVariant>

#include <map>

using storage::TableView;
using values::Currency;

namespace {

class Views : public StorageTest {
public:
    Views()
    {
        storage::createDatabase(folder.filePath("another"), key, tables);
        another_.setFile(folder.filePath("another"), key); // with other numbers for its texts
    }

    QString follow(const QString& line)
    {
        const QString first = line.section(' ', 0, 0), rest = line.section(' ', 1);
        if (first == "file")
            return rowsInFile(rest);
        if (!views_.contains(first))
            return refusalOf([&] {
                if (first == "sql")
                    runOnFile(rest.toUtf8());
                else
                    rest == "close" ? home.close() : rest == "move" ? home.setFile(path(), key) : home.commitPending();
            });
        TableView& view = views_.at(first);
        QStringList told;
        for (const QString& step : rest.startsWith("Sort") ? QStringList(rest) : rest.split(", ")) {
            QString answer;
            const QString refusal =
                refusalOf([&] { answer = onView(view, step.section(' ', 0, 0), step.section(' ', 1)); });
            told += answer + refusal;
        }
        told.removeAll(QString());
        return (told << standing(view)).join("; ");
    }

private:
    void TestBody() override { }

    QString refusalOf(const std::function<void()>& work) const
    {
        try {
            work();
            return {};
        } catch (const values::RuntimeFailure& failure) {
            return QString(failure.text()).replace(path(), "FILE");
        }
    }

    // Read from a copy: the file itself is kept to its one connection.
    QString rowsInFile(const QString& table) const
    {
        const QString copy = folder.filePath("copy.db");
        putFile(copy, bytesOf(path()));
        return inFile(copy, table == "stage" ? words::stage : words::table).join(", ");
    }

    QString onView(TableView& view, const QString& step, const QString& given)
    {
        static const std::map<QString, void (TableView::*)()> steps{{"Open", &TableView::Open},
            {"Close", &TableView::Close}, {"MoveFirst", &TableView::MoveFirst}, {"MoveNext", &TableView::MoveNext},
            {"MovePrevious", &TableView::MovePrevious}, {"AddNew", &TableView::AddNew}, {"Update", &TableView::Update},
            {"CancelUpdate", &TableView::CancelUpdate}, {"Delete", &TableView::Delete}};
        if (const auto known = steps.find(step); known != steps.end())
            (view.*known->second)();
        else if (step == "MoveTo")
            view.MoveTo(given.toLongLong());
        else if (step == "Sort")
            view.Sort(given);
        else if (step == "rows")
            return walk(view).join(", ");
        else if (step == "row")
            return QString::fromStdString(std::string(view.snapshot().utf8(given.toInt(), 0)));
        else
            return onField(view, step, given.section(' ', 0, 0).toInt(), given.section(' ', 1));
        return {};
    }

    QString onField(TableView& view, const QString& step, int column, const QString& given)
    {
        storage::Field field = view.Fields(column);
        if (step == "put")
            field = given;
        else if (step == "count")
            field = Currency::fromTenThousandths(given.toLongLong());
        else if (step == "copy")
            field = views_.at(given.section(' ', 0, 0)).Fields(given.section(' ', 1).toInt());
        else if (step == "integer")
            return QString::number(field.integer());
        else if (step == "currency")
            return QString::number(field.currency().tenThousandths());
        else
            return QVariant(step == "equals" ? field.equals(storage::FoldedText(given))
                                             : field.contains(storage::FoldedText(given)))
                .toString();
        return {};
    }

    static QString standing(TableView& view)
    {
        QString told = QString::number(view.RecordCount());
        told += QString(view.atBOF() ? " before" : "") + (view.atEOF() ? " behind" : "") + ':';
        try {
            for (std::size_t i = 0; i < view.snapshot().definition().columns.size(); ++i)
                told += (i == 0 ? " " : "|") + view.Fields(static_cast<int>(i)).text();
        } catch (const values::RuntimeFailure& failure) {
            told += ' ' + failure.text();
        }
        return told;
    }

    storage::Connection another_;
    TableView other_{another_, words::table};
    std::map<QString, TableView&> views_{
        {"things", thingsView}, {"words", wordsView}, {"stage", stageView}, {"other", other_}};
};

} // namespace

TEST(TableViews, GoThroughTheStepsThatTheListHas)
{
    std::optional<Views> views;
    expectSteps(
        "platform/storage/views.txt", [&views](const QString& step) { return views->follow(step); },
        [&views] { views.emplace(); });
}
