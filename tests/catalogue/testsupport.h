#pragma once
// Helpers shared by the catalogue and output tree tests.

#include "catalogue.h"

#include <vkd_q.h>

#include <QBuffer>
#include <QFile>
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
