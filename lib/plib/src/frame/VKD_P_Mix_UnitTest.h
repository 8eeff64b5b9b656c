#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

// The library's self-check of its resources and the language rule.
class VKD_P_Mix_UnitTest : public QObject
{
    Q_OBJECT
private slots:
    void check_qrc_system();
};

// Where vkd_unittests writes its log, from its arguments.
QString unitTestLogFile(const QStringList& args);
