#include "pagefixture.h"

#include <VKD_QT_TabDialog.h>
#include <vkd_qt_xmlpart.h>

#include <QTabWidget>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

class TestOutputState : public QObject
{
    Q_OBJECT
private slots:
    // Whatever a value holds comes back unchanged, the first of two parts with the same tag, and
    // the second from a position inside the first; a missing or broken part, or none behind the
    // position, gives a null string, an empty value an empty one.
    void xmlParts_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("value");
        const char* values[][2] = {{"empty", ""},
                                   {"line ends, colons, blanks", "\nUnchecked:@T01   @C01\r\n: 3,"},
                                   {"percent signs", "%1 100%"},
                                   {"its own tags", "<a <b>>7</a <b>>"},
                                   {"ampersands, entities", "& &amp; &#60;"}};
        for (const auto& v : values) {
            const QString value = QString::fromUtf8(v[1]);
            QTest::newRow(v[0]) << vkd_qt_writeXMLpart(value, "a <b>") + vkd_qt_writeXMLpart("2", "a <b>")
                                << value;
        }
        QTest::newRow("missing tag") << "<a <b>>1</a <b>><A &lt;b&gt;>1</A &lt;b&gt;>" << QString();
        QTest::newRow("not closed") << "<a &lt;b&gt;>12</a &lt;b&gt" << QString();
        QTest::newRow("unknown entity kept")
            << "<a &lt;b&gt;>&nbsp;&amp</a &lt;b&gt;><a &lt;b&gt;>2</a &lt;b&gt;>"
            << "&nbsp;&amp";
    }
    void xmlParts()
    {
        QFETCH(QString, xml);
        QFETCH(QString, value);
        int next = 0;
        const QString read = vkd_qt_readXMLpart(xml, 0, QStringLiteral("a <b>"), &next);
        QCOMPARE(read.isNull(), value.isNull());
        QCOMPARE(read, value);
        QCOMPARE(next, value.isNull() ? -1 : int(xml.indexOf("<a &lt;b&gt;>2")));
        if (!value.isNull())
            QCOMPARE(
                vkd_qt_readXMLpart(xml, xml.indexOf("</a &lt;b&gt;>") + 1, QStringLiteral("a <b>"), &next),
                "2");
    }

    // The string of a page, tree choice included; a new page that reads it writes it again.
    void roundTrip_data()
    {
        QTest::addColumn<int>("progname");
        QTest::newRow("standard-defaults") << int(GraphicalOutputStandard);
        QTest::newRow("standard-set") << int(GraphicalOutputStandard);
        QTest::newRow("split-set") << int(GraphicalOutputSplit);
    }
    void roundTrip()
    {
        QFETCH(int, progname);
        Page written(progname);
        if (QByteArray(QTest::currentDataTag()).endsWith("set")) {
            written.setDistinct();
            written.get<VKD_H_BoxedLineEdit>()->setText(QStringLiteral("2,5"));
            written.plot(0)->setCheckState(0, Qt::Checked);
            written.plot(1)->setCheckState(0, Qt::Unchecked);
        }
        const QString xml = written.page->writeXMLstring();
        QVERIFY(matchesReference(xml + '\n', QStringLiteral("state-%1.txt").arg(QTest::currentDataTag())));
        Page read(progname);
        read.page->readXMLstring(xml);
        QCOMPARE(read.state(), written.state());
        QCOMPARE(read.page->writeXMLstring(), xml);
    }

    // Each rule of reading; see the reference file. The tree's choice stays when the string has
    // no part for it.
    void readRules()
    {
        QVERIFY(matchesTranscript(QStringLiteral("readrules.txt"), [](QString xml) {
            const bool split = xml.startsWith(QLatin1String("split:"));
            Page p(split ? GraphicalOutputSplit : GraphicalOutputStandard);
            p.setDistinct();
            p.plot(1)->setCheckState(0, Qt::Unchecked);
            const QString checked = p.get<GraphicalOutputTreeWidget>()->selectionText();
            p.page->readXMLstring(xml.remove(QStringLiteral("split:")));
            return p.state() +
                   (p.get<GraphicalOutputTreeWidget>()->selectionText() == checked ? "" : " tree changed!");
        }));
    }

    // The camera goes to the store and then to the preview, with or without a part of its own; one
    // that does not parse leaves the view as it was. Writing stores the preview's camera first.
    void cameraPart()
    {
        Page p(GraphicalOutputStandard, NoModel, true);
        vkd::dbo::setAnimatorPerspektive(0, QStringLiteral("10 20 2 0 0"));
        for (const char* xml :
             {"<View>4</View>", "<Camera>40 10 1 0.25 0</Camera>", "<Camera>40 x</Camera>"}) {
            p.commands.clear();
            p.page->readXMLstring(QLatin1String(xml));
            QCOMPARE(p.commands.last(), 7);
        }
        QCOMPARE(p.animator->cameraText(vkd::dbo::CameraPersistentForm), QStringLiteral("40 10 1 0.25 0"));
        p.animator->setCamera({5, 6, 1.5, 0, 0});
        p.commands.clear();
        QVERIFY(p.page->writeXMLstring().contains(
            QLatin1String("<View>4</View><Camera>5 6 1.5 0 0</Camera><List_4>")));
        QCOMPARE(p.commands, QList<int>{6});
    }

    // The commands for each change of the view group, and whether the preview ends locked; the
    // slots do nothing for a button that is switched off.
    void viewCommands()
    {
        Page p(GraphicalOutputStandard, NoModel, true);
        QVERIFY(p.commands.isEmpty());
        const struct
        {
            int to;
            QList<int> commands;
            bool enabled;
        } steps[] = {{4, {7}, true},  {3, {6, 0}, false}, {0, {3}, false},
                     {1, {4}, false}, {4, {7}, true},     {2, {6, 5}, false}};
        for (const auto& step : steps) {
            p.commands.clear();
            p.get("PerspectiveGroup")->getRadioButton(step.to)->click();
            QMetaObject::invokeMethod(p.page, "slotBeobXZ", Q_ARG(bool, false));
            QCOMPARE(p.commands, step.commands);
            QCOMPARE(p.animator->isEnabled(), step.enabled);
        }
    }

    // The chosen view reaches the preview once the page's tab first comes up, after the event
    // loop ran, and once only.
    void firstShow()
    {
        VKD_QT_TabDialog dialog;
        auto* other = new QWidget;
        dialog.addTab(other, QStringLiteral("Other"));
        Page p(GraphicalOutputStandard, NoModel, true, &dialog);
        dialog.addTab(p.page, QStringLiteral("Output"));
        p.get("PerspectiveGroup")->setButton(0);
        p.commands.clear();
        p.animator->setEnabled(true);
        for (QWidget* tab : std::initializer_list<QWidget*>{other, p.page, other, p.page}) {
            const int before = p.commands.size();
            dialog.tabWidget()->setCurrentWidget(tab);
            QCOMPARE(p.commands.size(), before);
            QCoreApplication::processEvents();
        }
        QCOMPARE(p.commands, QList<int>{3});
        QVERIFY(!p.animator->isEnabled());
    }
};

QTEST_MAIN(TestOutputState)
#include "tst_outputstate.moc"
