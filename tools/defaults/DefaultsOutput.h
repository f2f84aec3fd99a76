#pragma once

#include "SourceData.h"
#include "WorldBuilder.h"

#include <QStringList>

// Writes the files of Resources/Defaults with the game's own stream forms, then reads each one
// back through the game's own readers: a file that would not load as it was meant fails the build.
class DefaultsOutput
{
public:
    static bool write(const QString &folder, const SourceData &source, const WorldBuilder &world, QStringList &faults);
};
