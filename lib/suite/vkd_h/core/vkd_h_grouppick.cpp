#include "vkd_h_grouppick.h"

#include <vkd_q.h>

#include <cstdint>

void vkd_h_storeGroupPick(int index, const std::vector<int>& groups)
{
    vkd_zob_lock_ex(index, kGroupPickKey1, kGroupPickKey2);
    int length = 0;
    vkd_zob_put(index, kGroupPickKey1, kGroupPickKey2, nullptr, &length, 0);
    length = int(sizeof(int32_t));
    for (int group : groups) {
        const int32_t value = group;
        vkd_zob_put(index, kGroupPickKey1, kGroupPickKey2, &value, &length, 1);
    }
    vkd_zob_free_ex(index, kGroupPickKey1, kGroupPickKey2);
}

void vkd_h_clearGroupPick(int index)
{
    vkd_h_storeGroupPick(index, {});
}

bool vkd_h_readGroupPick(int index, std::vector<int>& groups)
{
    std::vector<int> picked;
    for (int position = 0;; ++position) {
        int32_t value = 0;
        int length = int(sizeof value);
        if (vkd_zob_get(index, kGroupPickKey1, kGroupPickKey2, &value, &length, position) >= ZOB_END)
            break;
        // A record of another size is no group of a pick.
        if (length == int(sizeof value))
            picked.push_back(value);
    }
    if (picked.empty())
        return false;
    groups = picked;
    return true;
}
