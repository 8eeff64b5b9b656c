// The bar combo and the reinforcement calculator, driven as a user would.
#include <VKD_A_BarDiameterCombo.h>
#include <VKD_A_ReinforcementCalculation.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_a_reinforcement.h>

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

constexpr float kNotSet = -99999.0f;

QString texts(const QComboBox& combo)
{
    QStringList t;
    for (int i = 0; i < combo.count(); ++i)
        t << combo.itemText(i);
    return t.join(QLatin1Char(' '));
}

// Runs `user` on the calculator once it is shown, then presses OK or Cancel.
void answerCalculator(const std::function<void(QDialog*)>& user, bool ok)
{
    QTimer::singleShot(0, [user, ok] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        user(dialog);
        QPushButton* button =
            dialog->findChild<QPushButton*>(ok ? QStringLiteral("ok") : QStringLiteral("cancel"));
        QVERIFY(button);
        button->click();
        if (dialog->isVisible()) // a disabled OK does nothing
            dialog->reject();
    });
}

} // namespace

class TestBars : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;

private slots:
    void initTestCase()
    {
        m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir.filePath(QStringLiteral("bars.vkd")));
        QVERIFY(m_doc->isValid());
    }
    void cleanupTestCase() { m_doc.reset(); }

    void combo_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<float>("current");
        QTest::addColumn<int>("count");
        // clang-format off
        QTest::newRow("not set") << kNotSet << -1 << "" << kNotSet << 11;
        QTest::newRow("zero is no bar") << 0.0f << -1 << "" << kNotSet << 11;
        QTest::newRow("first bar") << 6.0f << 0 << QString::fromUtf8("Ø6") << 6.0f << 11;
        QTest::newRow("bar of the table") << 12.0f << 3 << QString::fromUtf8("Ø12") << 12.0f << 11;
        QTest::newRow("same bar in float noise") << 12.0004f << 3 << QString::fromUtf8("Ø12") << 12.0f << 11;
        QTest::newRow("not in the table: kept, in order") << 11.0f << 3 << QString::fromUtf8("Ø11") << 11.0f << 12;
        QTest::newRow("beyond the largest") << 50.0f << 11 << QString::fromUtf8("Ø50") << 50.0f << 12;
        // clang-format on
    }

    void combo()
    {
        QFETCH(float, value);
        QFETCH(int, index);
        QFETCH(QString, shown);
        QFETCH(float, current);
        QFETCH(int, count);
        VKD_A_BarDiameterCombo combo(nullptr, "bar");
        QCOMPARE(combo.objectName(), QStringLiteral("bar"));
        QVERIFY(combo.load(m_doc->index()));
        combo.setCurrent(value);
        QCOMPARE(combo.currentIndex(), index);
        QCOMPARE(combo.currentText(), shown);
        QCOMPARE(combo.getCurrent(), current);
        QCOMPARE(combo.count(), count);
        // Showing the value once more adds nothing.
        combo.setCurrent(value);
        QCOMPARE(combo.count(), count);
    }

    // The project's names; a selection survives a reload; no project still offers bars.
    void comboLoad()
    {
        QTemporaryDir dir;
        VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("own.vkd")));
        VKD_A_BarDiameterData table;
        table.setBars({{9.5f, QStringLiteral("#3")}, {12.7f, QStringLiteral("#4")}});
        table.save(doc.index());
        VKD_A_BarDiameterCombo combo;
        QVERIFY(combo.load(doc.index()));
        QCOMPARE(texts(combo), QStringLiteral("#3 #4"));
        QVERIFY(combo.setCurrent(12.7f));
        QVERIFY(!combo.setCurrent(10.0f));
        QCOMPARE(texts(combo), QString::fromUtf8("#3 Ø10 #4"));
        QVERIFY(!combo.load(-1));
        QCOMPARE(texts(combo), QString::fromUtf8("Ø6 Ø8 Ø10 Ø12 Ø14 Ø16 Ø20 Ø25 Ø28 Ø32 Ø40"));
        QCOMPARE(combo.getCurrent(), 10.0f);
    }

    void arithmetic_data()
    {
        QTest::addColumn<float>("bar");
        QTest::addColumn<double>("spacing"); // cm; 0: give bars per metre instead
        QTest::addColumn<double>("count");
        QTest::addColumn<int>("layers");
        QTest::addColumn<double>("area"); // cm²/m, by hand: n * pi * d² / 4
        QTest::addColumn<QString>("text");
        // clang-format off
        QTest::newRow("10/15") << 10.0f << 15.0 << 0.0 << 1 << 5.235988 << QString::fromUtf8("5.24 cm²/m");
        QTest::newRow("12/20") << 12.0f << 20.0 << 0.0 << 1 << 5.654867 << QString::fromUtf8("5.65 cm²/m");
        QTest::newRow("16/12.5") << 16.0f << 12.5 << 0.0 << 1 << 16.084954 << QString::fromUtf8("16.08 cm²/m");
        QTest::newRow("6/100") << 6.0f << 100.0 << 0.0 << 1 << 0.282743 << QString::fromUtf8("0.28 cm²/m");
        QTest::newRow("8, 5 bars per metre") << 8.0f << 0.0 << 5.0 << 1 << 2.513274 << QString::fromUtf8("2.51 cm²/m");
        QTest::newRow("25, 4.5 bars per metre") << 25.0f << 0.0 << 4.5 << 1 << 22.089323 << QString::fromUtf8("22.09 cm²/m");
        QTest::newRow("20/10, two layers") << 20.0f << 10.0 << 0.0 << 2 << 62.831853 << QString::fromUtf8("62.83 cm²/m");
        QTest::newRow("no layers count as one") << 10.0f << 15.0 << 0.0 << 0 << 5.235988 << QString::fromUtf8("5.24 cm²/m");
        // clang-format on
    }

    // What the user reads and what OK hands back, in m²/m.
    void arithmetic()
    {
        QFETCH(float, bar);
        QFETCH(double, spacing);
        QFETCH(double, count);
        QFETCH(int, layers);
        QFETCH(double, area);
        QFETCH(QString, text);
        float value = kNotSet;
        QString shown;
        answerCalculator(
            [&](QDialog* d) {
                auto* combo = d->findChild<VKD_A_BarDiameterCombo*>(QStringLiteral("bar"));
                combo->setCurrent(bar);
                if (spacing > 0.0) {
                    d->findChild<QDoubleSpinBox*>(QStringLiteral("spacing"))->setValue(spacing);
                } else {
                    d->findChild<QRadioButton*>(QStringLiteral("byCount"))->setChecked(true);
                    d->findChild<QDoubleSpinBox*>(QStringLiteral("count"))->setValue(count);
                }
                shown = d->findChild<QLabel*>(QStringLiteral("result"))->text();
            },
            true);
        vkd_a_ReinforcementCalculation(nullptr, m_doc->index(), layers, value, 10.0f);
        QCOMPARE(shown, text);
        QVERIFY2(qAbs(value - area * 1e-4) < 1e-9, qPrintable(QString::number(value, 'g', 9)));
    }

    // The two inputs follow each other; the one not chosen cannot be typed in.
    void spacingAndCount()
    {
        VKD_A_ReinforcementCalculationDialog d(nullptr, m_doc->index(), 1, kNotSet, 12.0f);
        auto* spacing = d.findChild<QDoubleSpinBox*>(QStringLiteral("spacing"));
        auto* count = d.findChild<QDoubleSpinBox*>(QStringLiteral("count"));
        QCOMPARE(spacing->value(), 15.0);
        QCOMPARE(count->text(), QStringLiteral("6.67 /m"));
        QVERIFY(spacing->isEnabled() && !count->isEnabled());
        spacing->setValue(25.0);
        QCOMPARE(count->value(), 4.0);
        d.findChild<QRadioButton*>(QStringLiteral("byCount"))->setChecked(true);
        QVERIFY(!spacing->isEnabled() && count->isEnabled());
        count->setValue(8.0);
        QCOMPARE(spacing->text(), QStringLiteral("12.5 cm"));
        QCOMPARE(d.findChild<QLabel*>(QStringLiteral("barArea"))->text(), QString::fromUtf8("1.131 cm²"));
        QCOMPARE(d.findChild<QLabel*>(QStringLiteral("present"))->text(), QStringLiteral("not set"));
    }

    void cancelAndNoBar_data()
    {
        QTest::addColumn<float>("start");
        QTest::addColumn<float>("bar");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<float>("after");
        QTest::newRow("cancel after input") << 3.5e-4f << 12.0f << false << 3.5e-4f;
        QTest::newRow("cancel of a value not set") << kNotSet << 12.0f << false << kNotSet;
        QTest::newRow("no bar: OK refused") << 3.5e-4f << kNotSet << true << 3.5e-4f;
    }

    void cancelAndNoBar()
    {
        QFETCH(float, start);
        QFETCH(float, bar);
        QFETCH(bool, ok);
        QFETCH(float, after);
        float value = start;
        bool okEnabled = true;
        QString result, present;
        answerCalculator(
            [&](QDialog* d) {
                d->findChild<QDoubleSpinBox*>(QStringLiteral("spacing"))->setValue(10.0);
                okEnabled = d->findChild<QPushButton*>(QStringLiteral("ok"))->isEnabled();
                result = d->findChild<QLabel*>(QStringLiteral("result"))->text();
                present = d->findChild<QLabel*>(QStringLiteral("present"))->text();
            },
            ok);
        vkd_a_ReinforcementCalculation(nullptr, m_doc->index(), 1, value, bar);
        QCOMPARE(value, after);
        QCOMPARE(okEnabled, bar != kNotSet);
        QCOMPARE(result, bar != kNotSet ? QString::fromUtf8("11.31 cm²/m") : QStringLiteral("-"));
        QCOMPARE(present, start == kNotSet ? QStringLiteral("not set") : QString::fromUtf8("3.50 cm²/m"));
    }

    // The spacing for a reinforcement inverts the area of bars; nothing comes from no bar.
    void spacingForReinforcement()
    {
        QCOMPARE(qRound(vkd_a_spacingForReinforcement(10.0f, 5.235988e-4, 1) * 1e4), 1500);
        QCOMPARE(qRound(vkd_a_spacingForReinforcement(10.0f, 5.235988e-4, 2) * 1e4), 3000);
        QCOMPARE(vkd_a_spacingForReinforcement(kNotSet, 5e-4, 1), 0.0);
        QCOMPARE(vkd_a_spacingForReinforcement(10.0f, 0.0, 1), 0.0);
        QCOMPARE(vkd_a_barsPerMetre(0.0), 0.0);
    }
};

QTEST_MAIN(TestBars)
#include "tst_bars.moc"
