#pragma once
// Reading the pipe data beside the program: the pipe size data bases (one
// table per material, in the order they were stored) and the roughness files
// (sixteen little-endian singles).

#include "numeric/single.h"

#include <QString>

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace kestrova {

class DataFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct PipeTable {
    std::vector<std::string> headings;
    std::vector<std::vector<std::string>> rows;
    bool operator==(const PipeTable&) const = default;
};

// The table names of a data base in their stored order.
std::vector<std::string> pipeTableNames(const QString& dataBasePath);
PipeTable readPipeTable(const QString& dataBasePath, const std::string& table);
std::array<Single, 16> readRoughnessFile(const QString& path);

} // namespace kestrova
