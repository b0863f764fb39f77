#include "forms/store/project_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QtEndian>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace kestrova {

namespace {

// Windows-1252 code points of bytes 0x80 to 0x9F; 0 marks an unused byte.
constexpr std::array<char16_t, 32> kHighControls{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr std::int16_t kVariantString = 8;

char encode(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == c)
            return static_cast<char>(0x80 + i);
    return '?';
}

} // namespace

QByteArray toWindows1252(const std::string& utf8)
{
    const QString text = QString::fromStdString(utf8);
    QByteArray bytes;
    bytes.reserve(text.size());
    for (QChar c : text)
        bytes.append(encode(c.unicode()));
    return bytes;
}

std::string fromWindows1252(const QByteArray& bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        const char16_t mapped = (u >= 0x80 && u < 0xA0) ? kHighControls[u - 0x80] : u;
        text.append(QChar(mapped ? mapped : u));
    }
    return text.toStdString();
}

void RecordWriter::integer16(std::int16_t value)
{
    char raw[2];
    qToLittleEndian(value, raw);
    bytes_.append(raw, 2);
}

void RecordWriter::integer32(std::int32_t value)
{
    char raw[4];
    qToLittleEndian(value, raw);
    bytes_.append(raw, 4);
}

void RecordWriter::single(Single value)
{
    char raw[4];
    qToLittleEndian(value.value(), raw);
    bytes_.append(raw, 4);
}

void RecordWriter::text(const std::string& utf8)
{
    const QByteArray encoded = toWindows1252(utf8).left(32767);
    integer16(kVariantString);
    integer16(static_cast<std::int16_t>(encoded.size()));
    bytes_.append(encoded);
}

const char* RecordReader::take(qsizetype count)
{
    if (position_ + count > bytes_.size())
        throw DamagedFileError("The file ends before its data do.");
    const char* at = bytes_.constData() + position_;
    position_ += count;
    return at;
}

std::int16_t RecordReader::integer16()
{
    return qFromLittleEndian<std::int16_t>(take(2));
}

std::int32_t RecordReader::integer32()
{
    return qFromLittleEndian<std::int32_t>(take(4));
}

Single RecordReader::single()
{
    const float value = qFromLittleEndian<float>(take(4));
    if (!std::isfinite(value))
        throw DamagedFileError("The file holds a number that is not one.");
    return static_cast<double>(value);
}

std::string RecordReader::text()
{
    if (integer16() != kVariantString)
        throw DamagedFileError("The file holds a text that is not one.");
    const std::int16_t length = integer16();
    if (length < 0)
        throw DamagedFileError("The file holds a text that is not one.");
    return fromWindows1252(QByteArray(take(length), length));
}

bool readWholeFile(const QString& path, QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    bytes = file.readAll();
    return file.error() == QFileDevice::NoError;
}

namespace {

// A save first writes the whole new file under a name of its own beside the
// target, "<file>.kestrova-save", and only then puts it in the target's place.
constexpr const char* kStagingSuffix = ".kestrova-save";

QString stagingPathOf(const QString& path)
{
    return path + kStagingSuffix;
}

// A save cut short by the end of the program may leave its staging file, or
// the temporary file that stands in for it while it is written
// ("<file>.kestrova-save.XXXXXX"), beside the target. Both are the program's
// own, and the save now under way replaces what they held.
void removeStaleSaves(const QString& path)
{
    const QFileInfo target(path);
    const QString staging = target.fileName() + kStagingSuffix;
    const QRegularExpression ours("^" + QRegularExpression::escape(staging) + "(\\.[A-Za-z0-9]{6})?$");
    QDir folder = target.absoluteDir();
    for (const QString& name : folder.entryList({staging + "*"}, QDir::Files | QDir::Hidden | QDir::System))
        if (ours.match(name).hasMatch())
            folder.remove(name);
}

// Writes the complete file under the staging name. QSaveFile::write() only
// fills a buffer, and a commit after a failed write of that buffer (a full
// disk) can still leave a short file: the buffer is flushed and checked before
// the commit, and the size of what was committed is checked after it.
std::string writeStagingFile(const QString& staging, const QByteArray& bytes)
{
    QSaveFile file(staging);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString().toStdString();
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const std::string error = file.errorString().toStdString();
        file.cancelWriting();
        return error;
    }
    if (!file.commit())
        return file.errorString().toStdString();
    if (QFileInfo(staging).size() != bytes.size()) {
        QFile::remove(staging);
        return "The file was not written completely.";
    }
    return {};
}

} // namespace

std::string writeFileSafely(const QString& path, const QByteArray& bytes)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isWritable())
        return "The file is read-only.";
    removeStaleSaves(path);
    const QString staging = stagingPathOf(path);
    if (std::string error = writeStagingFile(staging, bytes); !error.empty())
        return error;
    if (target.exists())
        QFile::setPermissions(staging, QFile::permissions(path));
    // One rename puts the complete new file in the old one's place.
    if (std::rename(QFile::encodeName(staging).constData(), QFile::encodeName(path).constData()) != 0) {
        const std::string error = std::strerror(errno);
        QFile::remove(staging);
        return error;
    }
    return {};
}

std::int16_t fileKindOf(const QByteArray& bytes)
{
    if (bytes.size() < 2)
        return 0;
    return qFromLittleEndian<std::int16_t>(bytes.constData());
}

} // namespace kestrova
