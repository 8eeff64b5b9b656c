#pragma once
// The output page on a project in a temporary folder, as the page tests drive it.

#include "GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "testsupport.h"

#include <AnimatorView.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_CheckBox.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <vkd_dbo.h>

#include <QRadioButton>
#include <QTemporaryDir>

// Models of a page's project: none or one bric.
enum Model : int
{
    NoModel = 0,
    OneBric = vkd::dbo::KeyBricks
};

// Below one caption the plots a (rows of load cases, the first checked by default), b, and iso
// where the model holds quads; "BILD a" / "PICT a" and so on their scripts. With a preview if
// asked; the commands that reach the preview are kept in order.
struct Page
{
    explicit Page(int progname = GraphicalOutputStandard, int model = NoModel, bool preview = false,
                  QWidget* parent = nullptr)
        : doc(dir.filePath(QStringLiteral("demo.vkd"))), parameter(&doc)
    {
        using namespace vkd::plib::widgetgraphicaloutput;
        catalogueList() = parseText("1|122|0|@T01 T|@C01 C|@P01 a|All|0|last-l|1|3| |0|BILD a|PICT a\n"
                                    "1|122|0|@T01 T|@C01 C|@P02 b|All|0|none|0|3| |0|BILD b|PICT b\n"
                                    "1|122|0|@T01 T|@C01 C|@P03 iso|Quad|0|none|0|3| |0|BILD iso|PICT iso\n");
        catalogueLanguage = vkd_lib_getvalue(kSettingLanguage);
        if (model > 0)
            vkd::dbo::writeAll<vkd::dbo::ElementRecord>(doc.index(), model, {{1, 1, {1, 2, 3, 4}}});
        animator = preview ? new AnimatorView(doc.index()) : nullptr;
        page = new VKD_P_WidgetGraphicalOutput(
            parent ? parent : &holder, VKD_P_WidgetGraphicalOutput_Progname(progname), &parameter, animator);
        QObject::connect(page, &VKD_P_WidgetGraphicalOutput::signalBeobXY, page,
                         [this](AnimatorViewControl c, double) { commands << int(c); });
    }
    template <typename T = VKD_QT_RadioButtonGroup> T* get(const char* name = nullptr) const
    {
        return name ? page->findChild<T*>(QLatin1String(name)) : page->findChild<T*>();
    }
    GraphicalOutputTreeWidget* tree() const { return get<GraphicalOutputTreeWidget>("m_list"); }
    QTreeWidgetItem* plot(int i = 0) const { return tree()->topLevelItem(0)->child(0)->child(i); }
    // "number=label+;...": the rows of the first plot as the tree holds them, "+" if checked.
    QString rows() const
    {
        QStringList out;
        for (int i = 0; i < plot()->childCount(); ++i) {
            auto* row = static_cast<GraphicalOutputTreeWidgetItem*>(plot()->child(i));
            out << QStringLiteral("%1=%2%3")
                       .arg(row->number)
                       .arg(row->text(0), row->checkState(0) ? "+" : "");
        }
        return out.join(QLatin1Char(';'));
    }
    // Scale entry and row, font, fill, format, pictures, view, division; "-" for a widget the page
    // lacks, "~" for a greyed group.
    QString state() const
    {
        auto group = [this](const char* name) {
            const VKD_QT_RadioButtonGroup* g = get(name);
            return g ? QString::number(g->selectedButton()) + (g->isEnabled() ? "" : "~")
                     : QStringLiteral("-");
        };
        const auto* fill = get<VKD_QT_CheckBox>();
        const auto* split = get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING");
        return QStringList{group("ScaleGroup"),
                           get<VKD_QT4_ComboBox>("box_scale")->currentText(),
                           get<VKD_H_BoxedLineEdit>()->getText(),
                           fill ? QString::number(fill->isChecked()) : "-",
                           group("FormatGroup"),
                           group("PicturesGroup"),
                           group("PerspectiveGroup"),
                           split ? QString::number(split->getCurrentId()) : "-"}
            .join(' ');
    }
    // Engineering scale on 1:100, font 3, fill, landscape, view X/Z, or division 3 on a split page.
    void setDistinct() const
    {
        get("ScaleGroup")->setButton(0);
        get<VKD_QT4_ComboBox>("box_scale")->setCurrentText(QStringLiteral("1:100"));
        get<VKD_H_BoxedLineEdit>()->setText(QStringLiteral("3"));
        if (get("FormatGroup")) {
            get("FormatGroup")->getRadioButton(1)->click();
            get<VKD_QT_CheckBox>()->setChecked(true);
            get("PerspectiveGroup")->setButton(1);
        } else {
            get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")->setCurrentIndex(3);
        }
    }

    QTemporaryDir dir;
    VKD_H_ZOBDoc doc;
    VKD_H_PluginParameter parameter;
    QWidget holder;
    AnimatorView* animator;
    VKD_P_WidgetGraphicalOutput* page;
    QList<int> commands;
};
