#include "frame/sqlite_session.h"

#include <QFileInfo>
#include <QUuid>

namespace kestrova {

bool withSqlite(const QString& path, SqliteAccess access, const std::function<void(QSqlDatabase&)>& work)
{
    if (access == SqliteAccess::ReadOnly && !QFileInfo(path).isFile())
        return false;
    const QString connection = "kestrova-" + QUuid::createUuid().toString();
    bool opened = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", connection);
        db.setDatabaseName(path);
        if (access == SqliteAccess::ReadOnly)
            db.setConnectOptions("QSQLITE_OPEN_READONLY");
        opened = db.open();
        if (opened) {
            work(db);
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return opened;
}

} // namespace kestrova
