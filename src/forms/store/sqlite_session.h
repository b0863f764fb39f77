#pragma once
// One way to use an SQLite file: open it under a connection of its own, do
// the work, close it and drop the connection, so that no connection outlives
// the call and two calls never share one.

#include <QSqlDatabase>
#include <QString>

#include <functional>

namespace kestrova {

enum class SqliteAccess { ReadOnly, ReadWrite };

// Runs `work` on the opened data base; false (and `work` not run) when it
// cannot be opened. ReadOnly never creates a file; ReadWrite creates a
// missing one.
bool withSqlite(const QString& path, SqliteAccess access, const std::function<void(QSqlDatabase&)>& work);

} // namespace kestrova
