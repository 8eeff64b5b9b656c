#include "design.h"

#include <VKD_H_ZOBDoc.h>
#include <designrecord.h>
#include <designstore.h>
#include <rowtext.h>
#include <vkd_dbo.h>
#include <vkd_q.h>

#include <QStringList>
#include <cmath>
#include <cstring>

using namespace vkd::plib::design;

namespace {

// The shortest text that reads back as the same float.
QString real(float v)
{
    if (v == kNotSet)
        return QStringLiteral("-");
    for (int digits = 6; digits < 9; ++digits) {
        const QString text = QString::number(double(v), 'g', digits);
        if (text.toFloat() == v)
            return text;
    }
    return QString::number(double(v), 'g', 9);
}

QString groupText(int32_t group)
{
    if (group == -1)
        return QStringLiteral("-1 (remaining groups)");
    if (group >= vkd::dbo::kFirstSecondaryGroup)
        return QStringLiteral("%1 (secondary group %2)").arg(group).arg(vkd::dbo::secondaryGroupName(group));
    return QString::number(group);
}

QString typeText(int32_t type)
{
    const char* name = designTypeName(type);
    return name ? QStringLiteral("%1 (%2)").arg(type).arg(QLatin1String(name)) : QString::number(type);
}

float radians(float degrees)
{
    return float(double(degrees) * M_PI / 180.0);
}

} // namespace

QString dumpDesignRecords(int index)
{
    QString text;
    tagZOB_QUAD_RIM r;
    int position = 0;
    for (;; ++position) {
        std::memset(&r, 0, sizeof r);
        int length = int(sizeof r);
        const zob_status_t status = vkd_zob_get(index, kDesignKey1, kDesignKey2, &r, &length, position);
        if (status >= ZOB_END) {
            if (status == ZOB_NO_KEY)
                text += QStringLiteral("no design parameters: key pair 200, 6 was never written\n");
            break;
        }
        text += QStringLiteral("record %1: group %2, type %3\n")
                    .arg(position)
                    .arg(groupText(r.group), typeText(r.type));
        text += QStringLiteral("  subId %1, mode %2, mark %3").arg(r.subId).arg(r.mode).arg(r.mark);
        if ((r.mark != 0 && r.mark != kDesignRecordMark) || r.subId != 0)
            text += QStringLiteral(" (other origin: not read by the design page)");
        if (length != int(sizeof r))
            text += QStringLiteral(" (%1 bytes; the rest reads as zero here)").arg(length);
        text += QLatin1Char('\n');
        // One line per kind of value, as the record orders them.
        static const int lineEnds[] = {6, 9, 15, 22, 29, 36, 42, 48};
        int field = 0;
        for (int end : lineEnds) {
            QStringList parts;
            for (; field < end; ++field)
                parts << QStringLiteral("%1 %2").arg(QLatin1String(kRealFields[field].name),
                                                     real(r.*kRealFields[field].member));
            text += QStringLiteral("  ") + parts.join(QStringLiteral(", ")) + QLatin1Char('\n');
        }
    }
    return QStringLiteral("design parameters at key pair 200, 6: %1 records (reals in base units m, rad, kN; "
                          "bar diameters in mm)\n")
               .arg(position) +
           text;
}

void writeDemoDesign(VKD_H_ZOBDoc& doc)
{
    DesignParameterData data;
    data.doc = data.designDoc = &doc;
    data.kindOfSystem = vkd::dbo::getKindOfSystem(doc.index(), nullptr);
    // Records in the edited form, as the page holds them.
    auto edited = [&](tagZOB_QUAD_RIM r, int type) {
        r.type = type;
        toEditedForm(r, data.kindOfSystem);
        return r;
    };

    // Remaining groups (the beams and columns too): the defaults.
    const tagZOB_QUAD_RIM remaining = edited(getDefaultMerPara(true), 1);

    // Bays A and B: orthogonal mesh, 4 cm cover, crack widths limited to 0.3 and 0.2 mm.
    tagZOB_QUAD_RIM ab = edited(getDefaultMerPara(false), 1);
    ab.hio = ab.hiu = 0.04f;
    ab.dio = ab.dioq = 12.0f;
    ab.diu = ab.diuq = 14.0f;
    ab.aso = ab.asu = 1.88e-4f;
    ab.wko = ab.wkoq = 0.0003f;
    ab.wku = ab.wkuq = 0.0002f;

    // Bay C: a skew mesh at 30 and 120 degrees, at most 25 cm2/m, steel stress up to 280 MPa.
    tagZOB_QUAD_RIM c = edited(getDefaultMerPara(false), 2);
    c.rio = c.riu = radians(30.0f);
    c.rioq = c.riuq = radians(120.0f);
    c.amo = c.amu = 25.0e-4f;
    c.sigo = c.sigu = 280000.0f;

    // Bay D: three layers, the third at 60 degrees, 1.5 cm below the second.
    tagZOB_QUAD_RIM d = edited(getDefaultMerPara(false), 3);
    d.rioi = d.riui = radians(60.0f);
    d.hioi = d.hiui = 0.015f;
    d.dioi = d.diui = 10.0f;

    data.rows = {{nullptr, remaining, {-1}}, {nullptr, ab, {1, 2}}, {nullptr, c, {3}}, {nullptr, d, {4}}};
    bool converted = false;
    writeRowsToZob(data, converted);
}
