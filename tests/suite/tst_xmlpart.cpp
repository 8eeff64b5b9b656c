#include <VKD_QT4_ComboBox.h>
#include <vkd_qt_xmlpart.h>

#include <QtTest>

class TestXmlPart : public QObject
{
    Q_OBJECT
private slots:
    void roundTrip_data();
    void roundTrip();
    void reading_data();
    void reading();
    void comboState_data();
    void comboState();
};

// Whatever a value holds comes back unchanged, beside a neighbour with the same text inside.
void TestXmlPart::roundTrip_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("tag");
    QTest::newRow("empty") << ""
                           << "Font";
    QTest::newRow("line feeds, colons, blanks") << "\nUnchecked:@T01   @C01\nChecked:x : 3,\n"
                                                << "List_4";
    QTest::newRow("carriage return and tab") << "a\r\n\tb\r"
                                             << "List_4";
    QTest::newRow("percent signs") << "%1 %2 100%"
                                   << "Scale";
    QTest::newRow("angle brackets") << "<Font>7</Font>"
                                    << "Font";
    QTest::newRow("closing tag of its own") << "x</Scale>y"
                                            << "Scale";
    QTest::newRow("ampersands and entities") << "& &amp; &lt; &#60; &"
                                             << "Scale";
    QTest::newRow("non-Latin text") << QString::fromUtf8("Maßstab ≤ 1:50 ✓") << "Scale";
    QTest::newRow("tag with blanks and bracket") << "v"
                                                 << "a <b> c";
}

void TestXmlPart::roundTrip()
{
    QFETCH(QString, value);
    QFETCH(QString, tag);
    const QString xml = vkd_qt_writeXMLpart(QStringLiteral("first"), QStringLiteral("Other")) +
                        vkd_qt_writeXMLpart(value, tag) + vkd_qt_writeXMLpart(value + "!", tag);
    int next = 0;
    const QString read = vkd_qt_readXMLpart(xml, 0, tag, &next);
    QVERIFY(!read.isNull());
    QCOMPARE(read, value);
    QCOMPARE(vkd_qt_readXMLpart(xml, next, tag, &next), value + "!");
    QCOMPARE(next, xml.size());
    QCOMPARE(vkd_qt_readXMLpart(xml, 0, QStringLiteral("Other"), nullptr), QStringLiteral("first"));
}

// Strings that no writer made: a missing, broken or shifted part gives a null string.
void TestXmlPart::reading_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("next");
    const QString null;
    QTest::newRow("missing tag") << "<Fonts>1</Fonts>" << 0 << null << -1;
    QTest::newRow("not closed") << "<Font>12" << 0 << null << -1;
    QTest::newRow("cut in the closing tag") << "<Font>12</Fon" << 0 << null << -1;
    QTest::newRow("empty string") << "" << 0 << null << -1;
    QTest::newRow("empty value") << "<Font></Font>" << 0 << "" << 13;
    QTest::newRow("from behind the part") << "<Font>1</Font>" << 1 << null << -1;
    QTest::newRow("negative from") << "<Font>1</Font>" << -5 << "1" << 14;
    QTest::newRow("unknown entity kept") << "<Font>&nbsp;&amp</Font>" << 0 << "&nbsp;&amp" << 23;
    QTest::newRow("tag case matters") << "<font>1</font>" << 0 << null << -1;
}

void TestXmlPart::reading()
{
    QFETCH(QString, xml);
    QFETCH(int, from);
    QFETCH(QString, value);
    QFETCH(int, next);
    int after = 0;
    const QString read = vkd_qt_readXMLpart(xml, from, QStringLiteral("Font"), &after);
    QCOMPARE(read.isNull(), value.isNull());
    QCOMPARE(read, value);
    QCOMPARE(after, next);
}

// The combo finds its own part by its object name in a whole string.
void TestXmlPart::comboState_data()
{
    QTest::addColumn<bool>("withIds");
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("row");
    QTest::newRow("by id") << true << "<A>1</A><Sheet>30</Sheet>" << 2;
    QTest::newRow("unknown id") << true << "<Sheet>31</Sheet>" << 1;
    QTest::newRow("no part") << true << "<Other>30</Other>" << 1;
    QTest::newRow("not a number") << true << "<Sheet>x</Sheet>" << 1;
    QTest::newRow("by row, no ids") << false << "<Sheet>#2</Sheet>" << 2;
    QTest::newRow("row out of range") << false << "<Sheet>#3</Sheet>" << 1;
}

void TestXmlPart::comboState()
{
    QFETCH(bool, withIds);
    QFETCH(QString, xml);
    QFETCH(int, row);
    VKD_QT4_ComboBox combo(nullptr, "Sheet");
    for (int i = 0; i < 3; ++i)
        withIds ? combo.addItem(QString::number(i), 10 * (i + 1)) : combo.addItem(QString::number(i));
    combo.setCurrentIndex(1);
    QCOMPARE(combo.writeXMLstring(),
             withIds ? QStringLiteral("<Sheet>20</Sheet>") : QStringLiteral("<Sheet>#1</Sheet>"));
    combo.readXMLstring(xml);
    QCOMPARE(combo.currentIndex(), row);
    VKD_QT4_ComboBox copy(nullptr, "Sheet");
    for (int i = 0; i < 3; ++i)
        withIds ? copy.addItem(QString::number(i), 10 * (i + 1)) : copy.addItem(QString::number(i));
    copy.readXMLstring(QStringLiteral("<A>0</A>") + combo.writeXMLstring());
    QCOMPARE(copy.currentIndex(), row);
}

QTEST_MAIN(TestXmlPart)
#include "tst_xmlpart.moc"
