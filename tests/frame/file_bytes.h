#pragma once
// A file's bytes read whole, or written whole, for the tests that look at a
// saved record or hand the program a damaged one.

#include "forms/store/project_file.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

inline QByteArray bytesOf(const QString& path)
{
    QByteArray bytes;
    EXPECT_TRUE(kestrova::readWholeFile(path, bytes)) << path.toStdString();
    return bytes;
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}
