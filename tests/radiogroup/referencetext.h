#pragma once
// The differences of a transcript from its reference under data/, each named by the scenario
// ("== " line) it belongs to; empty if they agree. VKD_UPDATE_REFERENCES=1 rewrites the
// reference instead.

#include <QFile>
#include <QStringList>

inline QString referenceDifferences(const QString& actual, const QString& fileName)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + fileName);
    if (qEnvironmentVariableIntValue("VKD_UPDATE_REFERENCES") == 1)
        return file.open(QIODevice::WriteOnly) && file.write(actual.toUtf8()) >= 0 ? QString() : fileName;
    if (!file.open(QIODevice::ReadOnly))
        return fileName + QStringLiteral(" cannot be read");
    const QStringList expected = QString::fromUtf8(file.readAll()).split('\n'), lines = actual.split('\n');
    QString heading, out;
    for (int i = 0; i < qMax(expected.size(), lines.size()); ++i) {
        if (expected.value(i).startsWith(QLatin1String("== ")))
            heading = expected.value(i);
        if (i >= expected.size() || i >= lines.size() || expected[i] != lines[i])
            out += QStringLiteral("line %1 in %2\n  - %3\n  + %4\n")
                       .arg(i + 1)
                       .arg(heading, expected.value(i), lines.value(i));
    }
    return out;
}
