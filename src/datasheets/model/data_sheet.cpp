#include "datasheets/model/data_sheet.h"

#include "forms/store/settings_store.h"
#include "forms/store/sqlite_session.h"
#include "forms/model/user_interface.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>
#include <QTextStream>

namespace kestrova {

namespace {

// The company block, as frmCompanyInfo left it.
DataSheetColumns companyBlock(const SettingsStore& store)
{
    DataSheetColumns block;
    for (const char* key : {"Company", "Address", "City", "State", "Zip", "Country"})
        block.emplace_back(key, store.get("Settings", key, ""));
    return block;
}

const char* const kReportFailure = "An error has occurred while Kestrova was building\r"
                                   "the data sheet.  Make sure that all *.rpt files are \r"
                                   "present in the directory where Kestrova was installed\r"
                                   "or re-install Kestrova.";

} // namespace

DataSheetPrinter::DataSheetPrinter(UserInterface& ui, const SettingsStore& store, QString programFolder,
                                   QString stagingFolder)
    : ui_(ui), store_(store), folder_(std::move(programFolder)), stagingFolder_(std::move(stagingFolder))
{
}

QString DataSheetPrinter::stagingPath() const
{
    return QDir(stagingFolder_).filePath(kStagingFile);
}

QString userDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

void DataSheetPrinter::print(const DataSheetReport& report, DataSheetColumns columns) const
{
    const DataSheetColumns company = companyBlock(store_);
    columns.insert(columns.end(), company.begin(), company.end());
    std::string error;
    if (!QDir().mkpath(stagingFolder_))
        error = "The folder " + stagingFolder_.toStdString() + " cannot be made.";
    else if (!withSqlite(stagingPath(), SqliteAccess::ReadWrite,
                         [&](QSqlDatabase& db) { error = stageRow(db, report.table, columns); }))
        error = "The data base " + stagingPath().toStdString() + " cannot be opened.";
    if (!error.empty()) {
        ui_.ask("Report Generation Error", "The data sheet could not be prepared:\r" + error + "\rNothing was printed.",
                MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
        return;
    }
    const int result = ui_.runReport(report.title, QDir(folder_).filePath(QString::fromStdString(report.file)).toStdString(),
                                     stagingPath().toStdString(), report.table);
    if (result != 0)
        ui_.ask("Report Generation Error", kReportFailure, MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
    withSqlite(stagingPath(), SqliteAccess::ReadWrite, [&](QSqlDatabase& db) { deleteLastRow(db, report.table); });
}

std::string captionWithoutAccelerator(const std::string& caption)
{
    return caption.empty() ? caption : caption.substr(1);
}

std::optional<ReportTemplate> readReportTemplate(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    ReportTemplate layout;
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QString word = line.section(' ', 0, 0);
        const QString rest = line.section(' ', 1).trimmed();
        using Kind = ReportTemplate::Line::Kind;
        if (word == "heading" || word == "section") {
            layout.lines.push_back({word == "heading" ? Kind::Heading : Kind::Section, rest.toStdString(), {}, {}});
        } else if (word == "field") {
            const QStringList parts = rest.split('|');
            if (parts.size() < 2 || parts.size() > 3 || parts[1].trimmed().isEmpty())
                return std::nullopt;
            layout.lines.push_back({Kind::Field, parts[0].trimmed().toStdString(), parts[1].trimmed().toStdString(),
                                    parts.size() == 3 ? parts[2].trimmed().toStdString() : std::string()});
        } else {
            return std::nullopt;
        }
    }
    return layout;
}

namespace {

std::optional<std::string> columnText(const DataSheetColumns& row, const std::string& column)
{
    for (const auto& entry : row)
        if (entry.first == column)
            return entry.second;
    return std::nullopt;
}

QString escaped(const std::string& text)
{
    return QString::fromStdString(text).toHtmlEscaped();
}

// The company block, each line only when it has text.
QString companyHtml(const DataSheetColumns& row)
{
    const auto get = [&](const char* column) { return columnText(row, column).value_or(""); };
    std::string place = get("City");
    for (const char* part : {"State", "Zip"})
        if (!get(part).empty())
            place += (place.empty() ? "" : " ") + get(part);
    QStringList lines;
    for (const std::string& line : {get("Company"), get("Address"), place, get("Country")})
        if (!line.empty())
            lines << escaped(line);
    return lines.isEmpty() ? QString() : "<p align=\"right\"><b>" + lines.join("<br>") + "</b></p>";
}

} // namespace

std::optional<QString> dataSheetHtml(const ReportTemplate& layout, const DataSheetColumns& row)
{
    QString html = "<html><body style=\"font-family: sans-serif; font-size: 10pt\">" + companyHtml(row);
    bool tableOpen = false;
    const auto closeTable = [&] {
        if (tableOpen)
            html += "</table>";
        tableOpen = false;
    };
    using Kind = ReportTemplate::Line::Kind;
    for (const ReportTemplate::Line& line : layout.lines) {
        switch (line.kind) {
        case Kind::Heading:
            closeTable();
            html += "<h2>" + escaped(line.text) + "</h2>";
            break;
        case Kind::Section:
            closeTable();
            html += "<h3 style=\"background-color: #c0c0ff\">" + escaped(line.text) + "</h3>";
            break;
        case Kind::Field: {
            const auto value = columnText(row, line.column);
            const auto unit = line.unitColumn.empty() ? std::optional<std::string>("") : columnText(row, line.unitColumn);
            if (!value || !unit)
                return std::nullopt;
            if (!tableOpen)
                html += "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"3\">";
            tableOpen = true;
            html += "<tr><td width=\"45%\">" + escaped(line.text) + "</td><td width=\"30%\" align=\"right\">" +
                    escaped(*value) + "</td><td width=\"25%\">" + escaped(*unit) + "</td></tr>";
            break;
        }
        }
    }
    closeTable();
    return html + "</body></html>";
}

} // namespace kestrova
