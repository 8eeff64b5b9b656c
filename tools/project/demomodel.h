#pragma once

enum class DemoSecondaryGroups
{
    Included,
    LeftOut // for what a model without secondary groups offers
};

// Writes the demo model into an open project: a floor slab on walls and columns, with named
// groups and, unless left out, a few secondary groups.
void writeDemoModel(int index, DemoSecondaryGroups secondary = DemoSecondaryGroups::Included);
