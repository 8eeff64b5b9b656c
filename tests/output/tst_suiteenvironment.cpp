#include <suiteenvironment.h>

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

// The script's questions answered from a real project file.
class SuiteEnvironmentTest : public QObject
{
    Q_OBJECT
private slots:
    void programAndModel();
    void camera_data();
    void camera();
};

// The project's file name in the opening lines, the quads of its model; without a project
// neither.
void SuiteEnvironmentTest::programAndModel()
{
    QCOMPARE(vkd::dbo::currentProject(), 0); // none open yet: the scratch database
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("bridge.vkd")));
    VKD_H_PluginParameter parameter(&doc);
    const SuiteScriptEnvironment environment(&parameter);
    QCOMPARE(environment.programStart(),
             QStringLiteral("+PROG GRAV echo:1 $ Graphical Output\n$ Graphical Output: bridge.vkd\n"));
    QCOMPARE(environment.programEnd(true) + environment.programEnd(false), QStringLiteral("ENDENDE"));
    QVERIFY(!environment.modelHasQuads());
    vkd::dbo::writeAll(doc.index(), vkd::dbo::KeyQuads,
                       std::vector<vkd::dbo::ElementRecord>{{1, 1, {1, 2, 3, 4}}});
    QVERIFY(environment.modelHasQuads());
    const SuiteScriptEnvironment none(nullptr);
    QCOMPARE(none.programStart(), QStringLiteral("+PROG GRAV echo:1 $ Graphical Output\n"));
    QVERIFY(!none.modelHasQuads());
}

void SuiteEnvironmentTest::camera_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("persistent");

    QTest::newRow("from the right") << "90 0 1 0 0"
                                    << "X 1 Y 0 Z 0"
                                    << "90 0 1 0 0";
    QTest::newRow("from above") << "17 90 2 0 0"
                                << "X 0 Y 0 Z 1"
                                << "17 90 2 0 0";
    QTest::newRow("turned, zoomed, panned") << "30  25 1.5 0.1 -0.2"
                                            << "X 0.4532 Y -0.7849 Z 0.4226"
                                            << "30 25 1.5 0.1 -0.2";
    QTest::newRow("four numbers: nothing stored") << "30 25 1 0"
                                                  << ""
                                                  << "";
    QTest::newRow("no zoom: nothing stored") << "30 25 0 0 0"
                                             << ""
                                             << "";
    QTest::newRow("not a number: nothing stored") << "30 25 x 0 0"
                                                  << ""
                                                  << "";
}

void SuiteEnvironmentTest::camera()
{
    QFETCH(QString, stored);
    QFETCH(QString, script);
    QFETCH(QString, persistent);
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("p.vkd")));
    VKD_H_PluginParameter parameter(&doc);
    vkd::dbo::setAnimatorPerspektive(0, stored);
    QCOMPARE(SuiteScriptEnvironment(&parameter).userCamera(), script);
    QCOMPARE(vkd::dbo::getAnimatorPerspektive(0, vkd::dbo::CameraPersistentForm), persistent);
}

QTEST_GUILESS_MAIN(SuiteEnvironmentTest)
#include "tst_suiteenvironment.moc"
