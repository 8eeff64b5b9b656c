#pragma once

#include <QString>

// The records of a key pair: for each record its position and length, then one line per
// four-byte word with its offset, hex value, integer and float reading.
QString dumpKeyPair(int index, int key1, int key2);
// A short description of the model stored in a project.
QString describeModel(int index);
