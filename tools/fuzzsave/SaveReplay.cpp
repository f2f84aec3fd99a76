#include "SaveReplay.h"

#include "fighters/Random.h"
#include "persistence/DefaultWorld.h"
#include "persistence/SaveFile.h"
#include "world/Entity_Event.h"
#include "world/Entity_Match.h"
#include "world/GameManager.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>

namespace {

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

QByteArray word(quint32 value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

} // namespace

SaveReplay::SaveReplay(const WorldState &start)
    : start(start)
    , startBytes(start.bytes())
{
}

SaveReplay::Result SaveReplay::replay(const QByteArray &input) const
{
    GameManager &game = GameManager::instance();
    game.takeWorld(start);
    Result result;
    QString reason;
    result.taken = SaveFile::loadBytes(input, &reason);
    if (!result.taken) {
        if (reason.isEmpty())
            result.fault = "refused without a reason";
        else if (game.state().bytes() != startBytes)
            result.fault = "refused (" + reason + "), but the running world changed";
        return result;
    }
    const QByteArray saved = game.state().bytes();
    if (!SaveFile::loadBytes(saved, &reason))
        result.fault = "taken, but its own save is refused: " + reason;
    else if (game.state().bytes() != saved)
        result.fault = "taken, but it saves to other bytes after a second load";
    return result;
}

WorldState SaveReplay::defaultWorld()
{
    GameManager &game = GameManager::instance();
    DefaultWorld::startPlainGame();
    const WorldState world = game.state();
    game.resetWorld();
    return world;
}

WorldState SaveReplay::smallWorld()
{
    WorldState world;
    world.nextId = 1059;
    Entity_Org::Roster roster;
    roster.insert(4020, man(20, "Champ", "Org"));
    roster.insert(4020, man(21, "Second", "Org"));
    Entity_Match main(Entity_Match::ChampionshipMatch);
    main.addFighter(20, "Champ Text", false);
    Entity_Event night({"Org: Text vs. TBA", "Org", "City", "Elite", "Championship Event", "Org World Championship"},
                       QDate(2011, 2, 1), {Entity_Match(), main});
    Entity_Event past = night;
    past.addResults({"Championship Match - Champ Text defeated Second Text by KO(Hook) in 0:30 of Round 1."});
    Entity_Org org;
    org.unpack({"Org", "Chief", "Japan", "note", "Elite", "bio", "Willing"}, {night}, {past}, roster,
               {{"Org World Championship", "Champ Text"}});
    world.students = {man(2000, "Student", "Free Agent")};
    world.fighters = {Entity_GymFighter(man(1059, "Pro", "Org"))};
    world.organisations = {org};
    world.freeAgents.insert(8000, man(30, "Free", "Free Agent"));
    world.freeAgents.insert(8000, man(31, "Loose", "Free Agent"));
    world.offers = {Entity_Booking(1059, "Pro Text", "Org: Text vs. TBA", "Org", QDate(2011, 2, 1))};
    world.bookings = world.offers;
    world.amateurs.insert(8000, man(40, "Boy", "Free Agent"));
    return world;
}

QList<QByteArray> SaveReplay::damagedCopies(const QByteArray &save, int headCuts, int spreadCuts, int flips,
                                            quint32 seed)
{
    QList<QByteArray> copies;
    const int size = int(save.size());
    for (int cut = 0; cut < std::min(headCuts, size); ++cut)
        copies.append(save.left(cut));
    for (int i = 1; i < spreadCuts; ++i)
        copies.append(save.left(int(qint64(size) * i / spreadCuts)));
    copies.append(save.left(size - 1));
    Random::useTestClock(seed);
    for (int i = 0; i < flips && size > 0; ++i) {
        QByteArray damaged = save;
        const int at = qrand() % size;
        damaged[at] = char(damaged[at] ^ (1 + qrand() % 255));
        copies.append(damaged);
    }
    // a count, or a length, of four billion where the reader expects a small number
    for (int i = 0; i < flips / 4 && size >= 4; ++i) {
        QByteArray damaged = save;
        damaged.replace(qrand() % (size - 3), 4, word(0xFFFFFFF0));
        copies.append(damaged);
    }
    copies.append(save + QByteArray("more"));
    copies.append(save + save);
    return copies;
}
