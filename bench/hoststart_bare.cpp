// A bare dialog with as many empty tabs as the host's, the baseline of bench_hoststart, which
// starts it: it prints the milliseconds from its start to its first paint and closes.
// Usage: bench_hoststart_bare --child START_NS

#include "firstpaint.h"

#include <QApplication>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cstring>

namespace {

constexpr int kPages = 4;

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3 || std::strcmp(argv[1], "--child") != 0) {
        std::fprintf(stderr, "usage: bench_hoststart_bare --child START_NS (bench_hoststart starts it)\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const qint64 startNs = QByteArray(argv[2]).toLongLong();
    QApplication app(argc, argv);
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* tabs = new QTabWidget(&dialog);
    for (int i = 0; i < kPages; ++i)
        tabs->addTab(new QWidget, QStringLiteral("Page %1").arg(i + 1));
    layout->addWidget(tabs);
    // The size the host gives its dialog when it asks for less.
    QSize size(1200, 720);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableSize() * 9 / 10);
    dialog.resize(size);
    bench::FirstPaint watch(dialog, startNs);
    dialog.exec();
    return 0;
}
