#pragma once
// The compound data base of the physical property tools: a table of one
// record per compound, read by field position (the name at 1, the constants
// at 4 to 7, six correlation blocks of eight fields), and the file test that
// the frame runs on the file named in the settings.

#include "tools/properties/calc/property_correlation.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrova {

struct Compound {
    std::string name;
    std::optional<double> molecularWeight, criticalTemperature, criticalPressure, acentricFactor;
    struct Block {
        std::optional<CorrelationCoefficients> coefficients; // absent when a coefficient is not numeric
        double lower = 0, upper = 0;                         // kelvin
        std::int16_t equation = 0;
    };
    std::array<Block, 6> blocks; // rows 0 to 5
    // Why the record cannot be used (a value beyond the range of its field),
    // empty for a sound one. Such a compound is listed but never evaluated.
    std::string damage;
};

// Reads the compound table of a data base, in its order; throws on failure,
// a read that stops in the middle of the table included.
std::vector<Compound> readCompounds(const QString& dataBasePath);

// The compound table's name and the number of columns a record must have.
inline constexpr const char* kCompoundTable = "Compounds";
inline constexpr int kCompoundColumns = 99;

// The file test: true when the file opens read-only as an SQLite data base
// whose compound table has every column a record needs and whose pages are sound.
bool isCompoundDataBase(const QString& path);

} // namespace kestrova
