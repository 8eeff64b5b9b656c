#pragma once
// A transcript is a file under data/ of cases, one a line, each followed by " => " and what it
// gives; lines that start with "#" are comments. The file is written again from its cases and
// what they give now, and compared with the reference (so VKD_UPDATE_REFERENCES=1 rewrites it).

#include "reference.h"

#include <functional>

inline bool matchesTranscript(const QString& fileName, const std::function<QString(const QString&)>& run)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("cannot read %s", qPrintable(file.fileName()));
        return false;
    }
    QString out;
    for (const QString& line :
         QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QString input = line.section(QStringLiteral(" => "), 0, 0);
        out += (line.startsWith(QLatin1Char('#')) ? line : input + QStringLiteral(" => ") + run(input)) +
               QLatin1Char('\n');
    }
    return matchesReference(out, fileName);
}
