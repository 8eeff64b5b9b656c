#include "designstore.h"

#include "designrecord.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <cstring>
#include <iterator>

namespace vkd::plib::design {

namespace {

constexpr int kRecordLength = int(sizeof(tagZOB_QUAD_RIM));

int designIndex(const DesignParameterData& data)
{
    return data.designDoc ? data.designDoc->index() : -1;
}

bool isOurs(const tagZOB_QUAD_RIM& r)
{
    return (r.mark == 0 || r.mark == kDesignRecordMark) && r.subId == 0;
}

bool isRemainingGroups(const std::vector<int32_t>& groups)
{
    return groups.size() == 1 && groups.front() == -1;
}

} // namespace

void checkAndCreateZobDefault(int index)
{
    tagZOB_QUAD_RIM buffer;
    int length = kRecordLength;
    if (vkd_zob_get(index, kDesignKey1, kDesignKey2, &buffer, &length, 0) == ZOB_NO_KEY) {
        const tagZOB_QUAD_RIM record = getDefaultMerPara(true);
        length = kRecordLength;
        vkd_zob_put(index, kDesignKey1, kDesignKey2, &record, &length, 0);
    }
    vkd_zob_free_ex(index, kDesignKey1, kDesignKey2);
}

void readRowsFromZob(DesignParameterData& data)
{
    const int index = designIndex(data);
    // Rows for the remaining groups go in front of all rows, the last one read first; the
    // others behind all rows in reading order. Both are collected apart and joined once, so
    // that no record costs a shift of the rows.
    std::vector<DesignParameterRow> remaining;
    std::vector<DesignParameterRow> appended;
    tagZOB_QUAD_RIM previous;
    bool havePrevious = false;

    // One buffer for the whole walk: a short record keeps the words of the one before.
    tagZOB_QUAD_RIM buffer;
    std::memset(&buffer, 0, sizeof buffer);
    int length = kRecordLength;
    zob_status_t status = vkd_zob_get(index, kDesignKey1, kDesignKey2, &buffer, &length, 0);
    for (int position = 1; status < ZOB_END; ++position) {
        if (isOurs(buffer)) {
            toEditedForm(buffer, data.kindOfSystem);
            cleanRecord(buffer);
            if (buffer.group < 0) {
                remaining.push_back({data.barData, buffer, {-1}});
            } else if (havePrevious && recordsEqual(previous, buffer)) {
                appended.back().groups.push_back(buffer.group);
            } else {
                appended.push_back({data.barData, buffer, {buffer.group}});
                previous = buffer;
                havePrevious = true;
            }
        }
        length = kRecordLength;
        status = vkd_zob_get(index, kDesignKey1, kDesignKey2, &buffer, &length, position);
    }
    vkd_zob_free_ex(index, kDesignKey1, kDesignKey2);

    if (!remaining.empty()) {
        std::vector<DesignParameterRow> rows;
        rows.reserve(remaining.size() + data.rows.size() + appended.size());
        rows.insert(rows.end(), std::make_move_iterator(remaining.rbegin()),
                    std::make_move_iterator(remaining.rend()));
        rows.insert(rows.end(), std::make_move_iterator(data.rows.begin()),
                    std::make_move_iterator(data.rows.end()));
        data.rows = std::move(rows);
    }
    data.rows.insert(data.rows.end(), std::make_move_iterator(appended.begin()),
                     std::make_move_iterator(appended.end()));
}

void writeRowsToZob(DesignParameterData& data, bool& converted)
{
    if (!converted) {
        converted = true;
        toStoredForm(data.rows, data.kindOfSystem);
    }
    const int index = designIndex(data);
    vkd_zob_lock_ex(index, kDesignKey1, kDesignKey2);

    tagZOB_QUAD_RIM buffer;
    std::memset(&buffer, 0, sizeof buffer);
    int length = 0;
    vkd_zob_put(kScratchIndex, kScratchKey1, kScratchKey2, &buffer, &length, 0);
    for (int position = 0;; ++position) {
        length = kRecordLength;
        if (vkd_zob_get(index, kDesignKey1, kDesignKey2, &buffer, &length, position) >= ZOB_END)
            break;
        if (!isOurs(buffer))
            vkd_zob_put(kScratchIndex, kScratchKey1, kScratchKey2, &buffer, &length, 1);
    }

    length = 0;
    vkd_zob_put(index, kDesignKey1, kDesignKey2, &buffer, &length, 0);
    for (DesignParameterRow& row : data.rows) {
        if (!isRemainingGroups(row.groups))
            continue;
        row.record.group = -1;
        length = kRecordLength;
        vkd_zob_put(index, kDesignKey1, kDesignKey2, &row.record, &length, 1);
    }
    for (DesignParameterRow& row : data.rows) {
        if (row.groups.empty() || isRemainingGroups(row.groups))
            continue;
        length = kRecordLength;
        for (int32_t group : row.groups) {
            row.record.group = group;
            vkd_zob_put(index, kDesignKey1, kDesignKey2, &row.record, &length, 1);
        }
    }

    // The records set aside are not brought back; they wait in the scratch key pair until
    // the next write empties it.
    length = kRecordLength;
    vkd_zob_get(kScratchIndex, kScratchKey1, kScratchKey2, &buffer, &length, 0);
    vkd_zob_free_ex(index, kDesignKey1, kDesignKey2);
}

DesignParameterRow& addDefaultRow(DesignParameterData& data)
{
    DesignParameterRow row;
    row.barData = data.barData;
    row.record = getDefaultMerPara(false);
    if (data.kindOfSystem != kUndefinedInteger)
        toEditedForm(row.record, data.kindOfSystem);
    data.rows.push_back(row);
    return data.rows.back();
}

} // namespace vkd::plib::design
