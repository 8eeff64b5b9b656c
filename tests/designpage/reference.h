#pragma once
// Compares a multi-line text with a reference file under data/ and, on a difference, prints
// the lines that differ. VKD_UPDATE_REFERENCES=1 rewrites the reference instead.

#include <QFile>
#include <QStringList>
#include <QtTest>

inline QString lineDifference(const QString& expected, const QString& actual)
{
    const QStringList e = expected.split(QLatin1Char('\n'));
    const QStringList a = actual.split(QLatin1Char('\n'));
    QString out;
    for (int i = 0; i < qMax(e.size(), a.size()); ++i) {
        const QString el = i < e.size() ? e.at(i) : QStringLiteral("<none>");
        const QString al = i < a.size() ? a.at(i) : QStringLiteral("<none>");
        if (el != al)
            out += QStringLiteral("line %1\n  - %2\n  + %3\n").arg(i + 1).arg(el, al);
    }
    return out;
}

inline bool compareWithReference(const QString& actual, const QString& fileName)
{
    const QString path = QStringLiteral(TEST_DATA_DIR "/") + fileName;
    QFile file(path);
    if (qEnvironmentVariableIntValue("VKD_UPDATE_REFERENCES") == 1) {
        if (!file.open(QIODevice::WriteOnly))
            return false;
        file.write(actual.toUtf8());
        return true;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("reference %s cannot be read", qPrintable(path));
        return false;
    }
    const QString expected = QString::fromUtf8(file.readAll());
    if (expected == actual)
        return true;
    qWarning("%s differs from the reference (- reference, + actual):\n%s", qPrintable(fileName),
             qPrintable(lineDifference(expected, actual)));
    return false;
}
