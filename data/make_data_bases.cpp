// Builds the data files that Kestrova finds beside itself, from the CSV
// reference data of this folder:
//   pipeastm.sqlite, pipedin.sqlite  one table per material, named by the
//                                    kind's prefix letter and the material
//                                    name, created kind by kind (E, N, T) in
//                                    the order of the files' numbers
//   ASTMM.dat ... DINT.dat           sixteen little-endian singles each: the
//                                    roughness in feet of each material
//   compounds.sqlite                 the compound data base (layout below)
// Usage: kestrova-make-data DATA_FOLDER OUTPUT_FOLDER

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTextStream>
#include <QtEndian>

#include <array>
#include <cstdio>
#include <map>
#include <stdexcept>

namespace {

using Row = QStringList;

// RFC 4180: fields separated by commas, quoted where they hold a comma.
QList<Row> readCsv(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    const QString text = QString::fromUtf8(file.readAll());
    QList<Row> rows;
    Row row;
    QString field;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (quoted) {
            if (c == '"' && i + 1 < text.size() && text[i + 1] == '"') {
                field += '"';
                ++i;
            } else if (c == '"') {
                quoted = false;
            } else {
                field += c;
            }
        } else if (c == '"') {
            quoted = true;
        } else if (c == ',') {
            row << field;
            field.clear();
        } else if (c == '\n') {
            row << field;
            field.clear();
            rows << row;
            row.clear();
        } else if (c != '\r') {
            field += c;
        }
    }
    if (!field.isEmpty() || !row.isEmpty())
        rows << (row << field);
    return rows;
}

QString quotedName(const QString& name)
{
    return '"' + QString(name).replace('"', "\"\"") + '"';
}

QSqlDatabase freshDataBase(const QString& path, const QString& connection)
{
    QFile::remove(path);
    QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", connection);
    db.setDatabaseName(path);
    if (!db.open())
        throw std::runtime_error("cannot create " + path.toStdString());
    return db;
}

void exec(QSqlQuery& query, const QString& sql)
{
    if (!query.exec(sql))
        throw std::runtime_error((sql + ": " + query.lastError().text()).toStdString());
}

// One table per material file, kinds E, N, T in turn, files in number order.
void buildPipeDataBase(const QDir& source, const QString& path, const QString& connection)
{
    {
        QSqlDatabase db = freshDataBase(path, connection);
        QSqlQuery query(db);
        db.transaction();
        for (const QString kind : {"E", "N", "T"}) {
            const QDir folder(source.filePath(kind));
            for (const QString& file : folder.entryList({"*.csv"}, QDir::Files, QDir::Name)) {
                const QString material = file.mid(3, file.size() - 7); // "NN-" ... ".csv"
                const QList<Row> rows = readCsv(folder.filePath(file));
                QStringList columns;
                for (const QString& heading : rows.front())
                    columns << quotedName(heading) + " TEXT";
                const QString table = quotedName(kind + material);
                exec(query, "CREATE TABLE " + table + " (" + columns.join(", ") + ")");
                const QString marks = QStringList(rows.front().size(), "?").join(", ");
                query.prepare("INSERT INTO " + table + " VALUES (" + marks + ")");
                for (qsizetype r = 1; r < rows.size(); ++r) {
                    for (qsizetype c = 0; c < rows.front().size(); ++c)
                        query.bindValue(static_cast<int>(c), rows[r].value(c));
                    if (!query.exec())
                        throw std::runtime_error(query.lastError().text().toStdString());
                }
            }
        }
        db.commit();
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
}

// Sixteen singles per class and kind, entry n for the material numbered n + 1.
void buildRoughnessFiles(const QDir& source, const QDir& output)
{
    std::map<QString, std::array<float, 16>> files;
    const QList<Row> rows = readCsv(source.filePath("pipes/roughness.csv"));
    for (qsizetype r = 1; r < rows.size(); ++r) {
        const Row& row = rows[r];
        const QString prefix = row[0] == "astm" ? "ASTM" : "DIN";
        const QString suffix = row[1] == "E" ? "M" : row[1] == "N" ? "NM" : "T";
        files[prefix + suffix][static_cast<size_t>(row[2].toInt() - 1)] = row[4].toFloat();
    }
    for (const QString name : {"ASTMM", "ASTMNM", "ASTMT", "DINM", "DINNM", "DINT"}) {
        QFile file(output.filePath(name + ".dat"));
        if (!file.open(QIODevice::WriteOnly))
            throw std::runtime_error("cannot write " + name.toStdString());
        for (float value : files[name]) {
            char raw[4];
            qToLittleEndian(value, raw);
            file.write(raw, 4);
        }
    }
}

// The compound table. Field positions, counting from 0:
//   0 ID, 1 COMP (name), 2 FORMULA, 3 CAS, 4 MW (kg/kmol), 5 TC (°F),
//   6 PC (psi), 7 OMEGA, 8-18 reserved,
//   19-26 vapour pressure, 27-34 liquid density, 35-42 liquid viscosity,
//   43-50 vapour viscosity, 51-74 reserved, 75-82 ideal-gas heat capacity,
//   83-90 reserved, 91-98 surface tension.
// A block is A, B, C, D, E, lower limit (K), upper limit (K), equation number;
// a missing block is NULL throughout.
void buildCompoundDataBase(const QDir& source, const QString& path)
{
    struct Block {
        int first;
        const char* csvName;
        const char* prefix;
    };
    const Block blocks[] = {{19, "vappres", "VP"}, {27, "liqden", "LD"}, {35, "liqvisc", "LV"},
                            {43, "vapvisc", "VV"}, {75, "cpig", "CP"}, {91, "surften", "ST"}};
    const char* blockFields[] = {"A", "B", "C", "D", "E", "TMIN", "TMAX", "EQ"};
    QStringList names(99);
    const char* leading[] = {"ID", "COMP", "FORMULA", "CAS", "MW", "TC", "PC", "OMEGA"};
    for (int i = 0; i < 8; ++i)
        names[i] = leading[i];
    for (int i = 8; i < 99; ++i)
        names[i] = QString("RESERVED%1").arg(i);
    for (const Block& b : blocks)
        for (int k = 0; k < 8; ++k)
            names[b.first + k] = QString(b.prefix) + "_" + blockFields[k];

    const QList<Row> rows = readCsv(source.filePath("compounds/compounds.csv"));
    std::map<QString, qsizetype> column;
    for (qsizetype c = 0; c < rows.front().size(); ++c)
        column[rows.front()[c]] = c;
    {
        QSqlDatabase db = freshDataBase(path, "compounds");
        QSqlQuery query(db);
        QStringList definitions;
        for (int i = 0; i < 99; ++i)
            definitions << names[i] + (i == 0 ? " INTEGER PRIMARY KEY" : i >= 1 && i <= 3 ? " TEXT" : " REAL");
        db.transaction();
        exec(query, "CREATE TABLE Compounds (" + definitions.join(", ") + ")");
        query.prepare("INSERT INTO Compounds VALUES (" + QStringList(99, "?").join(", ") + ")");
        for (qsizetype r = 1; r < rows.size(); ++r) {
            const Row& row = rows[r];
            const auto cell = [&](const QString& name) { return row.value(column.at(name)); };
            const auto number = [&](const QString& name) -> QVariant {
                const QString text = cell(name);
                return text.isEmpty() ? QVariant() : QVariant(text.toDouble());
            };
            for (int i = 0; i < 99; ++i)
                query.bindValue(i, QVariant());
            query.bindValue(0, static_cast<int>(r));
            query.bindValue(1, cell("name"));
            query.bindValue(2, cell("formula"));
            query.bindValue(3, cell("cas"));
            query.bindValue(4, number("mw"));
            query.bindValue(5, (cell("tc_k").toDouble() - 273.15) * 1.8 + 32);
            query.bindValue(6, cell("pc_pa").toDouble() / 6894.757293168);
            query.bindValue(7, number("omega"));
            const char* csvFields[] = {"a", "b", "c", "d", "e", "tmin_k", "tmax_k", "eq"};
            for (const Block& b : blocks)
                for (int k = 0; k < 8; ++k)
                    query.bindValue(b.first + k, number(QString(b.csvName) + "_" + csvFields[k]));
            if (!query.exec())
                throw std::runtime_error(query.lastError().text().toStdString());
        }
        db.commit();
        db.close();
    }
    QSqlDatabase::removeDatabase("compounds");
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: kestrova-make-data DATA_FOLDER OUTPUT_FOLDER\n");
        return 2;
    }
    const QDir source(QString::fromLocal8Bit(argv[1]));
    const QDir output(QString::fromLocal8Bit(argv[2]));
    try {
        buildPipeDataBase(QDir(source.filePath("pipes/astm")), output.filePath("pipeastm.sqlite"), "astm");
        buildPipeDataBase(QDir(source.filePath("pipes/din")), output.filePath("pipedin.sqlite"), "din");
        buildRoughnessFiles(source, output);
        buildCompoundDataBase(source, output.filePath("compounds.sqlite"));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "kestrova-make-data: %s\n", error.what());
        return 1;
    }
    return 0;
}
