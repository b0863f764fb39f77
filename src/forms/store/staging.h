#pragma once
// The staging data base of the data sheets: one table per sheet, made afresh
// for each row, read back by the report and emptied again.

#include <QString>

#include <optional>
#include <string>
#include <utility>
#include <vector>

class QSqlDatabase;

namespace kestrova {

// Column name and text, in the order the columns are filled.
using DataSheetColumns = std::vector<std::pair<std::string, std::string>>;

// The table made afresh with the row's columns and the one row in it, in
// one transaction; an empty text when it worked, else what failed.
std::string stageRow(QSqlDatabase& db, const std::string& table, const DataSheetColumns& columns);
// Deletes the last row of a table.
void deleteLastRow(QSqlDatabase& db, const std::string& table);

// The last row of a staging table, or nothing when there is none.
std::optional<DataSheetColumns> stagedRow(const QString& stagingPath, const std::string& table);
// How many rows a staging table holds (0 when it does not exist).
int stagedRowCount(const QString& stagingPath, const std::string& table);

} // namespace kestrova
