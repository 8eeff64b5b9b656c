#include "VKD_P_Mix_UnitTest.h"

#include "languagefile.h"

#include <QDir>
#include <QTest>

void VKD_P_Mix_UnitTest::check_qrc_system()
{
    QCOMPARE(vkd_qt_getFileNameWithLang(QStringLiteral(":/betondeckung.png"), 0),
             QStringLiteral(":/betondeckung_0.png"));
    QCOMPARE(vkd_qt_getFileNameWithLang(QStringLiteral(":/betondeckung.png"), 1),
             QStringLiteral(":/betondeckung_1.png"));
    QCOMPARE(vkd_qt_getFileNameWithLang(QStringLiteral(":/neq_designline_zrt_bew_mod_allg.png"), 0),
             QStringLiteral(":/neq_designline_zrt_bew_mod_allg.png"));
    QCOMPARE(vkd_qt_getFileNameWithLang(QStringLiteral(":/neq_designline_zrt_bew_mod_allg.png"), 1),
             QStringLiteral(":/neq_designline_zrt_bew_mod_allg.png"));

    const int language = vkd_lib_getvalue(kSettingLanguage);
    const struct
    {
        int language;
        const char* form;
    } forms[] = {{0, ":/betondeckung_0.png"}, {1, ":/betondeckung_1.png"}};
    for (const auto& f : forms) {
        vkd_lib_setvalue(kSettingLanguage, f.language);
        const QString form = QString::fromLatin1(f.form);
        QCOMPARE(GET_FILENAME_WITH_LANG(QStringLiteral(":/betondeckung.png")), form);
        const QPixmap viaRule = GET_PIXMAP_WITH_LANG(QStringLiteral(":/betondeckung.png"));
        QVERIFY(!viaRule.isNull());
        QCOMPARE(viaRule.cacheKey(), QPixmap(form).cacheKey());
    }
    vkd_lib_setvalue(kSettingLanguage, language);
}

QString unitTestLogFile(const QStringList& args)
{
    QString folder;
    const QString tag = QStringLiteral("logpath:");
    for (const QString& arg : args) {
        if (arg.contains(tag, Qt::CaseInsensitive)) {
            folder = arg;
            folder.remove(tag, Qt::CaseInsensitive);
        }
    }
    folder = QDir::toNativeSeparators(folder);
    if (!folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    return folder + QStringLiteral("VKD_P_Mix_UnitTest.log");
}
