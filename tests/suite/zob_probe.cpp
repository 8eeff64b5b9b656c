// A second program on a project, for the tests of what goes wrong between programs:
//   zob_probe exclusive <file> <ms>          holds the file exclusively, as a foreign program may
//   zob_probe hold <file> <ms>               holds the store's write lock, writing nothing
//   zob_probe die <file> <ms>                holds the lock in the middle of a write that has
//                                            changed the file itself, to be killed there
//   zob_probe open <file> [nobody]           opens for editing (as user nobody when run by root),
//                                            tries one write and says what happened
#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <QFile>
#include <QThread>
#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;

void say(const QString& text)
{
    std::printf("%s\n", text.toLocal8Bit().constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray command = argc > 2 ? argv[1] : "";
    const QString file = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    const unsigned long ms = argc > 3 ? std::strtoul(argv[3], nullptr, 10) : 0;
    if (command == "exclusive") {
        sqlite3* db = nullptr;
        if (sqlite3_open(argv[2], &db) != SQLITE_OK ||
            sqlite3_exec(db, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE;", nullptr, nullptr, nullptr) !=
                SQLITE_OK)
            return 1;
        say(QStringLiteral("locked"));
        QThread::msleep(ms);
        return 0;
    }
    if (command == "open" && argc > 3 && std::strcmp(argv[3], "nobody") == 0 && geteuid() == 0 &&
        (setgid(kNobody) != 0 || setuid(kNobody) != 0))
        return 4;
    VKD_H_ZOBDoc doc(file, VKD_H_ZOBDoc::OpenExisting);
    if (command == "open") {
        if (!doc.isValid()) {
            say(QStringLiteral("refused: ") + doc.errorString());
            return 0;
        }
        say(doc.isReadOnly() ? QStringLiteral("opened read-only") : QStringLiteral("opened"));
        vkd_zob_lock_ex(doc.index(), 200, 6);
        const int length = 4;
        vkd_zob_put(doc.index(), 200, 6, "rec", &length, 1);
        vkd_zob_free_ex(doc.index(), 200, 6);
        say(doc.lastWriteError().isEmpty() ? QStringLiteral("written") : doc.lastWriteError());
        return 0;
    }
    const bool die = command == "die";
    if ((!die && command != "hold") || vkd_zob_lock_ex(doc.index(), 200, 6) != ZOB_OK)
        return 2;
    // Writes on until pages of the file itself are changed: only then is the journal marked as
    // one that must be played back.
    auto hot = [&file] {
        QFile journal(file + QStringLiteral("-journal"));
        char first = 0;
        return journal.open(QIODevice::ReadOnly) && journal.getChar(&first) && first != 0;
    };
    const QByteArray data(200, 'h');
    const int length = data.size();
    for (int i = 0; die && !hot(); ++i)
        if (i == 100000 ||
            vkd_zob_put(doc.index(), 200, 6, data.constData(), &length, i == 0 ? 0 : 1) != ZOB_OK)
            return 1;
    say(QStringLiteral("locked"));
    QThread::msleep(ms);
    vkd_zob_free_ex(doc.index(), 200, 6);
    return 0;
}
