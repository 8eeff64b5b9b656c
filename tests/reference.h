#pragma once
// Compares text with a reference file under the test folder's data/. A difference is printed
// line by line, under the last "== " heading above it, in full (a QVERIFY2 message would be cut
// short). VKD_UPDATE_REFERENCES=1 rewrites the references instead.

#include <QFile>
#include <QStringList>

inline bool matchesReference(const QString& actual, const QString& fileName)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + fileName);
    if (qEnvironmentVariableIntValue("VKD_UPDATE_REFERENCES") == 1)
        return file.open(QIODevice::WriteOnly) && file.write(actual.toUtf8()) == actual.toUtf8().size();
    const QStringList expected = file.open(QIODevice::ReadOnly)
                                     ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))
                                     : QStringList{QStringLiteral("<cannot read %1>").arg(file.fileName())};
    const QStringList lines = actual.split(QLatin1Char('\n'));
    const QString none = QStringLiteral("<none>");
    QString heading, diff;
    for (int i = 0; i < qMax(expected.size(), lines.size()); ++i) {
        if (expected.value(i).startsWith(QLatin1String("== ")))
            heading = QStringLiteral(" in ") + expected.value(i);
        if (expected.value(i, none) != lines.value(i, none))
            diff += QStringLiteral("line %1%2\n  - %3\n  + %4\n")
                        .arg(i + 1)
                        .arg(heading, expected.value(i, none), lines.value(i, none));
    }
    if (!diff.isEmpty())
        qWarning("%s differs (- reference, + actual):\n%s", qPrintable(fileName), qPrintable(diff));
    return diff.isEmpty();
}
