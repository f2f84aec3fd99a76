#include "world/WorldRosters.h"

#include "fighters/GameLists.h"

#include "fighters/Random.h"
#include "fighters/ReputationScale.h"
#include "world/PrestigeTable.h"
#include "world/RetirementTable.h"
#include "world/WorldState.h"

namespace {

// an organisation lets at most this many men go in one night
constexpr int RetirementsANight = 4;
// below this many free agents, new talent comes ...
constexpr int FewestFreeAgents = 20;
// ... once the default amateurs have had their time
constexpr int LastYearWithoutTalent = 2020;
constexpr int ProfessionalAge = 18;
// a new professional stands this far behind the last free agent, and each further one of the
// night as far behind him
constexpr int NewProfessionalStep = 100;

// his birthday's line, with the age that he turns tonight
QString birthdayLine(const Entity_Fighter &man, int age)
{
    Entity_Fighter older = man;
    older.setNumber(Entity_Fighter::Age, age);
    return older.birthdayLine();
}

// takes the man of that id out from among those of that key
void takeOut(QMultiMap<int, Entity_Fighter> &pool, int key, int id)
{
    for (auto it = pool.find(key); it != pool.end() && it.key() == key; ++it) {
        if (it->getId() == id) {
            pool.erase(it);
            return;
        }
    }
}

} // namespace

WorldRosters::WorldRosters(WorldState &world)
    : world(world)
{
}

QStringList WorldRosters::organisationNames() const
{
    QStringList names;
    for (const Entity_Org &org : world.organisations)
        names.append(org.name());
    return names;
}

QStringList WorldRosters::organisationTexts(const QString &orgName) const
{
    QStringList texts;
    if (const Entity_Org *org = world.organisationNamed(orgName))
        org->strings(texts);
    return texts;
}

Entity_Org WorldRosters::organisation(const QString &orgName) const
{
    const Entity_Org *org = world.organisationNamed(orgName);
    return org ? *org : Entity_Org();
}

void WorldRosters::organisationRanking(const QString &orgName, QMultiMap<int, QString> &ranking) const
{
    const Entity_Org *org = world.organisationNamed(orgName);
    if (!org)
        return;
    Entity_Org::Roster copy;
    org->rosterCopy(copy);
    for (const Entity_GymFighter &fighter : world.fighters) {
        if (fighter.text(Entity_Fighter::Organisation) == orgName)
            copy.insert(fighter.getRankingScore(), fighter.fighter());
    }
    // inserted one after the other: among equal scores the last one in stands first
    for (auto it = copy.cbegin(); it != copy.cend(); ++it)
        ranking.insert(it.key(), it.value().fullName());
}

Entity_Fighter WorldRosters::rosterFighter(const QString &orgName, int id) const
{
    const Entity_Org *org = world.organisationNamed(orgName);
    return org ? org->rosterFighter(id) : Entity_Fighter();
}

void WorldRosters::addRankingScore(const QString &orgName, int id, int delta)
{
    if (Entity_Org *org = world.organisationNamed(orgName))
        org->addRankingScore(id, delta);
}

void WorldRosters::recordRosterMatch(const QString &orgName, int id, const QString &entry, const QString &matchType)
{
    if (Entity_Org *org = world.organisationNamed(orgName))
        org->recordMatch(world.currentDate, id, entry, matchType);
}

void WorldRosters::setTitleHolder(const QString &orgName, const QString &title, int winnerId, bool isGymFighter)
{
    Entity_Org *org = world.organisationNamed(orgName);
    if (!org)
        return;
    QString holder;
    if (!isGymFighter) {
        if (!org->holdsFighter(winnerId))
            return;
        holder = org->rosterFighter(winnerId).fullName();
    } else {
        const qsizetype index = world.fighterIndexOf(winnerId);
        if (index < 0)
            return;
        const Entity_GymFighter &winner = world.fighters[index];
        // a man whose contract ended with this very fight cannot keep a world title
        const bool leftWithTheBelt = winner.text(Entity_Fighter::Organisation) == QLatin1String(GameLists::FreeAgent) &&
                                     title.contains("World Championship");
        holder = leftWithTheBelt ? QString(Entity_Org::VacantTitle) : winner.fullName();
    }
    org->setTitle(title, holder);
}

void WorldRosters::dropOldTitles()
{
    for (Entity_Org &org : world.organisations)
        org.dropOldTitles(world.currentDate);
}

void WorldRosters::refreshReputations(const QString &orgName)
{
    if (Entity_Org *org = world.organisationNamed(orgName))
        org->refreshReputations();
}

int WorldRosters::freeAgentCount() const
{
    return int(world.freeAgents.size());
}

int WorldRosters::amateurCount() const
{
    return int(world.amateurs.size());
}

Entity_Fighter WorldRosters::amateurById(int id) const
{
    for (const Entity_Fighter &amateur : world.amateurs) {
        if (amateur.getId() == id)
            return amateur;
    }
    return Entity_Fighter();
}

// --- Signings ----------------------------------------------------------------------------------------

int WorldRosters::signFreeAgents(QStringList &news)
{
    int signings = 0;
    for (Entity_Org &organisation : world.organisations) {
        const int famousBelow = PrestigeTable::row(organisation.prestige()).famousBelow;
        // the walk goes over a copy: a man signed leaves the list under it
        const QMultiMap<int, Entity_Fighter> pool = world.freeAgents;
        for (auto it = pool.cbegin(); it != pool.cend(); ++it) {
            const Entity_Fighter &man = it.value();
            // a short roster looks at everybody, a full one only at the famous
            const bool looks = organisation.rosterSize() < Entity_Org::ShortRoster ||
                               ReputationScale::placeOnRankingScale(man.text(Entity_Fighter::Reputation)) < famousBelow;
            if (!looks || !organisation.wantsFighter(man))
                continue;
            organisation.signFighter(man);
            news << man.fullName() + " has been signed by " + organisation.name() + ".";
            takeOut(world.freeAgents, it.key(), man.getId());
            ++signings;
            // so an organisation of that size signs one famous man a night at most
            if (organisation.rosterSize() >= Entity_Org::ShortRoster)
                break;
        }
    }
    return signings;
}

// --- The ageing of the world ---------------------------------------------------------------------------

WorldRosters::Ageing WorldRosters::ageWorld(QStringList &news, const std::function<QString()> &makeNewTalent)
{
    Ageing moves;
    const QDate today = world.currentDate;
    const int lastYear = today.year() - 1;

    for (Entity_Org &organisation : world.organisations) {
        const Entity_Org::Roster roster = organisation.rosterSnapshot();
        int retired = 0;
        for (const Entity_Fighter &man : std::as_const(roster)) {
            const int age = man.ageWithBirthday(today);
            const bool birthday = age != man.number(Entity_Fighter::Age);
            if (birthday)
                news << birthdayLine(man, age);
            // the one clock seed of each roster fighter
            Random::seedFromClock();
            if (RetirementTable::retires(RetirementTable::RosterFighter, age)) {
                if (organisation.retireRosterFighter(man.getId(), lastYear, today)) {
                    news << man.fullName() + " has retired from " + organisation.name();
                    ++moves.retirements;
                    // the rest of the roster neither ages nor develops tonight
                    if (++retired == RetirementsANight)
                        break;
                    continue;
                }
                // a man kept for a show of today tries again tomorrow; his year comes all the same,
                // so that his age never falls behind
            }
            if (birthday)
                organisation.developFighter(man.getId());
        }
    }

    // the free agents draw on without a seed of their own
    int lastKey = 0;
    for (auto it = world.freeAgents.begin(); it != world.freeAgents.end();) {
        lastKey = it.key();
        Entity_Fighter &man = it.value();
        const int age = man.ageWithBirthday(today);
        const bool birthday = age != man.number(Entity_Fighter::Age);
        if (birthday)
            news << birthdayLine(man, age);
        if (RetirementTable::retires(RetirementTable::FreeAgent, age)) {
            news << man.fullName() + " has retired.";
            ++moves.retirements;
            it = world.freeAgents.erase(it);
            continue;
        }
        if (birthday)
            man.developOneYear();
        ++it;
    }

    if (world.freeAgents.size() < FewestFreeAgents && today.year() > LastYearWithoutTalent) {
        const QString name = makeNewTalent();
        if (!name.isEmpty()) {
            news << name + " has come of age and turned professional.";
            ++moves.newTalent;
        }
    }

    // an amateur of 18 starts at the end of the free agents, with his own ranking score kept
    int key = lastKey;
    for (auto it = world.amateurs.begin(); it != world.amateurs.end();) {
        Entity_Fighter &man = it.value();
        const int age = man.ageWithBirthday(today);
        const bool birthday = age != man.number(Entity_Fighter::Age);
        if (age == ProfessionalAge) {
            man.developOneYear();
            man.setContract(GameLists::FreeAgent, 0);
            key += NewProfessionalStep;
            world.freeAgents.insert(key, man);
            news << man.fullName() + " has come of age and turned professional.";
            ++moves.newProfessionals;
            it = world.amateurs.erase(it);
            continue;
        }
        if (birthday)
            man.developOneYear();
        ++it;
    }
    return moves;
}
