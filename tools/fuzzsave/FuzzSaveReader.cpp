// Feeds any bytes to the reader of saved games. A refused file must leave the running world as it
// was; a taken one must save, and load again, to the very same bytes.

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/StreamForm.h"
#include "world/Entity_Booking.h"
#include "world/Entity_Event.h"
#include "world/Entity_Match.h"
#include "world/Entity_Org.h"
#include "world/GameManager.h"

#include <QByteArray>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <cstdlib>

namespace {

QByteArray worldBytes()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    GameManager::instance().writeTo(out);
    return bytes;
}

bool load(const QByteArray &bytes)
{
    QDataStream in(bytes);
    in.setVersion(StreamForm::version);
    return GameManager::instance().readFrom(in);
}

Entity_Fighter man(int id, const QString &name, const QString &organisation)
{
    QStringList strings(Entity_Fighter::TextCount, "Text");
    strings[Entity_Fighter::FirstName] = name;
    strings[Entity_Fighter::Organisation] = organisation;
    QList<int> numbers(Entity_Fighter::NumberCount, 50);
    numbers[Entity_Fighter::Id] = id;
    numbers[Entity_Fighter::RankingScore] = 4000 + id;
    Entity_Fighter fighter;
    fighter.unpack(strings, numbers, QDate(1985, 3, 4), {{QDate(2010, 5, 1), "Win: X - KO(Hook) - Rd. 1(0:30)"}},
                   {"Org World Championship - from Sat May 1 2010"});
    return fighter;
}

// a small world with a record of every kind, for a corpus that starts empty
QByteArray seedWorld()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    Entity_Manager manager;
    Entity_Gym gym;
    Entity_GymFighter pro(man(1059, "Pro", "Org"));
    Entity_Org::Roster roster;
    roster.insert(4020, man(20, "Champ", "Org"));
    roster.insert(4020, man(21, "Second", "Org"));
    Entity_Match main(Entity_Match::ChampionshipMatch);
    main.addFighter(20, "Champ Text", false);
    Entity_Event night({"Org: Text vs. TBA", "Org", "City", "Elite", "Championship Event", "Org World Championship"},
                       QDate(2011, 2, 1), {Entity_Match(), main});
    Entity_Org org;
    org.unpack({"Org", "Chief", "Japan", "note", "Elite", "bio", "Willing"}, {night}, {night}, roster,
               {{"Org World Championship", "Champ Text"}});
    QMultiMap<int, Entity_Fighter> free;
    free.insert(8000, man(30, "Free", "Free Agent"));
    const QList<Entity_Booking> bookings = {
        Entity_Booking(1059, "Pro Text", "Org: Text vs. TBA", "Org", QDate(2011, 2, 1))};
    out << qint32(1059) << QDate(2011, 1, 1) << manager << gym;
    StreamForm::writeList(out, QList<Entity_Fighter>{man(2000, "Student", "Free Agent")});
    StreamForm::writeList(out, QList<Entity_GymFighter>{pro});
    StreamForm::writeList(out, QList<Entity_Org>{org});
    StreamForm::writeMap(out, free);
    StreamForm::writeList(out, bookings);
    StreamForm::writeList(out, bookings);
    StreamForm::writeMap(out, free);
    return bytes;
}

} // namespace

// a corpus folder among the arguments is made when missing, and gets the small world as its first
// entry when it is empty
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    for (int i = 1; i < *argc; ++i) {
        const QString argument = QString::fromLocal8Bit((*argv)[i]);
        if (argument.startsWith('-') || QFileInfo(argument).isFile() || !QDir().mkpath(argument))
            continue;
        QDir folder(argument);
        if (!folder.isEmpty())
            continue;
        QFile seed(folder.filePath("small_world"));
        if (seed.open(QIODevice::WriteOnly))
            seed.write(seedWorld());
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    GameManager::instance().resetWorld();
    const QByteArray before = worldBytes();
    const QByteArray input(reinterpret_cast<const char *>(data), qsizetype(size));
    if (!load(input)) {
        if (worldBytes() != before)
            abort();
        return 0;
    }
    const QByteArray saved = worldBytes();
    if (!load(saved) || worldBytes() != saved)
        abort();
    return 0;
}
