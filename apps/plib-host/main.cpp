// plib-host: a project dialog of the suite with the pages of libvkd_p_fea.so.
//   plib-host [--lang de|en] [--screenshot <png>] [project]
// Without a project it opens the demo project beside the build (demo.vkd), and creates it
// first if there is none. With --screenshot it shows the dialog, saves a picture of it and
// quits without writing anything.
#include "PlibHostDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <newproject.h>
#include <vkd_q.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QTextStream>

namespace {

struct Options
{
    int language = -1; // -1: as the desktop says
    QString screenshot;
    QString project;
    bool valid = true;
};

Options parse(int argc, char** argv)
{
    Options o;
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        if (arg == QLatin1String("--lang") && i + 1 < argc) {
            const QString lang = QString::fromLocal8Bit(argv[++i]);
            if (lang == QLatin1String("de"))
                o.language = 0;
            else if (lang == QLatin1String("en"))
                o.language = 1;
            else
                o.valid = false;
        } else if (arg == QLatin1String("--screenshot") && i + 1 < argc) {
            o.screenshot = QString::fromLocal8Bit(argv[++i]);
        } else if (!arg.startsWith(QLatin1Char('-')) && o.project.isEmpty()) {
            o.project = arg;
        } else {
            o.valid = false;
        }
    }
    return o;
}

} // namespace

int main(int argc, char** argv)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    const Options options = parse(argc, argv);
    if (!options.valid) {
        err << "usage: plib-host [--lang de|en] [--screenshot <png>] [project]\n";
        return 2;
    }
    // Before the application object: the library installs its German texts when that is made.
    if (options.language >= 0)
        vkd_lib_setvalue(102, options.language);
    QApplication app(argc, argv);

    QString path = options.project;
    if (path.isEmpty()) {
        path = QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QStringLiteral("../demo.vkd"));
        path = QDir::cleanPath(path);
        QString error;
        if (!QFile::exists(path)) {
            if (!createDemoProject(path, &error)) {
                err << "plib-host: " << error << '\n';
                return 1;
            }
            out << "created the demo project " << path << '\n';
            out.flush();
        }
    }
    // A picture is taken of a copy in memory: the default record that the page writes into a
    // project without one stays out of the file.
    VKD_H_ZOBDoc project(path, options.screenshot.isEmpty() ? VKD_H_ZOBDoc::OpenExisting
                                                            : VKD_H_ZOBDoc::MemoryCopy);
    if (!project.isValid()) {
        err << "plib-host: " << project.errorString() << '\n';
        if (options.screenshot.isEmpty())
            QMessageBox::critical(nullptr, QStringLiteral("plib-host"), project.errorString());
        return 1;
    }

    PlibHostDialog dialog(&project);
    // As large as the pages would like, within the screen; a picture knows no screen.
    QSize size = dialog.sizeHint();
    if (options.screenshot.isEmpty()) {
        if (const QScreen* screen = QGuiApplication::primaryScreen())
            size = size.boundedTo(screen->availableSize() * 9 / 10);
        dialog.resize(size);
        dialog.exec();
        return 0;
    }

    dialog.resize(size);
    dialog.show();
    QCoreApplication::processEvents();
    if (!dialog.grab().save(options.screenshot)) {
        err << "plib-host: cannot write " << options.screenshot << '\n';
        return 1;
    }
    out << "saved a picture of the dialog on " << path << " to " << options.screenshot << '\n';
    return 0;
}
