#pragma once
// The groups a user picked in the model view for a group dialog that was left for the pick.
// The program that runs the pick stores them; the dialog's caller reads them when its dialog
// is shown again. Key pair 97, 1 of the project, one int32 record per group (docs/store.md).

#include <vector>

constexpr int kGroupPickKey1 = 97;
constexpr int kGroupPickKey2 = 1;

// Replaces the stored pick. A pick of no group leaves none: there is nothing to take over.
void vkd_h_storeGroupPick(int index, const std::vector<int>& groups);
// Forgets the stored pick, so that a pick made for an earlier dialog cannot come back after a
// pick that was cancelled.
void vkd_h_clearGroupPick(int index);
// The stored pick in the order it was made; false, and groups untouched, when there is none.
bool vkd_h_readGroupPick(int index, std::vector<int>& groups);
