// The compound data base: its table read into compounds, and the file test
// that tells a usable data base from any other file.

#include "tools/properties/model/compound_data_base.h"

#include "forms/store/sqlite_session.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cfloat>
#include <cmath>
#include <stdexcept>

namespace kestrova {

namespace {

constexpr int kBlockFirstField[6] = {27, 35, 43, 19, 75, 91}; // rows 0 to 5

std::optional<double> numberOf(const QVariant& v)
{
    if (v.isNull())
        return std::nullopt;
    bool ok = false;
    const double number = v.toDouble(&ok);
    return ok ? std::optional<double>(number) : std::nullopt;
}

// The properties of the six blocks, as a message names them.
std::string rowName(int row)
{
    static const char* const names[6] = {"Liquid Density", "Liquid Viscosity", "Vapor Viscosity",
                                         "Vapor Pressure", "Heat Capacity",    "Surface Tension"};
    return names[row];
}

// The record's values in the ranges of their fields: the constants and the
// limits are singles, the equation number a 16-bit integer, the
// coefficients finite doubles. The first value beyond its range names the damage.
std::string damageOf(const Compound& c)
{
    const auto single = [](const std::optional<double>& v) { return !v || std::fabs(*v) <= FLT_MAX; };
    if (!single(c.molecularWeight) || !single(c.criticalTemperature) || !single(c.criticalPressure) ||
        !single(c.acentricFactor))
        return "a constant beyond the range of a single";
    for (size_t row = 0; row < c.blocks.size(); ++row) {
        const Compound::Block& b = c.blocks[row];
        if (!single(b.lower) || !single(b.upper))
            return "a temperature limit of " + rowName(static_cast<int>(row)) + " beyond the range of a single";
        if (b.coefficients)
            for (double k : *b.coefficients)
                if (!std::isfinite(k))
                    return "a coefficient of " + rowName(static_cast<int>(row)) + " that is not a finite number";
    }
    return {};
}

// An equation number as the record holds it: a whole 16-bit integer, or none.
std::optional<std::int16_t> equationOf(const std::optional<double>& v)
{
    if (!v)
        return std::int16_t{0};
    if (!(std::fabs(*v) <= 32767) || std::trunc(*v) != *v)
        return std::nullopt;
    return static_cast<std::int16_t>(*v);
}

} // namespace

std::vector<Compound> readCompounds(const QString& path)
{
    if (!QFileInfo(path).isFile())
        throw std::runtime_error("The physical properties data base cannot be found.");
    std::vector<Compound> compounds;
    bool ok = false;
    withSqlite(path, SqliteAccess::ReadOnly, [&](QSqlDatabase& db) {
        QSqlQuery query(db);
        query.setForwardOnly(true);
        ok = query.exec(QString("SELECT * FROM %1 ORDER BY ID").arg(kCompoundTable)) &&
             query.record().count() >= kCompoundColumns;
        while (ok && query.next()) {
            Compound c;
            c.name = query.value(1).toString().toStdString();
            c.molecularWeight = numberOf(query.value(4));
            c.criticalTemperature = numberOf(query.value(5));
            c.criticalPressure = numberOf(query.value(6));
            c.acentricFactor = numberOf(query.value(7));
            for (int row = 0; row < 6; ++row) {
                const int first = kBlockFirstField[row];
                Compound::Block& block = c.blocks[static_cast<size_t>(row)];
                CorrelationCoefficients coefficients{};
                bool complete = true;
                for (int k = 0; k < 5; ++k) {
                    const auto number = numberOf(query.value(first + k));
                    complete = complete && number.has_value();
                    coefficients[static_cast<size_t>(k)] = number.value_or(0);
                }
                if (complete)
                    block.coefficients = coefficients;
                block.lower = numberOf(query.value(first + 5)).value_or(0);
                block.upper = numberOf(query.value(first + 6)).value_or(0);
                const auto equation = equationOf(numberOf(query.value(first + 7)));
                block.equation = equation.value_or(0);
                if (!equation && c.damage.empty())
                    c.damage = "an equation number of " + rowName(row) + " that is no 16-bit integer";
            }
            if (c.damage.empty())
                c.damage = damageOf(c);
            compounds.push_back(std::move(c));
        }
        // next() is false at the end of the rows and on a failing read alike:
        // a table read only in part is a failure, never a shorter list.
        ok = ok && !query.lastError().isValid();
    });
    if (!ok)
        throw std::runtime_error("The physical properties data base cannot be read.");
    return compounds;
}

bool isCompoundDataBase(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable())
        return false;
    bool valid = false;
    withSqlite(info.absoluteFilePath(), SqliteAccess::ReadOnly, [&valid](QSqlDatabase& db) {
        QSqlQuery query(db);
        // The compound table with all its columns, in a file whose pages are sound.
        valid = query.exec(QString("SELECT * FROM %1 LIMIT 1").arg(kCompoundTable)) &&
                query.record().count() >= kCompoundColumns && query.exec("PRAGMA quick_check") && query.next() &&
                query.value(0).toString() == "ok";
    });
    return valid;
}

} // namespace kestrova
