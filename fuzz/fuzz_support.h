#pragma once
// What the fuzz targets share: the application object that Qt's data base
// and path services need, a scratch file for the bytes of one input, and the
// check that no text a user would see reads "nan" or "inf".

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>

namespace kestrova::fuzz {

// Makes the one application object on the first call.
void ensureApplication();

// Writes the input's bytes to a scratch file of the given name and returns its path.
QString scratchFile(const char* name, const std::uint8_t* data, std::size_t size);

// Writes a project file of `kind`: the kind, then the input from its third byte on.
QString projectFile(std::int16_t kind, const std::uint8_t* data, std::size_t size);

// Ends the run as a finding when a shown text holds something no number is.
void requireShowable(const std::string& text, const char* where);

// The folder that holds the scratch files, and nothing else.
QString scratchFolderPath();

} // namespace kestrova::fuzz
