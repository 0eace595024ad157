// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/import_fields.h"
#include "tools/import_text.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace importing {

/// More rows no household takes: what the screens count, they count in 16 bits.
inline constexpr int MostRows = 32767;

/// A row of a source, as it stands there.
struct Row {
    qint64 line = 0; ///< where it begins, from 1 on; of a file of JSON, the row of its table
    std::vector<std::string> cells; ///< UTF-8
};

/// What is imported, read into memory: a table that another program has written, or an export of this one.
class Source {
public:
    enum class Kind {
        Table, ///< with headings of somebody else's
        Inventory, ///< the file of assets out of an export, or its wrong rows: texts are taken as they stand
        Export, ///< a whole one, a folder or a file of JSON
    };

    /// Reads a file or a folder, finds out what it is, and in a table its separator and its line of headings: the one
    /// with the most headings that are known, or that are named here. Failures: Refusal, in a sentence, where it is
    /// nothing that can be imported.
    explicit Source(const QString& path, const QStringList& headings = {});

    const QString& path() const { return path_; }
    Kind kind() const { return kind_; }
    bool isExport() const { return kind_ == Kind::Export; }

    /// The assets. Rows without any text aren't among them.
    const std::vector<Row>& rows() const { return rows_; }

    /// The columns of the assets, and where they go by their headings.
    const std::vector<ColumnSeen>& columns() const { return columns_; }
    const std::vector<Target>& targets() const { return targets_; }

    /// "UTF-8, semicolons, headings in line 3"; "Kestrill's export".
    QString described() const;

    char separator() const { return separator_; }

    /// The rows of another table of an export; none where it isn't whole.
    const std::vector<Row>& rowsOf(std::string_view table) const;

private:
    void readTable(const std::string& bytes, const QStringList& headings);
    void readRows(std::string_view text);
    void readExport(const QString& folder);
    void lookAtColumns();

    QString path_;
    Kind kind_ = Kind::Table;
    Encoding encoding_ = Encoding::Utf8;
    char separator_ = ',';
    qint64 headingLine_ = 1;
    std::vector<Row> rows_;
    std::vector<ColumnSeen> columns_;
    std::vector<Target> targets_;
    std::map<std::string, std::vector<Row>, std::less<>> tables_; // of an export, but the assets
};

} // namespace importing
