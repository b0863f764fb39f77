#pragma once
// Project data files (*.ksv): a signed 16-bit file kind at offset 0, then the
// tool's record, little-endian and without padding. Texts are variant strings:
// a 16-bit type word 8, a 16-bit length, then single-byte Windows-1252 text.

#include "numeric/single.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace kestrova {

enum class FileKind : std::int16_t { OrificePlates = 1, PressureDrop = 2, PumpNetwork = 3 };

inline constexpr const char* kProjectFileFilter = "All Files (*.*)|*.*|Kestrova (*.ksv)|*.ksv";
inline constexpr const char* kProjectFileExtension = "ksv";

// A file that ends before its record does, or holds a text that is not one.
class DamagedFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class RecordWriter {
public:
    void integer16(std::int16_t value);
    void integer32(std::int32_t value);
    void single(Single value);
    void text(const std::string& utf8);
    const QByteArray& bytes() const { return bytes_; }

    // One walk over a record serves both ways: a writer takes each field.
    void field(std::int16_t value) { integer16(value); }
    void field(std::int32_t value) { integer32(value); }
    void field(Single value) { single(value); }
    void field(const std::string& value) { text(value); }

private:
    QByteArray bytes_;
};

class RecordReader {
public:
    explicit RecordReader(QByteArray bytes) : bytes_(std::move(bytes)) {}
    std::int16_t integer16();
    std::int32_t integer32();
    Single single();
    std::string text();
    bool atEnd() const { return position_ >= bytes_.size(); }

    // ... and a reader fills it.
    void field(std::int16_t& value) { value = integer16(); }
    void field(std::int32_t& value) { value = integer32(); }
    void field(Single& value) { value = single(); }
    void field(std::string& value) { value = text(); }

private:
    const char* take(qsizetype count);
    QByteArray bytes_;
    qsizetype position_ = 0;
};

// Windows-1252 both ways; a character the code page lacks is written as "?".
QByteArray toWindows1252(const std::string& utf8);
std::string fromWindows1252(const QByteArray& bytes);

// Reads the whole file; false when it cannot be read.
bool readWholeFile(const QString& path, QByteArray& bytes);
// Writes to a temporary file beside the target and replaces the target only
// when the new file is complete. Returns an error text, empty on success.
std::string writeFileSafely(const QString& path, const QByteArray& bytes);

// The kind at the start of a file, 0 for a file shorter than two bytes.
std::int16_t fileKindOf(const QByteArray& bytes);

} // namespace kestrova
