#pragma once

// Writes the demo model into an open project: a floor slab on walls and columns.
void writeDemoModel(int index);
