#include "tools/piping/model/pipe_data.h"

#include "forms/store/sqlite_session.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtEndian>

#include <cmath>
#include <functional>

namespace kestrova {

namespace {

// Runs `work` on the data base opened read-only for the length of the call.
void withDataBase(const QString& path, const std::function<void(QSqlDatabase&)>& work)
{
    if (!QFileInfo(path).isFile())
        throw DataFileError("The data base " + path.toStdString() + " cannot be found.");
    if (!withSqlite(path, SqliteAccess::ReadOnly, work))
        throw DataFileError("The data base " + path.toStdString() + " cannot be opened.");
}

} // namespace

std::vector<std::string> pipeTableNames(const QString& dataBasePath)
{
    std::vector<std::string> names;
    withDataBase(dataBasePath, [&](QSqlDatabase& db) {
        QSqlQuery query(db);
        query.exec("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid");
        while (query.next())
            names.push_back(query.value(0).toString().toStdString());
    });
    return names;
}

PipeTable readPipeTable(const QString& dataBasePath, const std::string& table)
{
    PipeTable result;
    withDataBase(dataBasePath, [&](QSqlDatabase& db) {
        QSqlQuery query(db);
        const QString name = QString::fromStdString(table).replace('"', "\"\"");
        if (!query.exec("SELECT * FROM \"" + name + "\" ORDER BY rowid"))
            throw DataFileError("The table " + table + " cannot be read.");
        const QSqlRecord record = query.record();
        for (int c = 0; c < record.count(); ++c)
            result.headings.push_back(record.fieldName(c).toStdString());
        while (query.next()) {
            std::vector<std::string> row;
            for (int c = 0; c < record.count(); ++c)
                row.push_back(query.value(c).toString().toStdString());
            result.rows.push_back(std::move(row));
        }
    });
    return result;
}

std::array<Single, 16> readRoughnessFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DataFileError("The roughness file " + path.toStdString() + " cannot be found.");
    const QByteArray bytes = file.readAll();
    if (bytes.size() < 64)
        throw DataFileError("The roughness file " + path.toStdString() + " is too short.");
    std::array<Single, 16> values;
    for (int i = 0; i < 16; ++i) {
        const float value = qFromLittleEndian<float>(bytes.constData() + 4 * i);
        values[static_cast<size_t>(i)] = std::isfinite(value) ? static_cast<double>(value) : 0.0;
    }
    return values;
}

} // namespace kestrova
