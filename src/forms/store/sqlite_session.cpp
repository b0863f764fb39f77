#include "forms/store/sqlite_session.h"

#include <QFileInfo>
#include <QUuid>

namespace kestrova {

namespace {

// The connection's name is dropped when the call ends, on every path: after
// the data base object that uses it is gone, as Qt requires.
class ConnectionName {
public:
    ConnectionName() : name_("kestrova-" + QUuid::createUuid().toString()) {}
    ~ConnectionName() { QSqlDatabase::removeDatabase(name_); }
    ConnectionName(const ConnectionName&) = delete;
    ConnectionName& operator=(const ConnectionName&) = delete;
    const QString& name() const { return name_; }

private:
    QString name_;
};

// Closes the data base when the work ends, whether it returns or throws.
class OpenDataBase {
public:
    explicit OpenDataBase(QSqlDatabase& db) : db_(db) {}
    ~OpenDataBase() { db_.close(); }
    OpenDataBase(const OpenDataBase&) = delete;
    OpenDataBase& operator=(const OpenDataBase&) = delete;

private:
    QSqlDatabase& db_;
};

} // namespace

bool withSqlite(const QString& path, SqliteAccess access, const std::function<void(QSqlDatabase&)>& work)
{
    if (access == SqliteAccess::ReadOnly && !QFileInfo(path).isFile())
        return false;
    const ConnectionName connection;
    QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", connection.name());
    db.setDatabaseName(path);
    if (access == SqliteAccess::ReadOnly)
        db.setConnectOptions("QSQLITE_OPEN_READONLY");
    if (!db.open())
        return false;
    const OpenDataBase open(db);
    work(db);
    return true;
}

} // namespace kestrova
