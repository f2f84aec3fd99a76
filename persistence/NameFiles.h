#pragma once

#include "fighters/FighterGenerator.h"
#include "fighters/NationTable.h"

#include <QString>

// The files that new men are drawn from: the nations of the eight regions and the names of each
// family, under ./Resources/Defaults/ beside the running game.
class NameFiles
{
public:
    // the eight lists of the nation file; false, and eight empty lists, when it can't be read
    static bool readNations(NationTable::Lists &lists, const QString &path);
    // the first and last names of a family file; empty lists when it can't be read
    static FighterGenerator::Names readNames(const QString &path);
    // the generator's book over the default files, each read when a man is made
    static FighterGenerator::NameBook book();
};
