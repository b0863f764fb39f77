#include "forms/store/staging.h"

#include "forms/store/sqlite_session.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>

namespace kestrova {

namespace {

QString quoted(const std::string& name)
{
    return "\"" + QString::fromStdString(name).replace('"', "\"\"") + "\"";
}

} // namespace

// The table made afresh with the row's columns and the one row in it, in
// one transaction; an empty text when it worked, else what failed.
std::string stageRow(QSqlDatabase& db, const std::string& table, const DataSheetColumns& columns)
{
    QStringList names, marks, definitions;
    for (const auto& column : columns) {
        names << quoted(column.first);
        marks << "?";
        definitions << quoted(column.first) + " TEXT";
    }
    QSqlQuery query(db);
    const auto failed = [&query] { return query.lastError().text().toStdString(); };
    if (!db.transaction())
        return db.lastError().text().toStdString();
    bool ok = query.exec("DROP TABLE IF EXISTS " + quoted(table)) &&
              query.exec("CREATE TABLE " + quoted(table) + " (" + definitions.join(", ") + ")") &&
              query.prepare("INSERT INTO " + quoted(table) + " (" + names.join(", ") + ") VALUES (" + marks.join(", ") + ")");
    if (ok) {
        for (const auto& column : columns)
            query.addBindValue(QString::fromStdString(column.second));
        ok = query.exec();
    }
    const std::string error = ok ? std::string() : failed();
    if (!ok || !db.commit()) {
        db.rollback();
        return error.empty() ? db.lastError().text().toStdString() : error;
    }
    return {};
}

void deleteLastRow(QSqlDatabase& db, const std::string& table)
{
    QSqlQuery query(db);
    query.exec("DELETE FROM " + quoted(table) + " WHERE rowid = (SELECT max(rowid) FROM " + quoted(table) + ")");
}

std::optional<DataSheetColumns> stagedRow(const QString& stagingPath, const std::string& table)
{
    std::optional<DataSheetColumns> row;
    withSqlite(stagingPath, SqliteAccess::ReadOnly, [&](QSqlDatabase& db) {
        QSqlQuery query(db);
        if (!query.exec("SELECT * FROM " + quoted(table) + " ORDER BY rowid DESC LIMIT 1") || !query.next())
            return;
        const QSqlRecord record = query.record();
        DataSheetColumns columns;
        for (int c = 0; c < record.count(); ++c)
            columns.emplace_back(record.fieldName(c).toStdString(), query.value(c).toString().toStdString());
        row = std::move(columns);
    });
    return row;
}

int stagedRowCount(const QString& stagingPath, const std::string& table)
{
    int count = 0;
    withSqlite(stagingPath, SqliteAccess::ReadOnly, [&](QSqlDatabase& db) {
        QSqlQuery query(db);
        if (query.exec("SELECT count(*) FROM " + quoted(table)) && query.next())
            count = query.value(0).toInt();
    });
    return count;
}

} // namespace kestrova
