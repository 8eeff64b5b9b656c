// The host's start-up: from starting its process to the first paint of its dialog on the demo
// project, beside a bare dialog with as many empty tabs started the same way
// (bench_hoststart_bare). Each start is a fresh process: this program starts itself once per run
// (--child), and the child says how long it took after the dialog's first paint. One untimed start of each
// comes first, so that every timed start finds the libraries in the page cache and the project as the host
// leaves it. Usage: bench_hoststart [--quick] [--json] [--runs N]

#include "PlibHostDialog.h"
#include "benchharness.h"
#include "firstpaint.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_InitTranslator.h>
#include <newproject.h>
#include <vkd_q.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTranslator>

#include <cstring>

namespace {

// The host's tabs: design parameters, graphical output, page splitting, load cases; the bare
// dialog has as many.
constexpr int kHostPages = 4;
constexpr int languageSetting = 102;
constexpr int german = 0;

// The host's own texts, as the host program loads them.
VKD_QT_InitTranslator g_hostTranslator("plib_host");

// What apps/plib-host/main.cpp does up to the dialog, without its batch modes.
int hostChild(qint64 startNs, const QString& project, int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    if (vkd_lib_getvalue(languageSetting) == german) {
        auto* qt = new QTranslator(&app);
        if (qt->load(QStringLiteral("qtbase_de"), QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(qt);
    }
    VKD_H_ZOBDoc doc(project, VKD_H_ZOBDoc::OpenExisting);
    if (!doc.isValid()) {
        std::fprintf(stderr, "cannot open %s: %s\n", qPrintable(project), qPrintable(doc.errorString()));
        return 1;
    }
    PlibHostDialog dialog(&doc, true);
    QSize size = dialog.sizeHint().expandedTo(QSize(1200, 720));
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableSize() * 9 / 10);
    dialog.resize(size);
    bench::FirstPaint watch(dialog, startNs);
    dialog.exec();
    return 0;
}

// Starts a program with the start time and the arguments; the milliseconds it reported, or a
// negative number if it failed.
double startChild(const QString& program, const QStringList& arguments)
{
    QProcess child;
    QStringList args{QStringLiteral("--child"), QString::number(bench::monotonicNs())};
    args += arguments;
    child.start(program, args);
    const bool finished =
        child.waitForFinished(60000) && child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0;
    bool ok = false;
    const double ms = child.readAllStandardOutput().trimmed().toDouble(&ok);
    if (finished && ok)
        return ms;
    // What the child said goes out only when it failed: the platform's notes would bury the table.
    std::fprintf(stderr, "%s failed: %s\n%s", qPrintable(program), qPrintable(child.errorString()),
                 child.readAllStandardError().constData());
    return -1.0;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc >= 4 && !std::strcmp(argv[1], "--child"))
        return hostChild(QByteArray(argv[2]).toLongLong(), QString::fromLocal8Bit(argv[3]), argc, argv);

    QCoreApplication app(argc, argv);
    bench::Harness harness("host start", argc, argv);
    QTemporaryDir dir;
    const QString project = dir.filePath(QStringLiteral("demo.vkd"));
    QString error;
    if (!createDemoProject(project, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    // The bare dialog is a program of its own, so that it loads none of the host's libraries.
    const QString self = QCoreApplication::applicationFilePath();
    const QString bare = QCoreApplication::applicationDirPath() + QStringLiteral("/bench_hoststart_bare");
    if (startChild(self, {project}) < 0 || startChild(bare, {}) < 0) {
        std::fprintf(stderr, "a first start failed\n");
        return 1;
    }
    std::vector<double> ours;
    std::vector<double> plain;
    for (int run = 0; run < harness.runs(); ++run) {
        ours.push_back(startChild(self, {project}));
        plain.push_back(startChild(bare, {}));
        if (ours.back() < 0 || plain.back() < 0) {
            std::fprintf(stderr, "a start failed\n");
            return 1;
        }
    }
    harness.report(QStringLiteral("host start to the first paint"),
                   QStringLiteral("demo project, %1 tabs").arg(kHostPages),
                   QStringLiteral("a bare QDialog with as many empty tabs, in a fresh process"),
                   bench::median(ours), bench::median(plain), "ms", 0.0);
    return harness.finish();
}
