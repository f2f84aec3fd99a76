#pragma once

#include "world/WorldSamples.h"

// A world with one night of the user's today: a stranger's match first, then his man's match
// for the organisation's world title, the main event. The men are as strong as a test asks.
namespace NightWorld {

const QString Org = QStringLiteral("Test FC");
const QString Title = QStringLiteral("Test FC World Championship");
const QString NightName = QStringLiteral("Test FC: Night of Belts");
const QDate Today(2011, 3, 5);

constexpr int GymId = 1100;
constexpr int OpponentId = 201;
constexpr int StrangerOneId = 202;
constexpr int StrangerTwoId = 203;
constexpr int Purse = 1000;

struct Setup {
    int gymLevel = 60;
    int opponentLevel = 60;
    // men who cannot hurt nor be hurt: every match goes to the judges
    bool stayers = false;
    // men who cannot be hurt but fight at their level: the better man wins on the cards
    bool unbreakable = false;
    bool strangersFirst = true;
    QString userMatchType = Entity_Match::ChampionshipMatch;
    // the manager
    int reputation = 95;
    int charisma = 1;
    int cornering = 7;
    int motivating = 5;
    int skillLevel = 2;
};

// every attribute at `level`; a stayer's durabilities are out of reach
template <typename Man> void setLevel(Man &man, int level, bool stayer, bool unbreakable = false)
{
    WorldSamples::setAll(man, stayer ? 0 : level);
    man.setNumber(Entity_Fighter::HeadDurability, stayer || unbreakable ? 1000 : level);
    man.setNumber(Entity_Fighter::BodyDurability, stayer || unbreakable ? 1000 : level);
    man.setText(Entity_Fighter::Nationality, "Japan");
    man.setText(Entity_Fighter::FightingBackground, "Kickboxing");
    man.setText(Entity_Fighter::FightingStyle, "Kicker");
}

inline Entity_Fighter rosterMan(int id, const QString &last, int score, int level, bool stayer,
                                bool unbreakable = false)
{
    Entity_Fighter man = WorldSamples::fighter(id, "Roster", last, score, Org);
    setLevel(man, level, stayer, unbreakable);
    return man;
}

inline Entity_Event night(const Setup &setup)
{
    QList<Entity_Match> card;
    const Entity_Match strangers =
        WorldSamples::slot(Entity_Match::SingleMatch, "Roster Alder", StrangerOneId, "Roster Birch", StrangerTwoId);
    const Entity_Match users =
        WorldSamples::slot(setup.userMatchType, "Gym Cedar", GymId, "Roster Dunn", OpponentId, true);
    if (setup.strangersFirst)
        card << strangers << users;
    else
        card << users;
    return WorldSamples::bookedEvent(WorldSamples::makeEvent(NightName, Org, Today, card, Title), true);
}

inline bool load(const Setup &setup = Setup())
{
    WorldSamples::World w;
    w.currentDate = Today;
    QList<int> values = w.manager.values();
    for (int skill = Entity_Manager::Punch; skill <= Entity_Manager::Intuition; ++skill)
        values[skill] = setup.skillLevel;
    values[Entity_Manager::ReputationValue] = setup.reputation;
    values[Entity_Manager::Charisma] = setup.charisma;
    values[Entity_Manager::Cornering] = setup.cornering;
    values[Entity_Manager::Motivating] = setup.motivating;
    w.manager.unpack({"Test", "Manager", "Asia", "Japan", "Unknown"}, values, {});

    Entity_GymFighter gymMan = WorldSamples::gymFighter(GymId, "Gym", "Cedar", 1000, Org, 4, Purse);
    setLevel(gymMan, setup.gymLevel, setup.stayers, setup.unbreakable);
    w.fighters << gymMan;
    w.bookings << Entity_Booking(GymId, gymMan.fullName(), NightName, Org, Today);

    const QList<Entity_Fighter> roster{
        rosterMan(OpponentId, "Dunn", 1000, setup.opponentLevel, setup.stayers, setup.unbreakable),
        rosterMan(StrangerOneId, "Alder", 1200, 50, setup.stayers),
        rosterMan(StrangerTwoId, "Birch", 1300, 50, setup.stayers)};
    w.organisations << WorldSamples::organisation(Org, {night(setup)}, roster, {{Title, "Vacant"}});
    return w.load();
}

inline QStringList storedResults()
{
    return WorldSamples::eventNamed(Org, NightName).results();
}

} // namespace NightWorld
