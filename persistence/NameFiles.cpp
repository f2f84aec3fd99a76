#include "persistence/NameFiles.h"

#include "fighters/StreamForm.h"
#include "persistence/DataFile.h"
#include "persistence/DefaultFiles.h"

bool NameFiles::readNations(NationTable::Lists &lists, const QString &path)
{
    NationTable::Lists read;
    const bool ok = DataFile::read(path, [&read](QDataStream &in) {
        for (int region = 0; region < NationTable::RegionCount; ++region) {
            QStringList nations;
            StreamForm::readStringList(in, nations);
            read.append(nations);
        }
    });
    lists = ok ? read : NationTable::Lists(NationTable::RegionCount);
    return ok;
}

FighterGenerator::Names NameFiles::readNames(const QString &path)
{
    FighterGenerator::Names names;
    if (!DataFile::read(path, [&names](QDataStream &in) {
            StreamForm::readStringList(in, names.first);
            StreamForm::readStringList(in, names.last);
        }))
        names = {};
    return names;
}

FighterGenerator::NameBook NameFiles::book()
{
    return {[] {
                NationTable::Lists lists;
                readNations(lists, DefaultFiles::path(DefaultFiles::nationsFile()));
                return lists;
            },
            [](const QString &family) { return readNames(DefaultFiles::path(DefaultFiles::namesFile(family))); }};
}
