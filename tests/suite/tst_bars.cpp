// The bar combo and the reinforcement calculator, driven as a user would.
#include <VKD_A_BarDiameterCombo.h>
#include <VKD_A_ReinforcementCalculation.h>
#include <VKD_H_ZOBDoc.h>

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

constexpr float kNotSet = -99999.0f;

QString texts(const QComboBox& combo)
{
    QStringList t;
    for (int i = 0; i < combo.count(); ++i)
        t << combo.itemText(i);
    return t.join(QLatin1Char(' '));
}

template <typename T> T* child(QWidget* w, const char* name)
{
    return w->findChild<T*>(QLatin1String(name));
}

} // namespace

class TestBars : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void combo_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("shown"); // current text
        QTest::addColumn<float>("current");
        QTest::addColumn<QString>("entries");
        const QString table = QString::fromUtf8("#3 Ø10 #4");
        // clang-format off
        QTest::newRow("not set") << kNotSet << "" << kNotSet << table;
        QTest::newRow("zero is no bar") << 0.0f << "" << kNotSet << table;
        QTest::newRow("bar of the table, float noise") << 12.7004f << "#4" << 12.7f << table;
        QTest::newRow("not in the table: kept, in order") << 11.0f << QString::fromUtf8("Ø11") << 11.0f
            << QString::fromUtf8("#3 Ø10 Ø11 #4");
        QTest::newRow("beyond the largest") << 50.0f << QString::fromUtf8("Ø50") << 50.0f
            << QString::fromUtf8("#3 Ø10 #4 Ø50");
        // clang-format on
    }

    // The project's bars; a value the table lacks is shown and kept, once.
    void combo()
    {
        QFETCH(float, value);
        QFETCH(QString, shown);
        QFETCH(float, current);
        QFETCH(QString, entries);
        VKD_H_ZOBDoc doc(m_dir.filePath(QStringLiteral("combo.vkd")));
        VKD_A_BarDiameterData table;
        table.setBars({{9.5f, QStringLiteral("#3")}, {10.0f, QString()}, {12.7f, QStringLiteral("#4")}});
        table.save(doc.index());
        VKD_A_BarDiameterCombo combo(nullptr, "bar");
        QVERIFY(combo.load(doc.index()));
        combo.setCurrent(value);
        combo.setCurrent(value);
        QCOMPARE(combo.currentText(), shown);
        QCOMPARE(combo.getCurrent(), current);
        QCOMPARE(texts(combo), entries);
        // Without a project the 11 bars of the standard series, and the selection stays.
        QVERIFY(!combo.load(-1));
        QCOMPARE(combo.count(), current == kNotSet ? 11 : 12);
        QCOMPARE(combo.getCurrent(), current);
    }

    void calculator_data()
    {
        QTest::addColumn<float>("bar");
        QTest::addColumn<double>("spacing"); // cm; 0: bars per metre instead
        QTest::addColumn<double>("count");
        QTest::addColumn<int>("layers");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("shown"); // cross section of a bar | result | bars per metre
        QTest::addColumn<double>("value");  // m²/m, by hand: n * pi * d² / 4
        // clang-format off
        QTest::newRow("10/15") << 10.0f << 15.0 << 0.0 << 1 << true << QString::fromUtf8("0.785 cm²|5.24 cm²/m|6.67 /m") << 5.235988e-4;
        QTest::newRow("12/20") << 12.0f << 20.0 << 0.0 << 1 << true << QString::fromUtf8("1.131 cm²|5.65 cm²/m|5.00 /m") << 5.654867e-4;
        QTest::newRow("16/12.5") << 16.0f << 12.5 << 0.0 << 1 << true << QString::fromUtf8("2.011 cm²|16.08 cm²/m|8.00 /m") << 1.6084954e-3;
        QTest::newRow("8, 5 per metre") << 8.0f << 0.0 << 5.0 << 1 << true << QString::fromUtf8("0.503 cm²|2.51 cm²/m|5.00 /m") << 2.513274e-4;
        QTest::newRow("20/10, two layers") << 20.0f << 10.0 << 0.0 << 2 << true << QString::fromUtf8("3.142 cm²|62.83 cm²/m|10.00 /m") << 6.2831853e-3;
        QTest::newRow("no layers count as one") << 10.0f << 15.0 << 0.0 << 0 << true << QString::fromUtf8("0.785 cm²|5.24 cm²/m|6.67 /m") << 5.235988e-4;
        QTest::newRow("Cancel") << 12.0f << 20.0 << 0.0 << 1 << false << QString::fromUtf8("1.131 cm²|5.65 cm²/m|5.00 /m") << 3.5e-4;
        QTest::newRow("no bar: OK refused") << kNotSet << 20.0 << 0.0 << 1 << true << "no bar chosen|-|5.00 /m" << 3.5e-4;
        // clang-format on
    }

    // What the user reads, and what OK (or Cancel) hands back from a start of 3.50 cm²/m.
    void calculator()
    {
        QFETCH(float, bar);
        QFETCH(double, spacing);
        QFETCH(double, count);
        QFETCH(int, layers);
        QFETCH(bool, ok);
        QFETCH(QString, shown);
        QFETCH(double, value);
        QStringList seen;
        QTimer::singleShot(0, [&] {
            QWidget* d = QApplication::activeModalWidget();
            QCOMPARE(child<QLabel>(d, "present")->text(), QString::fromUtf8("3.50 cm²/m"));
            child<VKD_A_BarDiameterCombo>(d, "bar")->setCurrent(bar);
            if (spacing > 0.0) {
                child<QDoubleSpinBox>(d, "spacing")->setValue(spacing);
            } else {
                child<QRadioButton>(d, "byCount")->setChecked(true);
                child<QDoubleSpinBox>(d, "count")->setValue(count);
            }
            seen << child<QLabel>(d, "barArea")->text() << child<QLabel>(d, "result")->text()
                 << child<QDoubleSpinBox>(d, "count")->text();
            child<QPushButton>(d, ok ? "ok" : "cancel")->click();
            if (d->isVisible()) // a disabled OK does nothing
                child<QPushButton>(d, "cancel")->click();
        });
        float result = 3.5e-4f;
        vkd_a_ReinforcementCalculation(nullptr, 0, layers, result, 10.0f);
        QCOMPARE(seen.join(QLatin1Char('|')), shown);
        QVERIFY2(qAbs(result - value) < 1e-9, qPrintable(QString::number(result, 'g', 9)));
    }

    // The input not chosen follows the other and cannot be typed in.
    void spacingFollowsCount()
    {
        VKD_A_ReinforcementCalculationDialog d(nullptr, 0, 1, kNotSet, 12.0f);
        auto* spacing = child<QDoubleSpinBox>(&d, "spacing");
        auto* count = child<QDoubleSpinBox>(&d, "count");
        QVERIFY(spacing->isEnabled() && !count->isEnabled());
        child<QRadioButton>(&d, "byCount")->setChecked(true);
        QVERIFY(!spacing->isEnabled() && count->isEnabled());
        count->setValue(8.0);
        QCOMPARE(spacing->text(), QStringLiteral("12.5 cm"));
        QCOMPARE(child<QLabel>(&d, "present")->text(), QStringLiteral("not set"));
    }
};

QTEST_MAIN(TestBars)
#include "tst_bars.moc"
