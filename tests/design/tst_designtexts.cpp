// What the design table keeps while it fills many rows: the row texts of one maker, and the
// cell sizes of the summary columns' delegate. Each must give what a fresh computation gives.
#include "DesignParameterTable.h"

#include <VKD_A_BarDiameterData.h>
#include <designrecord.h>
#include <rowtext.h>

#include <QTableWidget>
#include <QtTest>

using namespace vkd::plib::design;

namespace {

using R = tagZOB_QUAD_RIM;

VKD_A_BarDiameterData barsNamed(const QString& name)
{
    VKD_A_BarDiameterData bars;
    bars.setBars({{12.0f, name}});
    return bars;
}

VKD_A_BarDiameterData g_bars = barsNamed(QStringLiteral("B12"));
VKD_A_BarDiameterData g_otherBars = barsNamed(QStringLiteral("Other 12"));

DesignParameterRow row(int type, void (*change)(R&) = nullptr, VKD_A_BarDiameterData* bars = &g_bars)
{
    DesignParameterRow r{bars, getDefaultMerPara(false), {1, 2}};
    r.record.type = type;
    r.record.dio = 12.0f;
    if (change)
        change(r.record);
    return r;
}

} // namespace

Q_DECLARE_METATYPE(DesignParameterRow)

class TestDesignTexts : public QObject
{
    Q_OBJECT
private slots:
    void makerTellsRowsApart_data();
    void makerTellsRowsApart();
    void keptSizes_data();
    void keptSizes();
};

void TestDesignTexts::makerTellsRowsApart_data()
{
    QTest::addColumn<DesignParameterRow>("first");
    QTest::addColumn<DesignParameterRow>("second");

    auto sameCrackAndStress = [](R& r) { r.wko = r.wkoq = r.wkoi = r.sigo = r.sigoq = r.sigoi = 0.25f; };
    QTest::newRow("types 1 and 4: equal numbers, crack widths against stresses")
        << row(1, sameCrackAndStress) << row(4, sameCrackAndStress);
    QTest::newRow("types 2 and 3: equal directions, four against six distances") << row(2) << row(3);
    QTest::newRow("only the last distance of three layers differs")
        << row(3) << row(3, [](R& r) { r.hiui = 0.07f; });
    QTest::newRow("only the lower side's reinforcement differs")
        << row(1) << row(1, [](R& r) { r.amu = 3.5f; });
    QTest::newRow("a value not set, then set")
        << row(2, [](R& r) { r.riuq = kNotSet; }) << row(2, [](R& r) { r.riuq = 0.0f; });
    QTest::newRow("the same bar in another bar table") << row(1) << row(1, nullptr, &g_otherBars);
    QTest::newRow("no bar table") << row(1) << row(1, nullptr, nullptr);
    QTest::newRow("negative zero") << row(1, [](R& r) { r.aso = 0.0f; })
                                   << row(1, [](R& r) { r.aso = -0.0f; });
}

// One maker makes both rows' texts; the second row's must be what a maker of its own makes.
void TestDesignTexts::makerTellsRowsApart()
{
    QFETCH(DesignParameterRow, first);
    QFETCH(DesignParameterRow, second);
    RowTextMaker maker;
    bool anyDiffers = false;
    for (int column = ColumnSelection; column <= ColumnCrackControl; ++column) {
        const QString firstText = maker.text(first, column);
        QCOMPARE(firstText, rowText(first, column));
        QCOMPARE(maker.text(second, column), rowText(second, column));
        anyDiffers = anyDiffers || firstText != rowText(second, column);
    }
    // Rows that showed the same texts would test nothing (negative zero aside: it shows as 0).
    if (QByteArray(QTest::currentDataTag()) != "negative zero")
        QVERIFY(anyDiffers);
}

void TestDesignTexts::keptSizes_data()
{
    QTest::addColumn<QString>("firstText");
    QTest::addColumn<int>("firstPointSize");
    QTest::addColumn<QString>("secondText");
    QTest::addColumn<int>("secondPointSize");

    QTest::newRow("same text, larger font") << "12 ; 13\n14 ; 15 ;" << 9 << "12 ; 13\n14 ; 15 ;" << 20;
    QTest::newRow("longer text, same font") << "1;2" << 9 << "1;2;3;4;5;6;7;8" << 9;
    QTest::newRow("a second line") << "0.25mm" << 9 << "0.25mm\n0.25mm" << 9;
    QTest::newRow("same text and font again") << "1;2" << 9 << "1;2" << 9;
}

// The delegate's size of a cell after it gave one for another cell equals the plain delegate's.
void TestDesignTexts::keptSizes()
{
    QFETCH(QString, firstText);
    QFETCH(int, firstPointSize);
    QFETCH(QString, secondText);
    QFETCH(int, secondPointSize);
    QTableWidget table(2, 1);
    auto* delegate = new TextSizeDelegate(&table);
    table.setItemDelegateForColumn(0, delegate);
    QStyledItemDelegate plain;
    const QString texts[] = {firstText, secondText};
    const int sizes[] = {firstPointSize, secondPointSize};
    for (int r = 0; r < 2; ++r) {
        auto* item = new QTableWidgetItem(texts[r]);
        QFont font = table.font();
        font.setPointSize(sizes[r]);
        item->setFont(font);
        table.setItem(r, 0, item);
    }
    QStyleOptionViewItem option;
    option.initFrom(&table);
    option.widget = &table;
    option.features = QStyleOptionViewItem::WrapText;
    const QModelIndex first = table.model()->index(0, 0);
    const QModelIndex second = table.model()->index(1, 0);
    QCOMPARE(delegate->sizeHint(option, first), plain.sizeHint(option, first));
    QCOMPARE(delegate->sizeHint(option, second), plain.sizeHint(option, second));
    // A size given by the item itself wins, as with the plain delegate.
    table.item(1, 0)->setSizeHint(QSize(7, 9));
    QCOMPARE(delegate->sizeHint(option, second), QSize(7, 9));
}

QTEST_MAIN(TestDesignTexts)
#include "tst_designtexts.moc"
