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
        const QStringList parts = rest.split('|');
        const auto part = [&parts](qsizetype i) { return parts[i].trimmed().toStdString(); };
        if (word == "heading" || word == "section") {
            layout.lines.push_back({word == "heading" ? Kind::Heading : Kind::Section, rest.toStdString(), {}, {}, {}});
        } else if (word == "field") {
            if (parts.size() < 2 || parts.size() > 3 || parts[1].trimmed().isEmpty())
                return std::nullopt;
            layout.lines.push_back({Kind::Field, part(0), part(1), parts.size() == 3 ? part(2) : std::string(), {}});
        } else if (word == "lines" || word == "row") {
            const qsizetype first = word == "lines" ? 1 : 2; // a row's unit column stands before its cells
            if (parts.size() <= first)
                return std::nullopt;
            ReportTemplate::Line line{word == "lines" ? Kind::Lines : Kind::Row, part(0), {}, {}, {}};
            if (word == "row" && part(1) != "-")
                line.unitColumn = part(1);
            for (qsizetype i = first; i < parts.size(); ++i)
                line.cells.push_back(part(i));
            layout.lines.push_back(std::move(line));
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

// A row of a table of lines: its label, its unit, then one cell per column;
// the heading row of the table in bold.
std::optional<QString> lineCellsHtml(const ReportTemplate::Line& line, const DataSheetColumns& row)
{
    const bool heading = line.kind == ReportTemplate::Line::Kind::Lines;
    // A number never breaks over two lines of its cell.
    const QString cell = heading ? "<th align=\"right\" nowrap>" : "<td align=\"right\" nowrap>";
    const QString end = heading ? "</th>" : "</td>";
    QString html = "<tr>" + QString(heading ? "<th align=\"left\" nowrap>" : "<td nowrap>") + escaped(line.text) + end;
    std::optional<std::string> unit = std::string();
    if (!heading && !line.unitColumn.empty())
        unit = columnText(row, line.unitColumn);
    if (!unit)
        return std::nullopt;
    html += (heading ? "<th></th>" : "<td nowrap>" + escaped(*unit) + "</td>");
    for (const std::string& name : line.cells) {
        const auto value = heading ? std::optional<std::string>(name) : columnText(row, name);
        if (!value)
            return std::nullopt;
        html += cell + escaped(*value) + end;
    }
    return html + "</tr>";
}

} // namespace

std::optional<QString> dataSheetHtml(const ReportTemplate& layout, const DataSheetColumns& row)
{
    QString html = "<html><body style=\"font-family: sans-serif; font-size: 10pt\">" + companyHtml(row);
    // The table open now: of fields (label, value, unit), or of lines across the page.
    enum class Open { None, Fields, Lines } open = Open::None;
    const auto openTable = [&](Open wanted) {
        if (open == wanted)
            return;
        if (open != Open::None)
            html += "</table>";
        if (wanted == Open::Fields)
            html += "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"3\">";
        else if (wanted == Open::Lines)
            html += "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"2\" style=\"font-size: 7pt\">";
        open = wanted;
    };
    using Kind = ReportTemplate::Line::Kind;
    for (const ReportTemplate::Line& line : layout.lines) {
        switch (line.kind) {
        case Kind::Heading:
            openTable(Open::None);
            html += "<h2>" + escaped(line.text) + "</h2>";
            break;
        case Kind::Section:
            openTable(Open::None);
            html += "<h3 style=\"background-color: #c0c0ff\">" + escaped(line.text) + "</h3>";
            break;
        case Kind::Field: {
            const auto value = columnText(row, line.column);
            const auto unit = line.unitColumn.empty() ? std::optional<std::string>("") : columnText(row, line.unitColumn);
            if (!value || !unit)
                return std::nullopt;
            openTable(Open::Fields);
            html += "<tr><td width=\"45%\">" + escaped(line.text) + "</td><td width=\"30%\" align=\"right\">" +
                    escaped(*value) + "</td><td width=\"25%\">" + escaped(*unit) + "</td></tr>";
            break;
        }
        case Kind::Lines:
        case Kind::Row: {
            const auto cells = lineCellsHtml(line, row);
            if (!cells)
                return std::nullopt;
            if (line.kind == Kind::Lines)
                openTable(Open::None); // each table of lines starts afresh
            openTable(Open::Lines);
            html += *cells;
            break;
        }
        }
    }
    openTable(Open::None);
    return html + "</body></html>";
}

} // namespace kestrova
