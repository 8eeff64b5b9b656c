// A second program that uses the same project as a test: it holds the write lock, writes
// while another holds it, or dies in the middle of a write.
//   zob_writer hold <file> <ms>   lock, write, say "locked", wait, release
//   zob_writer append <file>      lock (waiting for others), append a record, release
//   zob_writer die <file>         lock, empty the key pair, write, say "ready", wait to be killed
#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <QThread>
#include <cstdio>
#include <cstring>

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    VKD_H_ZOBDoc doc(QString::fromLocal8Bit(argv[2]), VKD_H_ZOBDoc::OpenExisting);
    if (!doc.isValid())
        return 3;
    const int index = doc.index();
    const char* command = argv[1];
    if (std::strcmp(command, "hold") == 0 && argc == 4) {
        vkd_zob_lock_ex(index, 200, 6);
        const char text[] = "held";
        const int length = sizeof text;
        vkd_zob_put(index, 200, 6, text, &length, 1);
        std::printf("locked\n");
        std::fflush(stdout);
        QThread::msleep(std::strtoul(argv[3], nullptr, 10));
        vkd_zob_free_ex(index, 200, 6);
        return 0;
    }
    if (std::strcmp(command, "append") == 0) {
        const zob_status_t lock = vkd_zob_lock_ex(index, 200, 6);
        const char text[] = "second program";
        const int length = sizeof text;
        const zob_status_t put = vkd_zob_put(index, 200, 6, text, &length, 1);
        vkd_zob_free_ex(index, 200, 6);
        std::printf("lock %d put %d\n", lock, put);
        return lock == ZOB_OK && put == ZOB_OK ? 0 : 1;
    }
    if (std::strcmp(command, "die") == 0) {
        vkd_zob_lock_ex(index, 200, 6);
        int length = 0;
        vkd_zob_put(index, 200, 6, nullptr, &length, 0);
        const char text[] = "half written";
        length = sizeof text;
        vkd_zob_put(index, 200, 6, text, &length, 1);
        std::printf("ready\n");
        std::fflush(stdout);
        for (;;)
            QThread::sleep(1);
    }
    return 2;
}
