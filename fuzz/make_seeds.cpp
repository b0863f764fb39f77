// Writes the seed corpora of the fuzz targets, one folder per target, from
// the project's examples and test data.
// Usage: kestrova-fuzz-seeds SOURCE_FOLDER PROGRAM_FOLDER OUTPUT_FOLDER

#include "forms/store/sqlite_session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTextStream>

#include <iostream>
#include <stdexcept>

namespace {

using kestrova::SqliteAccess;
using kestrova::withSqlite;

void write(const QDir& folder, const QString& name, const QByteArray& bytes)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
    file.write(bytes);
}

QDir corpus(const QDir& output, const char* target)
{
    output.mkpath(target);
    return QDir(output.filePath(target));
}

// The shipped examples, each in the corpus of its kind.
void projectFiles(const QDir& source, const QDir& output)
{
    const QDir examples(source.filePath("examples"));
    for (const QString& name : examples.entryList({"*.ksv"}, QDir::Files)) {
        QFile file(examples.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray bytes = file.readAll();
        const char* target = bytes.startsWith(QByteArray("\x01\x00", 2))   ? "fuzz_orifice_file"
                             : bytes.startsWith(QByteArray("\x02\x00", 2)) ? "fuzz_pressure_drop_file"
                                                                           : "fuzz_pump_network_file";
        write(corpus(output, target), name, bytes);
    }
}

void settings(const QDir& output)
{
    const QDir folder = corpus(output, "fuzz_settings");
    write(folder, "empty.ini", "");
    write(folder, "saved.ini",
          "[Settings]\nMainLeft=1500\nMainTop=1200\nMainWidth=9000\nMainHeight=7000\nDisclaimer Show=False\n"
          "PipeClass=1\nASTMPipe=2\nDINPipe=1\nASTMCondition=1\nPipeRoughness=4\nPipeCondition=1\nEOSOption=2\n"
          "UnitSystem=1\nFlowConversion=3\nFlow Conv STP=2\nCompany=Hydro Works\nCity=Leeds\n"
          "[Units]\nTUnits=1\nPUnits=5\nDUnits=2\nLVVUnits=0\nSTUnits=2\nRoughUnits=2\nFlowUnits=3\nVelUnits=3\n"
          "LengthUnits=4\nDiaUnits=3\nPDUnits=5\nVPUnits=5\n"
          "[MRU]\nTitle1=line.ksv\nFile1=/home/user/line.ksv\nTitle2=plate.ksv\nFile2=/home/user/plate.ksv\n");
}

// A compound data base of three compounds on small pages: the real layout in
// a few kilobytes.
void compoundDataBase(const QDir& program, const QDir& output)
{
    const QDir folder = corpus(output, "fuzz_compound_data_base");
    const QString path = folder.filePath("three-compounds.sqlite");
    QFile::remove(path);
    if (!QFile::copy(program.filePath("compounds.sqlite"), path))
        throw std::runtime_error("no compound data base in " + program.path().toStdString());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    withSqlite(path, SqliteAccess::ReadWrite, [](QSqlDatabase& db) {
        QSqlQuery query(db);
        query.exec("DELETE FROM Compounds WHERE COMP NOT IN ('Water', 'Methane', 'Nitrogen')");
        query.exec("PRAGMA page_size = 512");
        query.exec("VACUUM");
    });
}

// Each request line of the protocol's test batch and examples.
void calcLines(const QDir& source, const QDir& output)
{
    const QDir folder = corpus(output, "fuzz_calc_line");
    int n = 0;
    for (const char* name : {"tests/calc/batch_requests.jsonl", "examples/requests.jsonl"}) {
        QFile file(source.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd()) {
            const QByteArray line = file.readLine().trimmed();
            if (!line.isEmpty())
                write(folder, QString("line-%1.json").arg(++n, 3, 10, QChar('0')), line);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 4) {
        std::cerr << "usage: kestrova-fuzz-seeds SOURCE_FOLDER PROGRAM_FOLDER OUTPUT_FOLDER\n";
        return 2;
    }
    try {
        const QDir source(argv[1]), program(argv[2]);
        QDir().mkpath(argv[3]);
        const QDir output(argv[3]);
        projectFiles(source, output);
        settings(output);
        compoundDataBase(program, output);
        calcLines(source, output);
    } catch (const std::exception& error) {
        std::cerr << "kestrova-fuzz-seeds: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
