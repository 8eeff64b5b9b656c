#pragma once
// Helpers shared by the catalogue tests.

#include "catalogue.h"

#include <vkd_q.h>

#include <QBuffer>
#include <QDebug>
#include <QFile>
#include <QString>
#include <QStringList>

#include <vector>

inline std::vector<GraphicalOutputRecord> parseText(const QByteArray& text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    std::vector<GraphicalOutputRecord> records;
    vkd::plib::widgetgraphicaloutput::parseCatalogue(buffer, records);
    return records;
}

// Sets the language of the desktop for the lifetime of the object.
class LanguageScope
{
public:
    explicit LanguageScope(int language) : m_saved(vkd_lib_getvalue(102)) { vkd_lib_setvalue(102, language); }
    ~LanguageScope() { vkd_lib_setvalue(102, m_saved); }

private:
    int m_saved;
};

// A line diff of two texts ("-" expected only, "+" actual only), for the message of a failed
// comparison with a reference file.
inline QString lineDiff(const QString& expected, const QString& actual)
{
    const QStringList a = expected.split(QLatin1Char('\n'));
    const QStringList b = actual.split(QLatin1Char('\n'));
    const int n = a.size();
    const int m = b.size();
    // Longest common subsequence, from the back.
    std::vector<std::vector<int>> common(n + 1, std::vector<int>(m + 1, 0));
    for (int i = n - 1; i >= 0; --i)
        for (int j = m - 1; j >= 0; --j)
            common[i][j] =
                a.at(i) == b.at(j) ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    QString out;
    int i = 0;
    int j = 0;
    while (i < n || j < m) {
        if (i < n && j < m && a.at(i) == b.at(j)) {
            ++i;
            ++j;
        } else if (j < m && (i == n || common[i][j + 1] >= common[i + 1][j])) {
            out += QStringLiteral("line %1 +%2\n").arg(j + 1).arg(b.at(j));
            ++j;
        } else {
            out += QStringLiteral("line %1 -%2\n").arg(i + 1).arg(a.at(i));
            ++i;
        }
    }
    return out;
}

// True if text equals the reference file under the test's data folder; otherwise the difference
// is printed in full (a QVERIFY2 message would be cut short).
inline bool matchesReference(const QString& text, const QString& fileName)
{
    QFile reference(QStringLiteral(TEST_DATA_DIR "/") + fileName);
    if (!reference.open(QIODevice::ReadOnly)) {
        qWarning("cannot read %s", qPrintable(reference.fileName()));
        return false;
    }
    const QString expected = QString::fromUtf8(reference.readAll());
    if (expected == text)
        return true;
    qWarning().noquote()
        << QStringLiteral("differs from %1:\n%2").arg(reference.fileName(), lineDiff(expected, text));
    return false;
}
