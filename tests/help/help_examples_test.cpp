// Every help topic ends with a worked example, and every figure of an example
// is what the program computes: each example table names a request (or a
// project file to open), each result cell the place of its figure in the
// answer. A figure is compared at the precision the topic prints it with, so
// that a change of the program's results shows here as a topic to correct.

#include "calc/calc_protocol.h"
#include "calc/open_file.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QString>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

const QDir kHelpFolder(QStringLiteral(KESTROVA_SOURCE_DIR "/data/help"));
const QDir kProjectFolder(QStringLiteral(KESTROVA_SOURCE_DIR));

struct ResultCell {
    std::string path;     // "result.texts.txtData(10)"
    std::string expected; // as the topic prints it
};

struct Example {
    std::string request; // a JSON request line, or empty
    std::string file;    // a project file to open, relative to the project
    std::vector<ResultCell> cells;
};

std::string plainText(QString html)
{
    html.replace(QStringLiteral("&lt;"), QStringLiteral("<")).replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    html.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return html.trimmed().toStdString();
}

std::vector<Example> examplesOf(const QString& page)
{
    QFile file(kHelpFolder.filePath(page));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression table(
        QStringLiteral("<table class=\"example\" (?:data-request='([^']*)'|data-open=\"([^\"]*)\")>(.*?)</table>"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression cell(QStringLiteral("<td class=\"result\" data-path=\"([^\"]+)\">([^<]*)</td>"));
    std::vector<Example> found;
    for (auto t = table.globalMatch(text); t.hasNext();) {
        const auto match = t.next();
        Example example{match.captured(1).toStdString(), match.captured(2).toStdString(), {}};
        for (auto c = cell.globalMatch(match.captured(3)); c.hasNext();) {
            const auto result = c.next();
            example.cells.push_back({result.captured(1).toStdString(), plainText(result.captured(2))});
        }
        found.push_back(std::move(example));
    }
    return found;
}

json answerOf(const Example& example)
{
    if (!example.request.empty())
        return json::parse(kestrova::calc::answerRequest(example.request));
    bool ok = false;
    return json::parse(kestrova::calc::openProjectFile(kProjectFolder.filePath(QString::fromStdString(example.file)).toStdString(), ok));
}

const json* at(const json& answer, const std::string& path)
{
    const json* node = &answer;
    for (const QString& key : QString::fromStdString(path).split(u'.')) {
        if (!node->is_object() || !node->contains(key.toStdString()))
            return nullptr;
        node = &(*node)[key.toStdString()];
    }
    return node;
}

// A printed number matches a value when the value, rounded to the printed
// decimals, gives the printed figure.
bool sameAtPrintedPrecision(const std::string& printed, double value)
{
    QString digits = QString::fromStdString(printed);
    digits.remove(u',');
    bool isNumber = false;
    const double figure = digits.toDouble(&isNumber);
    if (!isNumber)
        return false;
    const qsizetype point = digits.indexOf(u'.');
    const qsizetype exponent = digits.indexOf(u'E', 0, Qt::CaseInsensitive);
    const qsizetype end = exponent < 0 ? digits.size() : exponent;
    const int decimals = point < 0 ? 0 : static_cast<int>(end - point - 1);
    const double scale = exponent < 0 ? 1.0 : std::pow(10.0, digits.mid(exponent + 1).toDouble());
    return std::fabs(value - figure) <= 0.5 * std::pow(10.0, -decimals) * scale * (1 + 1e-9);
}

void expectCell(const json& answer, const ResultCell& cell, const std::string& where)
{
    const json* value = at(answer, cell.path);
    ASSERT_NE(value, nullptr) << where << ": no " << cell.path << " in " << answer.dump();
    if (value->is_string())
        EXPECT_EQ(value->get<std::string>(), cell.expected) << where << ": " << cell.path;
    else if (value->is_number())
        EXPECT_TRUE(sameAtPrintedPrecision(cell.expected, value->get<double>()))
            << where << ": " << cell.path << " is " << value->get<double>() << ", the topic prints " << cell.expected;
    else
        ADD_FAILURE() << where << ": " << cell.path << " is " << value->dump();
}

QStringList helpPages() { return kHelpFolder.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name); }

} // namespace

TEST(HelpExamples, EveryTopicEndsWithAWorkedExampleOfFigures)
{
    ASSERT_GE(helpPages().size(), 20);
    for (const QString& page : helpPages()) {
        const std::vector<Example> examples = examplesOf(page);
        ASSERT_FALSE(examples.empty()) << page.toStdString() << " has no worked example";
        for (const Example& example : examples)
            EXPECT_FALSE(example.cells.empty()) << page.toStdString() << ": an example without results";
    }
}

TEST(HelpExamples, EveryFigureOfEveryExampleIsWhatTheProgramShows)
{
    int checked = 0;
    for (const QString& page : helpPages()) {
        for (const Example& example : examplesOf(page)) {
            const json answer = answerOf(example);
            const std::string where = page.toStdString() + (example.file.empty() ? " " + example.request : " " + example.file);
            ASSERT_TRUE(answer.value("ok", false)) << where << ": " << answer.dump();
            for (const ResultCell& cell : example.cells) {
                expectCell(answer, cell, where);
                ++checked;
            }
        }
    }
    EXPECT_GE(checked, 80);
}

TEST(HelpExamples, APrintedFigureIsComparedAtItsOwnPrecision)
{
    EXPECT_TRUE(sameAtPrintedPrecision("6.59", 6.58945));
    EXPECT_FALSE(sameAtPrintedPrecision("6.59", 6.5849)); // 6.58 in print
    EXPECT_TRUE(sameAtPrintedPrecision("119,542.23", 119542.227));
    EXPECT_TRUE(sameAtPrintedPrecision("41,653", 41653.4));
    EXPECT_FALSE(sameAtPrintedPrecision("41,653", 41652.4));
    EXPECT_TRUE(sameAtPrintedPrecision("1.5000E-02", 0.015));
    EXPECT_FALSE(sameAtPrintedPrecision("1.5000E-02", 0.01501));
    EXPECT_FALSE(sameAtPrintedPrecision("Annular", 1.0));
}
