// Parsing a catalogue of the size of a large installation, beside the least a parser must do:
// read the lines, decode them and split them at the bars.
// Usage: bench_catalogue [--quick] [--json] [--runs N]

#include "benchharness.h"
#include "catalogue.h"

#include <vkd_q.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QVector>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// The plot lines of the shipped catalogue, repeated to the given number of lines.
QByteArray catalogueText(int lines)
{
    QFile shipped(QString::fromStdString(vkd_lib_searchpath("graphicaloutput.data", 3)));
    if (!shipped.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArray> plots;
    for (const QByteArray& line : shipped.readAll().split('\n'))
        if (!line.startsWith("//") && line.count('|') >= 13)
            plots << line + '\n';
    QByteArray text;
    for (int i = 0; !plots.isEmpty() && i < lines; ++i)
        text += plots.at(i % plots.size());
    return text;
}

void rewind(QFile& device)
{
    device.close();
    device.open(QIODevice::ReadOnly);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    bench::Harness harness("catalogue", argc, argv);
    const int lineCount = harness.size(50000, 500);
    const QByteArray text = catalogueText(lineCount);
    // A file as the loader reads one, cached by the system after the first run.
    QTemporaryDir dir;
    QFile device(dir.filePath(QStringLiteral("graphicaloutput.data")));
    if (text.isEmpty() || !device.open(QIODevice::WriteOnly) || device.write(text) != text.size()) {
        std::fprintf(stderr, "the shipped catalogue was not found or not copied\n");
        return 1;
    }
    device.close();
    std::vector<GraphicalOutputRecord> records;
    int parts = 0;
    harness.compare({QStringLiteral("parseCatalogue"), QStringLiteral("%1 lines").arg(lineCount),
                     QStringLiteral("readLine, UTF-8 decoding, split at |"),
                     [&] { parseCatalogue(device, records); },
                     [&] {
                         // The same reading as the parser's: one line buffer, lines up to its size.
                         char buffer[1024];
                         qint64 length;
                         while ((length = device.readLine(buffer, sizeof buffer)) > 0) {
                             const QString line = QString::fromUtf8(buffer, int(length));
                             parts += line.splitRef(QLatin1Char('|'), Qt::SkipEmptyParts).size();
                         }
                     },
                     1.5,
                     [&] {
                         records.clear();
                         rewind(device);
                     },
                     [&] { rewind(device); }});
    if (records.size() != size_t(lineCount))
        std::fprintf(stderr, "%zu records of %d lines\n", records.size(), lineCount);
    return harness.finish();
}
