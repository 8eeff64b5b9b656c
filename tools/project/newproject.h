#pragma once

#include <QString>

// Makes a new project with the demo model and its design parameters at path. The project is
// built in a file beside the target and renamed into place when it is complete, so that an
// interrupted run leaves either no project there or a whole one. An existing file is never
// replaced. False and a message naming the file and the reason if it failed.
bool createDemoProject(const QString& path, QString* error);
