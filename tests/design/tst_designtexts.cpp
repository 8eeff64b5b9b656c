// What the design table keeps while it fills many rows: the row texts of one maker, and the
// cell sizes of the summary columns' delegate. Each must give what a fresh computation gives.
#include "DesignParameterTable.h"

#include <VKD_A_BarDiameterData.h>
#include <designrecord.h>
#include <rowtext.h>

#include <QTableWidget>
#include <QtTest>

using namespace vkd::plib::design;
using R = tagZOB_QUAD_RIM;

namespace {

VKD_A_BarDiameterData barsNamed(const QString& name)
{
    VKD_A_BarDiameterData bars;
    bars.setBars({{12.0f, name}});
    return bars;
}

VKD_A_BarDiameterData g_bars = barsNamed(QStringLiteral("B12")),
                      g_otherBars = barsNamed(QStringLiteral("Other 12"));

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
    void makerTellsRowsApart_data()
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
    }

    // One maker makes both rows' texts; the second row's must be what a maker of its own makes,
    // and differ from the first row's somewhere (rows of the same texts would test nothing).
    void makerTellsRowsApart()
    {
        QFETCH(DesignParameterRow, first);
        QFETCH(DesignParameterRow, second);
        RowTextMaker maker;
        bool anyDiffers = false;
        for (int column = ColumnSelection; column <= ColumnCrackControl; ++column) {
            QCOMPARE(maker.text(first, column), rowText(first, column));
            QCOMPARE(maker.text(second, column), rowText(second, column));
            anyDiffers = anyDiffers || rowText(first, column) != rowText(second, column);
        }
        QVERIFY(anyDiffers);
    }

    // The delegate's size of a cell after it gave one for another cell equals the plain
    // delegate's: for the same text in a larger font, a longer text, a second line.
    void keptSizes()
    {
        QTableWidget table(4, 1);
        TextSizeDelegate delegate(nullptr);
        QStyledItemDelegate plain;
        QStyleOptionViewItem option;
        option.initFrom(&table);
        option.widget = &table;
        option.features = QStyleOptionViewItem::WrapText;
        int r = 0;
        for (const auto& [text, points] : {std::pair{"12 ; 13\n14 ; 15 ;", 9},
                                           {"12 ; 13\n14 ; 15 ;", 20},
                                           {"1;2;3;4;5;6;7;8", 20},
                                           {"1;2;3;4;5;6;7;8\n1", 20}}) {
            table.setItem(r, 0, new QTableWidgetItem(QString::fromLatin1(text)));
            QFont font = table.font();
            font.setPointSize(points);
            table.item(r, 0)->setFont(font);
            const QModelIndex index = table.model()->index(r++, 0);
            QCOMPARE(delegate.sizeHint(option, index), plain.sizeHint(option, index));
        }
    }
};

QTEST_MAIN(TestDesignTexts)
#include "tst_designtexts.moc"
