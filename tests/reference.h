#pragma once
// Comparison with a reference file under the test's data folder; shared by the test folders.

#include <QFile>
#include <QStringList>

// True if text equals the reference file under the test's data folder; otherwise the lines that
// differ are printed in full (a QVERIFY2 message would be cut short).
inline bool matchesReference(const QString& text, const QString& fileName)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + fileName);
    const QStringList expected = file.open(QIODevice::ReadOnly)
                                     ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))
                                     : QStringList{QStringLiteral("<cannot read %1>").arg(file.fileName())};
    const QStringList actual = text.split(QLatin1Char('\n'));
    const QString none = QStringLiteral("<none>");
    QString diff;
    for (int i = 0; i < qMax(expected.size(), actual.size()); ++i)
        if (expected.value(i, none) != actual.value(i, none))
            diff += QStringLiteral("line %1\n  - %2\n  + %3\n")
                        .arg(i + 1)
                        .arg(expected.value(i, none), actual.value(i, none));
    if (!diff.isEmpty())
        qWarning("%s differs (- reference, + actual):\n%s", qPrintable(fileName), qPrintable(diff));
    return diff.isEmpty();
}
