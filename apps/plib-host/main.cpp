// plib-host: a project dialog of the suite with the pages of libvkd_p_fea.so.
//   plib-host [--lang de|en] [--script-language de|en] [--script FILE|-] [--screenshots DIR] [PROJECT]
// Without a project it opens the demo project beside the build (demo.vkd), and creates it
// first if there is none. --script and --screenshots run without a window: the pages are built
// and restored from the project, the script is written to FILE ("-": standard output) and a
// picture of each page is saved into DIR; the project is not written.
#include "GroupPickDialog.h"
#include "PlibHostDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_InitTranslator.h>
#include <VKD_QT_MessageBox.h>
#include <newproject.h>
#include <vkd_q.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSaveFile>
#include <QScreen>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {

// What scripts that call the host can tell apart.
enum ExitStatus : int
{
    ExitOk = 0,
    ExitCancelled = 1,
    ExitUsage = 2,
    ExitFailure = 3
};
// What a group dialog closes the host's dialog with to let the user pick groups in the model.
constexpr int pickInModel = 6;
enum Language : int { German = 0, English = 1, DesktopLanguage = -1 };

// The size the dialog opens at where the screen has room, and the pictures for the documentation
// show: the German captions of the output tree fit beside the preview.
const QSize usualSize(1480, 780);

const char* const usage = "usage: plib-host [--lang de|en] [--script-language de|en] [--script FILE|-] "
                          "[--screenshots DIR] [PROJECT]\n";

struct Options
{
    int language = DesktopLanguage;
    bool englishKeywords = true;
    QString script;
    QString screenshots;
    QString project;
    QString error;
    bool help = false;

    bool batch() const { return !script.isEmpty() || !screenshots.isEmpty(); }
};

int languageArgument(const QString& text)
{
    if (text == QLatin1String("de"))
        return German;
    if (text == QLatin1String("en"))
        return English;
    return DesktopLanguage;
}

Options parse(const QStringList& args)
{
    Options o;
    for (int i = 1; i < args.size() && o.error.isEmpty(); ++i) {
        const QString& arg = args[i];
        const bool valued = arg == QLatin1String("--lang") || arg == QLatin1String("--script-language") ||
                            arg == QLatin1String("--script") || arg == QLatin1String("--screenshots");
        if (valued && i + 1 >= args.size()) {
            o.error = QStringLiteral("%1 needs a value").arg(arg);
        } else if (arg == QLatin1String("--lang")) {
            o.language = languageArgument(args[++i]);
            if (o.language == DesktopLanguage)
                o.error = QStringLiteral("--lang takes de or en, not \"%1\"").arg(args[i]);
        } else if (arg == QLatin1String("--script-language")) {
            const int keywords = languageArgument(args[++i]);
            if (keywords == DesktopLanguage)
                o.error = QStringLiteral("--script-language takes de or en, not \"%1\"").arg(args[i]);
            o.englishKeywords = keywords == English;
        } else if (arg == QLatin1String("--script")) {
            o.script = args[++i];
        } else if (arg == QLatin1String("--screenshots")) {
            o.screenshots = args[++i];
        } else if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            o.help = true;
        } else if (arg.startsWith(QLatin1Char('-')) && arg != QLatin1String("-")) {
            o.error = QStringLiteral("unknown option %1").arg(arg);
        } else if (o.project.isEmpty()) {
            o.project = arg;
        } else {
            o.error = QStringLiteral("one project only: %1").arg(arg);
        }
    }
    return o;
}

QtMessageHandler qtMessages = nullptr;

// Notes of Qt that tell an engineer nothing: the offscreen platform cannot hint window sizes, and
// a session without a runtime folder gets one in /tmp.
void dropPlatformNotes(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message == QLatin1String("This plugin does not support propagateSizeHints()") ||
        message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        return;
    if (qtMessages)
        qtMessages(type, context, message);
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

// Qt's own texts (message box buttons, file dialogs) in the language of the desktop.
void installQtTranslation(QCoreApplication& app)
{
    if (vkd_lib_getvalue(kSettingLanguage) != German)
        return;
    auto* qt = new QTranslator(&app);
    if (qt->load(QStringLiteral("qtbase_de"), QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
}

// Opens a dialog by a click and saves a picture of it once it is up; false if it did not come
// up or the picture could not be written.
bool saveDialogPicture(QAbstractButton* opener, const QString& file)
{
    bool saved = false;
    bool shown = false;
    QTimer::singleShot(0, [&] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            shown = true;
            saved = modal->grab().save(file);
            modal->close();
        }
    });
    opener->click();
    return shown && saved;
}

// Pictures of the design page's dialogs, opened from the cells of its first row of design.
bool saveDesignDialogPictures(PlibHostDialog& dialog, const QDir& folder, QTextStream& err)
{
    dialog.tabWidget()->setCurrentWidget(dialog.designPage());
    auto* table = dialog.designPage()->findChild<QTableWidget*>();
    if (!table || table->rowCount() < 2)
        return true;
    const struct
    {
        int column;
        const char* button;
        const char* file;
    } dialogs[] = {{0, "buttonGroups", "groups.png"},
                   {0, "buttonSekGroups", "secondarygroups.png"},
                   {2, "cellButton", "directiondistance.png"},
                   {3, "cellButton", "reinforcement.png"},
                   {4, "cellButton", "crackcontrol.png"}};
    bool ok = true;
    for (const auto& d : dialogs) {
        table->setCurrentCell(1, d.column);
        QCoreApplication::processEvents();
        QWidget* cell = table->cellWidget(1, d.column);
        auto* opener = cell ? cell->findChild<QAbstractButton*>(QLatin1String(d.button)) : nullptr;
        const QString file = folder.filePath(QLatin1String(d.file));
        if (opener && opener->isEnabled() && !saveDialogPicture(opener, file)) {
            err << "plib-host: cannot write " << file << '\n';
            ok = false;
        }
    }
    table->setCurrentCell(-1, -1);
    return ok;
}

int runBatch(PlibHostDialog& dialog, int projectIndex, const Options& options, QTextStream& err)
{
    int status = ExitOk;
    if (!options.screenshots.isEmpty()) {
        if (!QDir().mkpath(options.screenshots)) {
            err << "plib-host: cannot create the folder " << options.screenshots << '\n';
            return ExitFailure;
        }
        dialog.resize(dialog.sizeHint().expandedTo(usualSize));
        dialog.show();
        QTabWidget* tabs = dialog.tabWidget();
        const QStringList names{QStringLiteral("design"), QStringLiteral("output"),
                                QStringLiteral("pagesplitting"), QStringLiteral("loadcases")};
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            QCoreApplication::processEvents();
            const QString file = QDir(options.screenshots)
                                     .filePath(names.value(i, QString::number(i)) + QStringLiteral(".png"));
            if (!dialog.grab().save(file)) {
                err << "plib-host: cannot write " << file << '\n';
                status = ExitFailure;
            }
        }
        GroupPickDialog pick(projectIndex, &dialog);
        pick.show();
        QCoreApplication::processEvents();
        const QString pickFile = QDir(options.screenshots).filePath(QStringLiteral("grouppick.png"));
        if (!pick.grab().save(pickFile)) {
            err << "plib-host: cannot write " << pickFile << '\n';
            status = ExitFailure;
        }
        pick.close();
        if (!saveDesignDialogPictures(dialog, QDir(options.screenshots), err))
            status = ExitFailure;
        err << "saved pictures of the pages and dialogs to " << QDir(options.screenshots).absolutePath()
            << '\n';
    }
    if (!options.script.isEmpty()) {
        const QByteArray script =
            PlibHostDialog::script(dialog.outputPage(), options.englishKeywords).toUtf8();
        if (options.script == QLatin1String("-")) {
            err.flush();
            QFile stdOut;
            stdOut.open(stdout, QIODevice::WriteOnly);
            stdOut.write(script);
        } else {
            QSaveFile file(options.script);
            if (!file.open(QIODevice::WriteOnly) || file.write(script) < 0 || !file.commit()) {
                err << "plib-host: cannot write the script to " << options.script << ": "
                    << file.errorString() << '\n';
                return ExitFailure;
            }
        }
    }
    return status;
}

} // namespace

// The host's own texts.
static VKD_QT_InitTranslator g_hostTranslator("plib_host");

int main(int argc, char** argv)
{
    QTextStream err(stderr);
    QStringList args;
    for (int i = 0; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    const Options options = parse(args);
    if (!options.error.isEmpty()) {
        err << "plib-host: " << options.error << '\n' << usage;
        return ExitUsage;
    }
    if (options.help) {
        QTextStream(stdout)
            << usage
            << "Opens PROJECT (the demo project beside the build without one) in the project dialog.\n"
               "--script and --screenshots work without a window and leave the project as it is.\n"
               "Exit status: 0 OK, 1 Cancel, 2 a usage error, 3 a failure.\n";
        return ExitOk;
    }
    qtMessages = qInstallMessageHandler(dropPlatformNotes);
    if (!hasDisplay()) {
        if (!options.batch()) {
            err << "plib-host: no display; run with --script or --screenshots to work without one\n";
            return ExitUsage;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
        err << "No display: running offscreen\n";
    }
    // Before the application object: the library installs its German texts when that is made.
    if (options.language != DesktopLanguage)
        vkd_lib_setvalue(kSettingLanguage, options.language);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    installQtTranslation(app);

    QString path = options.project;
    if (path.isEmpty())
        path = QDir::cleanPath(
            QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QStringLiteral("../demo.vkd")));
    // A project that is not there yet starts as the demo project: the one beside the build always,
    // one named by the user in the dialog only, so that a batch run on a mistyped name fails.
    if (!QFileInfo::exists(path) && (options.project.isEmpty() || !options.batch())) {
        QString error;
        if (!createDemoProject(path, &error)) {
            err << "plib-host: " << error << '\n';
            return ExitFailure;
        }
        err << "created the demo project " << path << '\n';
    }
    err.flush();
    // A batch run works on a copy in memory: what the pages write while they are built and
    // restored (the default design record of a project without one) stays out of the file.
    VKD_H_ZOBDoc project(path, options.batch() ? VKD_H_ZOBDoc::MemoryCopy : VKD_H_ZOBDoc::OpenExisting);
    if (!project.isValid()) {
        err << "plib-host: " << project.errorString() << '\n';
        if (!options.batch())
            VKD_QT_MessageBox::critical(nullptr, QStringLiteral("plib-host"), project.errorString());
        return ExitFailure;
    }

    // The dialog would take the user's work and then fail to keep it. The store names the reason
    // (the file or its folder) when it refuses a write, and a refused write changes nothing.
    if (!options.batch() && project.isReadOnly()) {
        project.beginWrite();
        project.endWrite();
        err << "plib-host: " << project.lastWriteError() << '\n';
        VKD_QT_MessageBox::critical(nullptr, QStringLiteral("plib-host"), project.lastWriteError());
        return ExitFailure;
    }

    PlibHostDialog dialog(&project, options.englishKeywords);
    if (options.batch())
        return runBatch(dialog, project.index(), options, err);

    // As large as the pages would like, within the screen.
    QSize size = dialog.sizeHint().expandedTo(usualSize);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableSize() * 9 / 10);
    dialog.resize(size);
    int result;
    // A group dialog of the design page leaves the dialog for a pick in the model and comes back
    // when the dialog is shown again.
    while ((result = dialog.exec()) == pickInModel)
        GroupPickDialog::pickInto(project.index(), nullptr);
    return result == QDialog::Accepted ? ExitOk : ExitCancelled;
}
