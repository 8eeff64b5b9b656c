#include "modelfilter.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>
#include <vkd_q.h>

#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

constexpr int none = -1;

// A model that holds the listed contents and counts the questions about its kind of system.
class FakeModel : public ModelAnswers
{
public:
    FakeModel(QSet<int> contents, int kind) : m_contents(std::move(contents)), m_kind(kind) {}
    bool holds(ModelContent content) const override { return m_contents.contains(int(content)); }
    int kindOfSystem() const override
    {
        ++kindAsked;
        return m_kind;
    }
    mutable int kindAsked = 0;

private:
    QSet<int> m_contents;
    int m_kind;
};

QSet<int> allContentsBut(int absent)
{
    QSet<int> all;
    for (int c = int(ModelContent::Nodes); c <= int(ModelContent::CrossSections); ++c)
        if (c != absent)
            all << c;
    return all;
}

void putInt(int index, int key1, int key2, int value)
{
    const int length = int(sizeof value);
    vkd_zob_put(index, key1, key2, &value, &length, 1);
}

} // namespace

class TestModelFilter : public QObject
{
    Q_OBJECT
private slots:
    void systemBit_data();
    void systemBit();
    void hasContent_data();
    void hasContent();
    void isRecordOffered_data();
    void isRecordOffered();
    void answersFromTheProjects();
};

void TestModelFilter::systemBit_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("bit");
    QTest::newRow("spatial 0") << 0 << 8;
    QTest::newRow("negative -9 truncates to the spatial tens") << -9 << 8;
    QTest::newRow("plane stress 10") << 10 << 1;
    QTest::newRow("plane strain 13") << 13 << 2;
    QTest::newRow("plane stress 14") << 14 << 1;
    QTest::newRow("plane stress 15") << 15 << 1;
    QTest::newRow("axisymmetric 16") << 16 << 2;
    QTest::newRow("axisymmetric 19") << 19 << 2;
    QTest::newRow("plate 25") << 25 << 8;
    QTest::newRow("frame 35") << 35 << 4;
    QTest::newRow("cross section 45") << 45 << 0;
    QTest::newRow("unknown 50") << 50 << 15;
    QTest::newRow("unknown -10") << -10 << 15;
}

void TestModelFilter::systemBit()
{
    QFETCH(int, kind);
    QFETCH(int, bit);
    QCOMPARE(vkd::plib::widgetgraphicaloutput::systemBit(kind), bit);
}

void TestModelFilter::hasContent_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<int>("content");
    QTest::newRow("Node") << "Node" << int(ModelContent::Nodes);
    QTest::newRow("QUAD in capitals") << "QUAD" << int(ModelContent::Quads);
    QTest::newRow("Boun") << "Boun" << int(ModelContent::Boundaries);
    QTest::newRow("Beam") << "Beam" << int(ModelContent::Beams);
    QTest::newRow("dsln in small letters") << "dsln" << int(ModelContent::DesignLines);
    QTest::newRow("Trus") << "Trus" << int(ModelContent::Trusses);
    QTest::newRow("Sir") << "Sir" << int(ModelContent::SectionCuts);
    QTest::newRow("Gpt") << "Gpt" << int(ModelContent::Points);
    QTest::newRow("Gln") << "Gln" << int(ModelContent::Lines);
    QTest::newRow("Gar") << "Gar" << int(ModelContent::Areas);
    QTest::newRow("Axis") << "Axis" << int(ModelContent::Axes);
    QTest::newRow("Cabl") << "Cabl" << int(ModelContent::Cables);
    QTest::newRow("Spri") << "Spri" << int(ModelContent::Springs);
    QTest::newRow("Bric") << "Bric" << int(ModelContent::Bricks);
    QTest::newRow("Qten") << "Qten" << int(ModelContent::QuadTendons);
    QTest::newRow("Bten") << "Bten" << int(ModelContent::BeamTendons);
    QTest::newRow("Sect") << "Sect" << int(ModelContent::CrossSections);
    QTest::newRow("unknown word") << "Foo" << none;
    QTest::newRow("blank") << " " << none;
    QTest::newRow("a tag with more behind it") << "Nodes" << none;
}

// Each tag asks exactly its own question; a text that is no tag is present in an empty model.
void TestModelFilter::hasContent()
{
    QFETCH(QString, tag);
    QFETCH(int, content);
    QCOMPARE(vkd::plib::widgetgraphicaloutput::hasContent(tag, FakeModel({content}, 0)), true);
    QCOMPARE(vkd::plib::widgetgraphicaloutput::hasContent(tag, FakeModel(allContentsBut(content), 0)),
             content == none);
}

void TestModelFilter::isRecordOffered_data()
{
    QTest::addColumn<int>("progname");
    QTest::addColumn<int>("systemMask");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QStringList>("additional");
    QTest::addColumn<QString>("title3");
    QTest::addColumn<bool>("offered");
    QTest::addColumn<bool>("kindAsked");
    // The record is offered on the pages 3, 0 and 5 and the model holds everything but quads.
    const QStringList noTags;
    QTest::newRow("page of the third program") << 5 << 0 << 0 << "Node" << noTags << "P" << true << false;
    QTest::newRow("page of no program") << 4 << 0 << 0 << "Node" << noTags << "P" << false << false;
    QTest::newRow("mask 0 asks nothing") << 3 << 0 << 45 << "Node" << noTags << "P" << true << false;
    QTest::newRow("mask 16 asks nothing") << 3 << 16 << 45 << "Node" << noTags << "P" << true << false;
    QTest::newRow("mask meets the bit") << 3 << 1 << 10 << "Node" << noTags << "P" << true << true;
    QTest::newRow("mask misses the bit") << 3 << 2 << 10 << "Node" << noTags << "P" << false << true;
    QTest::newRow("high bits count for nothing") << 3 << 18 << 10 << "Node" << noTags << "P" << false << true;
    QTest::newRow("absent content") << 3 << 0 << 0 << "Quad" << noTags << "P" << false << false;
    QTest::newRow("absent content declared present")
        << 3 << 0 << 0 << "Quad" << QStringList{"Beam", "Quad"} << "P" << true << false;
    QTest::newRow("declared tags compare with case")
        << 3 << 0 << 0 << "Quad" << QStringList{"quad"} << "P" << false << false;
    QTest::newRow("empty plot caption") << 3 << 0 << 0 << "Node" << noTags << "" << false << false;
}

void TestModelFilter::isRecordOffered()
{
    QFETCH(int, progname);
    QFETCH(int, systemMask);
    QFETCH(int, kind);
    QFETCH(QString, tag);
    QFETCH(QStringList, additional);
    QFETCH(QString, title3);
    QFETCH(bool, offered);
    QFETCH(bool, kindAsked);
    GraphicalOutputRecord record;
    record.prog1 = 3;
    record.prog3 = 5;
    record.systemMask = systemMask;
    record.contentTag = tag;
    record.title1 = QStringLiteral("T");
    record.title2 = QStringLiteral("C");
    record.title3 = title3;
    const FakeModel model(allContentsBut(int(ModelContent::Quads)), kind);
    const std::list<QString> tags(additional.begin(), additional.end());
    QCOMPARE(vkd::plib::widgetgraphicaloutput::isRecordOffered(record, progname, model, tags), offered);
    QCOMPARE(model.kindAsked > 0, kindAsked);
}

// The answers of a real project: design lines under any second key, cross sections from the
// second project, everything else from the first.
void TestModelFilter::answersFromTheProjects()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    VKD_H_ZOBDoc model(dir.filePath(QStringLiteral("model.vkd")));
    VKD_H_ZOBDoc sections(dir.filePath(QStringLiteral("sections.vkd")));
    QVERIFY(model.isValid() && sections.isValid());
    vkd::dbo::setKindOfSystem(model.index(), 30);
    putInt(model.index(), vkd::dbo::KeyNodes, 1, 1);
    putInt(model.index(), vkd::dbo::KeyDesignLines, 7, 1);
    putInt(sections.index(), vkd::dbo::KeyCrossSections, 1, 1);

    VKD_H_PluginParameter modelOnly(&model);
    VKD_H_PluginParameter both(&model, &sections);
    VKD_H_PluginParameter swapped(&sections, &model);
    QCOMPARE(ProjectModel(&modelOnly).kindOfSystem(), 30);
    QVERIFY(vkd::plib::widgetgraphicaloutput::hasContent(QStringLiteral("DSLN"), &modelOnly));
    QVERIFY(!vkd::plib::widgetgraphicaloutput::hasContent(QStringLiteral("DSLN"), &swapped));
    QVERIFY(!vkd::plib::widgetgraphicaloutput::hasContent(QStringLiteral("Sect"), &modelOnly));
    QVERIFY(vkd::plib::widgetgraphicaloutput::hasContent(QStringLiteral("Sect"), &both));
    QVERIFY(vkd::plib::widgetgraphicaloutput::hasContent(QStringLiteral("Node"), &both));
    QVERIFY(!vkd::plib::widgetgraphicaloutput::hasContent(QStringLiteral("Node"), &swapped));
    // Without a project nothing is there, and a plot without condition is still offered.
    QVERIFY(!vkd::plib::widgetgraphicaloutput::hasContent(QStringLiteral("Node"), nullptr));
    GraphicalOutputRecord record;
    record.prog1 = 1;
    record.systemMask = 8;
    record.contentTag = QStringLiteral("All");
    record.title1 = record.title2 = record.title3 = QStringLiteral("x");
    QVERIFY(vkd::plib::widgetgraphicaloutput::isRecordOffered(record, 1, nullptr, {}));
}

QTEST_GUILESS_MAIN(TestModelFilter)
#include "tst_modelfilter.moc"
