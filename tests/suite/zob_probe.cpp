// A second program on a project, for the tests of what goes wrong between programs:
//   zob_probe exclusive <file> <ms>          holds the file exclusively, as a foreign program may
//   zob_probe hold <file> <ms>               holds the store's write lock, writing nothing
//   zob_probe open <file> [nobody]           opens for editing (as user nobody when run by root),
//                                            tries one write and says what happened
//   zob_probe design <file> <type> <groups> <times>
//                                            writes design records of one type for groups
//                                            1..<groups> through the page's writer, <times> times
#include <DesignParameterData.h>
#include <VKD_H_ZOBDoc.h>
#include <designstore.h>
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

int exclusive(const char* file, unsigned long ms)
{
    sqlite3* db = nullptr;
    if (sqlite3_open(file, &db) != SQLITE_OK ||
        sqlite3_exec(db, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE;", nullptr, nullptr, nullptr) !=
            SQLITE_OK)
        return 1;
    say(QStringLiteral("locked"));
    QThread::msleep(ms);
    sqlite3_close(db);
    return 0;
}

int open(const char* file, bool asNobody)
{
    if (asNobody && geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0))
        return 4;
    VKD_H_ZOBDoc doc(QString::fromLocal8Bit(file), VKD_H_ZOBDoc::OpenExisting);
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

int design(const char* file, int type, int groups, int times)
{
    VKD_H_ZOBDoc doc(QString::fromLocal8Bit(file), VKD_H_ZOBDoc::OpenExisting);
    if (!doc.isValid())
        return 3;
    DesignParameterData data;
    data.doc = data.designDoc = &doc;
    for (int group = 1; group <= groups; ++group) {
        DesignParameterRow row;
        row.record.type = type;
        row.record.mark = 11;
        row.groups = {group};
        data.rows.push_back(row);
    }
    int failed = 0;
    for (int i = 0; i < times; ++i) {
        bool converted = true; // the records are written as they are
        vkd::plib::design::writeRowsToZob(data, converted);
        if (!doc.lastWriteError().isEmpty())
            ++failed;
        say(QStringLiteral("wrote"));
    }
    return failed == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    const char* command = argv[1];
    if (std::strcmp(command, "exclusive") == 0 && argc == 4)
        return exclusive(argv[2], std::strtoul(argv[3], nullptr, 10));
    if (std::strcmp(command, "hold") == 0 && argc == 4) {
        VKD_H_ZOBDoc doc(QString::fromLocal8Bit(argv[2]), VKD_H_ZOBDoc::OpenExisting);
        if (vkd_zob_lock_ex(doc.index(), 200, 6) != ZOB_OK)
            return 1;
        say(QStringLiteral("locked"));
        QThread::msleep(std::strtoul(argv[3], nullptr, 10));
        vkd_zob_free_ex(doc.index(), 200, 6);
        return 0;
    }
    if (std::strcmp(command, "open") == 0)
        return open(argv[2], argc > 3 && std::strcmp(argv[3], "nobody") == 0);
    if (std::strcmp(command, "design") == 0 && argc == 6)
        return design(argv[2], std::atoi(argv[3]), std::atoi(argv[4]), std::atoi(argv[5]));
    return 2;
}
