// plib-project: creates a demo project and shows what a project holds.
//   plib-project create <file>               a new project with the demo model
//   plib-project dump <file> <key1> <key2>   the records of a key pair, word by word
//   plib-project model <file>                what the model holds
//   plib-project design <file>               the design parameter records, field by field
#include "design.h"
#include "dump.h"
#include "newproject.h"

#include <VKD_H_ZOBDoc.h>

#include <QCoreApplication>
#include <QTextStream>

namespace {

// As plib-host tells them apart for the scripts that call it.
enum ExitStatus : int
{
    ExitOk = 0,
    ExitUsage = 2,
    ExitFailure = 3
};

int usage(QTextStream& err)
{
    err << "usage: plib-project create <file>\n"
           "       plib-project dump <file> <key1> <key2>\n"
           "       plib-project model <file>\n"
           "       plib-project design <file>\n";
    return ExitUsage;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList args = app.arguments().mid(1);
    if (args.size() < 2)
        return usage(err);
    const QString command = args.at(0);
    const QString path = args.at(1);

    if (command == QLatin1String("create")) {
        if (args.size() != 2)
            return usage(err);
        QString error;
        if (!createDemoProject(path, &error)) {
            err << "plib-project: " << error << '\n';
            return ExitFailure;
        }
        out << "created " << path << '\n';
        return ExitOk;
    }

    const bool dump = command == QLatin1String("dump");
    bool ok1 = false, ok2 = false;
    const int key1 = dump && args.size() == 4 ? args.at(2).toInt(&ok1) : 0;
    const int key2 = dump && args.size() == 4 ? args.at(3).toInt(&ok2) : 0;
    const bool known =
        (dump && ok1 && ok2) ||
        ((command == QLatin1String("design") || command == QLatin1String("model")) && args.size() == 2);
    if (!known)
        return usage(err);
    // The other commands only read: the project and its folder stay exactly as they are.
    VKD_H_ZOBDoc doc(path, VKD_H_ZOBDoc::ReadOnly);
    if (!doc.isValid()) {
        err << "plib-project: " << doc.errorString() << '\n';
        return ExitFailure;
    }
    if (dump) {
        out << dumpKeyPair(doc.index(), key1, key2);
        return ExitOk;
    }
    if (command == QLatin1String("design")) {
        out << dumpDesignRecords(doc.index());
        return ExitOk;
    }
    out << describeModel(doc.index());
    return ExitOk;
}
