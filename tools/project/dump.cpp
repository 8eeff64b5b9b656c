#include "dump.h"

#include <vkd_dbo.h>
#include <vkd_q.h>

#include <QByteArray>
#include <cstring>

QString dumpKeyPair(int index, int key1, int key2)
{
    QString text;
    QByteArray buffer(1 << 16, '\0');
    int position = 0;
    for (;; ++position) {
        int length = buffer.size();
        const zob_status_t status = vkd_zob_get(index, key1, key2, buffer.data(), &length, position);
        if (status >= ZOB_END) {
            if (status == ZOB_NO_KEY)
                text += QStringLiteral("key pair %1, %2: nothing stored\n").arg(key1).arg(key2);
            else if (position == 0)
                text += QStringLiteral("key pair %1, %2: empty\n").arg(key1).arg(key2);
            break;
        }
        text += QStringLiteral("record %1, %2 bytes\n").arg(position).arg(length);
        for (int offset = 0; offset + 4 <= length; offset += 4) {
            quint32 bits;
            std::memcpy(&bits, buffer.constData() + offset, 4);
            qint32 word;
            float real;
            std::memcpy(&word, &bits, 4);
            std::memcpy(&real, &bits, 4);
            text += QStringLiteral("  %1  0x%2  %3  %4\n")
                        .arg(offset, 4)
                        .arg(bits, 8, 16, QLatin1Char('0'))
                        .arg(word, 11)
                        .arg(double(real), 14, 'g', 8);
        }
        if (length % 4)
            text += QStringLiteral("  %1  (%2 trailing bytes)\n").arg(length - length % 4, 4).arg(length % 4);
    }
    return text;
}

QString describeModel(int index)
{
    using namespace vkd::dbo;
    QString text;
    text += QStringLiteral("kind of system: %1\n").arg(getKindOfSystem(index, nullptr));
    const struct
    {
        const char* name;
        bool (*query)(int, int*);
    } parts[] = {{"nodes", hasNodes},           {"quad elements", hasQuads},   {"boundaries", hasBoundaries},
                 {"beams", hasBeams},           {"trusses", hasTrus},         {"cables", hasCables},
                 {"springs", hasSprings},       {"bricks", hasBrics},         {"points", hasPoints},
                 {"lines", hasLines},           {"areas", hasAreas},          {"axes", hasAxes},
                 {"quad tendons", hasQuadTendons}, {"beam tendons", hasBeamTendons},
                 {"beam sections", hasBscts},   {"cross sections", hasCrossSections}};
    for (const auto& p : parts) {
        int count = 0;
        p.query(index, &count);
        text += QStringLiteral("%1: %2\n").arg(QString::fromLatin1(p.name)).arg(count);
    }
    int k1 = KeyDesignLines, k2 = 0;
    vkd_zob_kenq_ex(index, &k1, &k2, 1);
    text += QStringLiteral("design lines: %1\n").arg(k1 == KeyDesignLines ? QStringLiteral("yes") : QStringLiteral("no"));
    for (const GroupRecord& g : readAll<GroupRecord>(index, KeyGroups))
        text += QStringLiteral("group %1 %2\n").arg(g.number).arg(groupTitle(g));
    for (const GroupRecord& g : readAll<GroupRecord>(index, KeySecondaryGroups))
        text += QStringLiteral("secondary group %1 (%2) %3\n")
                    .arg(secondaryGroupName(g.number))
                    .arg(g.number)
                    .arg(groupTitle(g));
    for (const LoadCaseRecord& l : readAll<LoadCaseRecord>(index, KeyLoadCases))
        text += QStringLiteral("load case %1 (kind %2) %3\n")
                    .arg(l.number)
                    .arg(l.kind)
                    .arg(QString::fromUtf8(l.title, int(strnlen(l.title, sizeof l.title))));
    // The camera store speaks of the current project: the one this tool opened last.
    const QString camera = getAnimatorPerspektive(0, CameraPersistentForm);
    text += QStringLiteral("camera: %1\n").arg(camera.isEmpty() ? QStringLiteral("none") : camera);
    return text;
}
