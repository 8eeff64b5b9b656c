// The suite parts that the design parameters stand on: units, bar table, project pages, group
// names, data files; the units of the design texts and the group picks are checked with the page.
#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_UnitLabel.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_InitTranslator.h>
#include <vkd_dbo.h>
#include <vkd_h_units.h>
#include <vkd_q.h>

#include <QtTest>

#include <limits>
#include <memory>

class TestSuiteParts : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_projects = 0;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;

    QString write(const QString& name, const QByteArray& contents)
    {
        QFile f(m_dir.filePath(name));
        f.open(QIODevice::WriteOnly);
        f.write(contents);
        return QFileInfo(f).absoluteFilePath();
    }

private slots:
    void initTestCase() { qputenv("VKD_SEARCHPATH", QFile::encodeName(m_dir.path())); }

    void init()
    {
        m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir.filePath(QStringLiteral("%1.vkd").arg(++m_projects)));
        QVERIFY2(m_doc->isValid(), qPrintable(m_doc->errorString()));
    }

    void units_data()
    {
        QTest::addColumn<double>("value"); // in base units
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("unit"); // as it stands behind a number
        // clang-format off
        QTest::newRow("coordinate") << 12.3456 << 1001 << -1 << "12.346" << " m";
        QTest::newRow("bar diameter unconverted") << 12.0 << 1023 << -1 << "12.0" << " mm";
        QTest::newRow("rounds to zero: no sign") << -0.0001 << 1024 << -1 << "0.0" << " cm";
        QTest::newRow("small negative keeps its sign") << -0.001 << 1024 << -1 << "-0.1" << " cm";
        QTest::newRow("unknown code: base value") << 0.035 << 4711 << -1 << "0.035" << "";
        QTest::newRow("no code, decimals given") << 2.5 << -1 << 2 << "2.50" << "";
        // clang-format on
    }

    void units()
    {
        QFETCH(double, value);
        QFETCH(int, code);
        QFETCH(int, decimals);
        QFETCH(QString, unit);
        QTEST(vkd_h_getDimStringFromVal(value, code, decimals), "text");
        QCOMPARE(VKD_H_UnitLabel::dimString(code, VKD_H_UnitLabel::BehindNumber), unit);
        QCOMPARE(VKD_H_UnitLabel::dimString(code, VKD_H_UnitLabel::Bare), unit.trimmed());
    }

    // Titles of model records are cut to their field, which keeps its terminating zero.
    void recordTitles()
    {
        const QString longTitle(50, QLatin1Char('x'));
        QCOMPARE(QByteArray(vkd::dbo::makeLoadCase(1, 1, longTitle).title), QByteArray(39, 'x'));
        QCOMPARE(QByteArray(vkd::dbo::makeGroup(1, longTitle).title), QByteArray(31, 'x'));
    }

    // The project's bar table comes back in its order, without bad diameters, with names cut to
    // their twelve bytes; a bar goes by its name in the table, else by its diameter; no bar has no
    // text.
    void barTable()
    {
        VKD_A_BarDiameterData table, loaded;
        table.setBars({{9.5f, QStringLiteral("#3")},
                       {12.7f, QStringLiteral("#4")},
                       {0.0f, QStringLiteral("zero")},
                       {10.0f, QString()},
                       {-6.0f, QStringLiteral("negative")},
                       {14.0f, QStringLiteral("abcdefghijklm")}});
        table.save(m_doc->index());
        QVERIFY(loaded.load(m_doc->index()));
        QStringList texts;
        for (const VKD_A_BarDiameterData::Bar& b : loaded.bars())
            texts << b.name;
        QCOMPARE(texts.join(QLatin1Char(' ')), QString::fromUtf8("#3 #4 Ø10 abcdefghijkl"));
        texts.clear();
        for (float v : {12.7f, 10.0f, 6.5f, 0.0f, -99999.0f, std::numeric_limits<float>::quiet_NaN()})
            texts << QStringLiteral("%1@%2").arg(loaded.getString(v)).arg(loaded.find(v));
        QCOMPARE(texts.join(QLatin1Char(' ')), QString::fromUtf8("#4@1 Ø10@2 Ø6.5@-1 @-1 @-1 @-1"));
        // Without a project the table is empty and still names a bar by its diameter.
        QVERIFY(!loaded.load(-1));
        QVERIFY(loaded.isEmpty());
        QCOMPARE(loaded.getString(12.0f), QString::fromUtf8("Ø12"));
    }

    void projectPage_data()
    {
        QTest::addColumn<QStringList>("entries"); // key=value
        QTest::newRow("none") << QStringList{};
        QTest::newRow("several") << QStringList{"MerPara1=1; | 0",
                                                "Other=", QString::fromUtf8("Stäbe=Ø10 | ß")};
        QTest::newRow("long value") << QStringList{QStringLiteral("Long=") + QString(5000, QLatin1Char('y'))};
    }

    // A page comes back from the project under its number, replacing what it held; keyless entries do not.
    void projectPage()
    {
        QFETCH(QStringList, entries);
        VKD_H_ProjectDialogPage page(3), other(4), back(3), never(9);
        for (const QString& e : entries)
            page.setEntry(e.section(QLatin1Char('='), 0, 0), e.section(QLatin1Char('='), 1));
        page.setEntry(QString(), QStringLiteral("no key"));
        page.save(m_doc->index());
        other.setEntry(QStringLiteral("kept apart"), QStringLiteral("1"));
        other.save(m_doc->index());
        back.setEntry(QStringLiteral("stale"), QStringLiteral("gone after load"));
        QVERIFY(back.load(m_doc->index()));
        QStringList got;
        for (const QString& key : back.keys())
            got << key + QLatin1Char('=') + back.getEntry(key, QString());
        entries.sort();
        QCOMPARE(got, entries);
        QVERIFY(never.load(m_doc->index()) && never.keys().isEmpty());
        QVERIFY(!never.load(-1));
    }

    // A closed project is no longer the current one, nor is any other.
    void closedProjectIsNotCurrent()
    {
        m_doc.reset();
        QCOMPARE(vkd::dbo::currentProject(), 0);
    }

    // Secondary groups go by names of up to four bytes packed into a group number.
    void secondaryGroupNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<quint32>("bits"); // 0: the name cannot be packed
        QTest::addColumn<QString>("shown");
        QTest::newRow("two letters, blank padded") << "AB" << 0x20204241u << "AB";
        QTest::newRow("four letters, inner blank") << "E GE" << 0x45472045u << "E GE";
        QTest::newRow("five letters") << "ABCDE" << 0u << "";
        QTest::newRow("leading blank, umlaut") << QStringLiteral(" Ä") << 0u << "";
        QTest::newRow("stored: byte above ASCII") << "" << 0x2020E941u << "A\\xe9";
        QTest::newRow("stored: control bytes, zero ends") << "" << 0x00410720u << "\\x07A";
    }

    void secondaryGroupNames()
    {
        QFETCH(QString, name);
        QFETCH(quint32, bits);
        int32_t number = 0;
        if (!name.isEmpty()) {
            QCOMPARE(vkd::dbo::packSecondaryGroupName(name, &number), bits != 0);
            QCOMPARE(quint32(number), bits);
        }
        if (bits)
            QTEST(vkd::dbo::secondaryGroupName(int32_t(bits)), "shown");
    }

    // Data files of the suite that cannot be used as they are: one warning that names the file
    // and the line, and what can be used still is.
    void messageCatalogue_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("warning"); // after "<file>:"; empty for none
        const QByteArray good = "# texts of a test program\n1|ABC|Ansicht|View\n";
        // clang-format off
        QTest::newRow("sound file") << good << "";
        QTest::newRow("three fields on line 3") << good + "1|ABD|Schnitt\n" << "3: not a text line \"class|key|German|English\" in UTF-8; 1 such line(s) skipped";
        QTest::newRow("class not a number, twice") << good + "\nx|ABD|Schnitt|Section\ny|ABE|a|b\n" << "4: not a text line \"class|key|German|English\" in UTF-8; 2 such line(s) skipped";
        QTest::newRow("Latin-1 instead of UTF-8") << good + "1|ABF|Gr\xf6\xdf" "e|Size\n" << "3: not a text line \"class|key|German|English\" in UTF-8; 1 such line(s) skipped";
        // clang-format on
    }

    void messageCatalogue()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, warning);
        static int program = 0;
        const QByteArray name = "prog" + QByteArray::number(++program);
        const QString path = write(QString::fromLatin1(name + ".msg"), contents);
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(path + QLatin1Char(':') + warning));
        vkd_lib_opentext(name.constData());
        QCOMPARE(QString::fromStdString(vkd_lib_convtext(1, 0, "ABC")), QStringLiteral("Ansicht"));
        QCOMPARE(QString::fromStdString(vkd_lib_convtext(1, 1, "ABD")), QString());
    }

    // A translation that cannot be loaded: one warning naming the file, and the texts stay English.
    void translation()
    {
        QFile shipped(QCoreApplication::applicationDirPath() + QStringLiteral("/data/vkd_p_dll_de.qm"));
        QVERIFY(shipped.open(QIODevice::ReadOnly));
        const QByteArray whole = shipped.readAll();
        for (const QByteArray& contents : {whole, whole.left(whole.size() / 2)}) {
            const bool installed = contents.size() == whole.size();
            const QString path = write(QStringLiteral("mod_de.qm"), contents);
            if (!installed)
                QTest::ignoreMessage(
                    QtWarningMsg,
                    qPrintable(path + QStringLiteral(
                                          ": not a translation that can be loaded; the texts stay English")));
            vkd_lib_setvalue(kSettingLanguage, 0);
            VKD_QT_InitTranslator translator("mod");
            vkd_lib_setvalue(kSettingLanguage, 1);
            QCOMPARE(translator.isInstalled(), installed);
        }
    }
};

QTEST_MAIN(TestSuiteParts)
#include "tst_suiteparts.moc"
