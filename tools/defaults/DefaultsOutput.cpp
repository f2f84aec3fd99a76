#include "DefaultsOutput.h"

#include "fighters/StreamForm.h"
#include "persistence/DataFile.h"
#include "persistence/DefaultFiles.h"
#include "persistence/DefaultWorld.h"
#include "persistence/NameFiles.h"
#include "world/OrgTable.h"

#include <QDir>

namespace {

bool writeFile(const QString &path, const std::function<void(QDataStream &)> &write, QStringList &faults)
{
    QString reason;
    if (DataFile::write(path, write, &reason))
        return true;
    faults.append(path + ": " + reason);
    return false;
}

void writeFighters(const QString &path, const DefaultWorld::FighterList &list, QStringList &faults)
{
    if (writeFile(
            path, [&list](QDataStream &out) { StreamForm::writeMap(out, list); }, faults) &&
        DefaultWorld::readFighterList(path) != list)
        faults.append(path + ": reads back as another list");
}

} // namespace

bool DefaultsOutput::write(const QString &folder, const SourceData &source, const WorldBuilder &world,
                           QStringList &faults)
{
    if (!QDir().mkpath(folder)) {
        faults.append(folder + ": can't be made");
        return false;
    }
    const auto path = [&folder](const QString &file) { return folder + "/" + file; };

    const QString nations = path(DefaultFiles::nationsFile());
    writeFile(
        nations,
        [&source](QDataStream &out) {
            for (const QStringList &list : source.nations)
                StreamForm::writeStringList(out, list);
        },
        faults);
    NationTable::Lists readBack;
    if (!NameFiles::readNations(readBack, nations) || readBack != source.nations)
        faults.append(nations + ": reads back as other lists");

    for (auto it = source.names.cbegin(); it != source.names.cend(); ++it) {
        const FighterGenerator::Names &names = it.value();
        const QString file = path(DefaultFiles::namesFile(it.key()));
        writeFile(
            file,
            [&names](QDataStream &out) {
                StreamForm::writeStringList(out, names.first);
                StreamForm::writeStringList(out, names.last);
            },
            faults);
        const FighterGenerator::Names back = NameFiles::readNames(file);
        if (back.first != names.first || back.last != names.last)
            faults.append(file + ": reads back as other names");
    }

    for (int i = 0; i < world.organisations.size(); ++i) {
        const Entity_Org &organisation = world.organisations[i];
        const QString file = path(DefaultFiles::organisationFile(OrgTable::key(i)));
        if (writeFile(
                file, [&organisation](QDataStream &out) { out << organisation; }, faults) &&
            !(DefaultWorld::readOrganisation(file, QString()) == organisation))
            faults.append(file + ": reads back as another organisation");
    }
    for (int n = 0; n < world.freeAgentLists.size(); ++n)
        writeFighters(path(DefaultFiles::freeAgentFile(n + 1)), world.freeAgentLists[n], faults);
    for (int n = 0; n < world.amateurLists.size(); ++n)
        writeFighters(path(DefaultFiles::amateurFile(n + 1)), world.amateurLists[n], faults);

    const QString help = path(DefaultFiles::helpFile());
    writeFile(
        help,
        [&source](QDataStream &out) {
            for (const QMap<QString, QString> &screen : source.help)
                StreamForm::writeMap(out, screen);
        },
        faults);
    return faults.isEmpty();
}
