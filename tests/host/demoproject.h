#pragma once
// The demo project in a folder of its own, made as the host makes it.

#include <newproject.h>

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

struct Project
{
    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("demo.vkd"));
    Project()
    {
        QString error;
        QVERIFY2(createDemoProject(path, &error), qPrintable(error));
    }
    QByteArray hash() const
    {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                                           : QByteArray();
    }
};
