#include "fuzz_support.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace kestrova::fuzz {

namespace {

QTemporaryDir& scratchFolder()
{
    static QTemporaryDir folder;
    return folder;
}

} // namespace

void ensureApplication()
{
    static int argc = 1;
    static char name[] = "kestrova-fuzz";
    static char* argv[] = {name, nullptr};
    static QCoreApplication* application = new QCoreApplication(argc, argv);
    (void)application;
}

QString scratchFile(const char* name, const std::uint8_t* data, std::size_t size)
{
    const QString path = scratchFolder().filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        std::abort();
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    return path;
}

QString projectFile(std::int16_t kind, const std::uint8_t* data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (bytes.size() < 2)
        bytes.resize(2);
    bytes[0] = static_cast<char>(kind & 0xFF);
    bytes[1] = static_cast<char>((kind >> 8) & 0xFF);
    return scratchFile("case.ksv", reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                       static_cast<std::size_t>(bytes.size()));
}

void requireShowable(const std::string& text, const char* where)
{
    for (const char* bad : {"nan", "inf", "NaN", "Inf", "INF"})
        if (text.find(bad) != std::string::npos) {
            std::fprintf(stderr, "%s shows \"%s\"\n", where, text.c_str());
            std::abort();
        }
}

QString scratchFolderPath()
{
    return scratchFolder().path();
}

} // namespace kestrova::fuzz
