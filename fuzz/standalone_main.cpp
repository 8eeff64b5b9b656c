// Runs a fuzz target over the files named on the command line (or the files of the folders
// named), for compilers without libFuzzer and as a regression test over the seed corpus.
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv)
{
    int runs = 0;
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        QStringList files;
        if (QFileInfo(arg).isDir()) {
            QDirIterator it(arg, QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext())
                files << it.next();
        } else {
            files << arg;
        }
        for (const QString& name : files) {
            QFile f(name);
            if (!f.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(name));
                return 1;
            }
            const QByteArray bytes = f.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
            ++runs;
        }
    }
    std::printf("%d inputs run\n", runs);
    return runs > 0 ? 0 : 1;
}
