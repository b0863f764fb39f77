#pragma once
// Data sheets, the printed record of one calculation. A document tool hands
// over one row of the values as they stand on screen, already formatted and
// in the user's units; the row goes into a table of the staging data base
// "datasheets.sqlite" in the user's data folder, the report layout beside the
// program runs over it, and the row is deleted again, whatever the report did.

#include "forms/store/staging.h"

#include <QString>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrova {

class SettingsStore;
class UserInterface;

struct DataSheetReport {
    std::string table; // staging table, e.g. "PDLiquid"
    std::string file;  // report template beside the program, e.g. "pdliquid.rpt"
    std::string title; // the report window's title
};

class DataSheetPrinter {
public:
    static constexpr const char* kStagingFile = "datasheets.sqlite";

    // The report layouts lie in `programFolder`; the staging data base is
    // made in `stagingFolder`, a folder the program may write to.
    DataSheetPrinter(UserInterface& ui, const SettingsStore& store, QString programFolder, QString stagingFolder);

    // Stages the row with the company block after it in a table made afresh,
    // runs the report, says so when the report failed, and deletes the row.
    // A row that cannot be staged is reported and nothing is printed: an
    // earlier case is never printed in its place.
    void print(const DataSheetReport& report, DataSheetColumns columns) const;

    QString stagingPath() const;

private:
    UserInterface& ui_;
    const SettingsStore& store_;
    QString folder_;
    QString stagingFolder_;
};

// The user's data folder, where the program writes what it keeps between
// two steps (the staging data base); made when it is first needed.
QString userDataFolder();

// An option caption as the data sheet writes it: its first character, the
// accelerator sign, cut off ("&Circular" goes as "Circular").
std::string captionWithoutAccelerator(const std::string& caption);

// A report template: the layout of one data sheet over its table's columns.
// Lines of the file: "heading TEXT", "section TEXT", "field LABEL | COLUMN"
// or "field LABEL | COLUMN | UNIT COLUMN"; a table of lines across the page
// by "lines CAPTION | HEADING | HEADING ..." and its rows by
// "row LABEL | UNIT COLUMN or - | COLUMN | COLUMN ..."; blank lines and lines
// starting with "#" are skipped.
struct ReportTemplate {
    struct Line {
        enum class Kind { Heading, Section, Field, Lines, Row } kind;
        std::string text;   // heading, section, field or row label, the table's caption
        std::string column; // fields only
        std::string unitColumn; // fields and rows; empty: none
        std::vector<std::string> cells; // the table's headings, or a row's columns
    };
    std::vector<Line> lines;
};

// Reads a template; nothing when the file is missing or a line is not understood.
std::optional<ReportTemplate> readReportTemplate(const QString& path);

// The data sheet as an HTML page: the company block at the head, then the
// template's headings, sections and fields filled from the row. Nothing when
// the template names a column that the row does not have.
std::optional<QString> dataSheetHtml(const ReportTemplate& layout, const DataSheetColumns& row);

} // namespace kestrova
