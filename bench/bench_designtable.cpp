// The design parameter table of a large project: the page reads its rows from the project and
// fills the table, beside the same reading and a plain table filled with the same texts.
// Usage: bench_designtable [--quick] [--json] [--runs N]

#include "DesignParameter.h"
#include "benchharness.h"
#include "designrecord.h"
#include "designstore.h"

#include <VKD_H_ZOBDoc.h>

#include <QApplication>
#include <QTableWidget>
#include <QTemporaryDir>

#include <memory>

using namespace vkd::plib::design;

namespace {

constexpr int kColumns = 5;

// Rows that differ from their neighbours, each for two groups.
void storeRows(VKD_H_ZOBDoc& doc, int count)
{
    DesignParameterData data;
    data.designDoc = &doc;
    data.kindOfSystem = 10;
    for (int r = 0; r < count; ++r) {
        DesignParameterRow row = addDefaultRow(data);
        data.rows.pop_back();
        row.record.type = 1 + r % 3;
        row.record.aso = float(r % 100) / 10.0f;
        row.groups = {2 * r + 1, 2 * r + 2};
        data.rows.push_back(row);
    }
    bool converted = false;
    writeRowsToZob(data, converted);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    bench::Harness harness("design table", argc, argv);
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("bench.vkd")));
    if (!doc.isValid()) {
        std::fprintf(stderr, "no project file: %s\n", qPrintable(doc.errorString()));
        return 1;
    }
    const int rowCount = harness.size(10000, 100);
    storeRows(doc, rowCount);

    std::unique_ptr<DesignParameter> page;
    const auto freshPage = [&] {
        page.reset();
        page = std::make_unique<DesignParameter>(&doc, &doc, nullptr, false, false);
        page->init();
    };
    freshPage();
    page->readZob();
    auto* shown = page->findChild<QTableWidget*>(QStringLiteral("table"));
    if (!shown || shown->rowCount() != rowCount) {
        std::fprintf(stderr, "the page shows %d rows, not %d\n", shown ? shown->rowCount() : -1, rowCount);
        return 1;
    }
    std::vector<QString> texts;
    for (int r = 0; r < rowCount; ++r)
        for (int c = 0; c < kColumns; ++c)
            texts.push_back(shown->item(r, c) ? shown->item(r, c)->text() : QString());

    std::unique_ptr<QTableWidget> bare;
    const auto freshTable = [&] {
        bare.reset();
        bare = std::make_unique<QTableWidget>(0, kColumns);
    };
    harness.compare({QStringLiteral("readZob: rows read, refreshRows(-1)"),
                     QStringLiteral("%1 rows").arg(rowCount),
                     QStringLiteral("the same reading, a QTableWidget filled with the same texts"),
                     [&] { page->readZob(); },
                     [&] {
                         DesignParameterData data;
                         data.designDoc = &doc;
                         data.kindOfSystem = 10;
                         readRowsFromZob(data);
                         bare->setRowCount(int(data.rows.size()));
                         size_t i = 0;
                         for (int r = 0; r < bare->rowCount(); ++r)
                             for (int c = 0; c < kColumns; ++c)
                                 bare->setItem(r, c, new QTableWidgetItem(texts[i++]));
                     },
                     1.5, freshPage, freshTable});
    return harness.finish();
}
