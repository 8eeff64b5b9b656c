#include "VKD_T_Help.h"

#include <vkd_q.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include <map>

QString VKD_T_Help::pagePath(const VKD_T_String& book, const VKD_T_String& topic, int language)
{
    const QString base = QStringLiteral("help/%1_%2_").arg(book.toString(), topic.toString()).toLower();
    for (const char* suffix : {language == 0 ? "de" : "en", "en"}) {
        const std::string path = vkd_lib_searchpath((base + QLatin1String(suffix) + QStringLiteral(".html")).toUtf8().constData(), 3);
        if (!path.empty())
            return QFile::decodeName(path.c_str());
    }
    return QString();
}

bool VKD_T_Help::show(QWidget* parent, const VKD_T_String& book, const VKD_T_String& topic)
{
    const QString path = pagePath(book, topic, vkd_lib_getvalue(kSettingLanguage));
    if (path.isEmpty())
        return false;
    // One viewer per page: asking again raises it.
    static std::map<QString, QPointer<QDialog>> viewers;
    QPointer<QDialog>& viewer = viewers[path];
    if (!viewer) {
        viewer = new QDialog(parent ? parent->window() : nullptr);
        viewer->setAttribute(Qt::WA_DeleteOnClose);
        viewer->setObjectName(QStringLiteral("helpViewer"));
        viewer->setWindowTitle(QApplication::translate("VKD_T_Help", "Help: %1").arg(book.toString()));
        auto* layout = new QVBoxLayout(viewer);
        auto* browser = new QTextBrowser(viewer);
        browser->setObjectName(QStringLiteral("helpText"));
        browser->setOpenExternalLinks(false);
        browser->setSearchPaths({QFileInfo(path).absolutePath()});
        browser->setSource(QUrl::fromLocalFile(path));
        layout->addWidget(browser);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, viewer);
        QObject::connect(buttons, &QDialogButtonBox::rejected, viewer.data(), &QDialog::close);
        layout->addWidget(buttons);
        viewer->resize(720, 640);
    }
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
    return true;
}
