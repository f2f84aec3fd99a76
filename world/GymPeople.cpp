#include "world/GymPeople.h"

#include "fighters/GameLists.h"
#include "fighters/GymRoutine.h"
#include "fighters/ResultEntry.h"
#include "world/RetirementTable.h"
#include "world/WorldState.h"

namespace {

constexpr const char *NoRecord = GameLists::NoRecord;
// the mark between a title and the start of its reign
const QString ReignFrom = QStringLiteral(" - from ");
const QDate noBirthDate(2000, 1, 1);

// what the screens show for a place that holds nobody
template <typename T> QList<T> repeated(int count, const T &value)
{
    return QList<T>(count, value);
}

void emptyPack(QStringList &strings, QList<int> &integers, QDate &birth, Entity_Fighter::History &history,
               QStringList &titles)
{
    strings = repeated<QString>(Entity_Fighter::TextCount, NoRecord);
    integers = repeated(int(Entity_Fighter::NumberCount), 0);
    birth = noBirthDate;
    history.clear();
    titles.clear();
}

void fullPack(const Entity_Fighter &fighter, QStringList &strings, QList<int> &integers, QDate &birth,
              Entity_Fighter::History &history, QStringList &titles)
{
    strings.clear();
    integers.clear();
    fighter.pack(strings, integers, birth, history, titles);
}

void emptyLook(QStringList &colours, QList<int> &images)
{
    colours = {"Red", "Black", "Brown"};
    images = {1, 1, 1};
}

} // namespace

GymPeople::GymPeople(WorldState &world)
    : world(world)
{
}

bool GymPeople::isFighterIndex(int index) const
{
    return index >= 0 && index < world.fighters.size();
}

bool GymPeople::isStudentIndex(int index) const
{
    return index >= 0 && index < world.students.size();
}

QStringList GymPeople::fighterNames() const
{
    QStringList names;
    for (const Entity_GymFighter &fighter : world.fighters)
        names.append(fighter.fullName());
    return names;
}

QStringList GymPeople::studentNames() const
{
    QStringList names;
    for (const Entity_Fighter &student : world.students)
        names.append(student.fullName());
    return names;
}

QList<int> GymPeople::fighterIds() const
{
    QList<int> ids;
    for (const Entity_GymFighter &fighter : world.fighters)
        ids.append(fighter.getId());
    return ids;
}

QStringList GymPeople::fighterStrings(int index) const
{
    if (!isFighterIndex(index))
        return repeated<QString>(Entity_Fighter::TextCount - 1, NoRecord);
    return world.fighters[index].stringList();
}

QList<int> GymPeople::fighterInts(int index) const
{
    if (!isFighterIndex(index))
        return repeated(Entity_Fighter::NumberCount - 1, 0);
    return world.fighters[index].integerList();
}

QList<int> GymPeople::fighterExtras(int index) const
{
    if (!isFighterIndex(index))
        return repeated(Entity_GymFighter::ExtraCount, 0);
    return world.fighters[index].extras();
}

void GymPeople::fighterTraining(int index, QList<int> &progress, QStringList &log) const
{
    if (!isFighterIndex(index)) {
        progress = repeated(Entity_GymFighter::ProgressCount, 0);
        log.clear();
        return;
    }
    progress = world.fighters[index].progress();
    log = world.fighters[index].trainingLog;
}

void GymPeople::fighterPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                            Entity_Fighter::History &history, QStringList &titles) const
{
    if (isFighterIndex(index))
        fullPack(world.fighters[index], strings, integers, birth, history, titles);
    else
        emptyPack(strings, integers, birth, history, titles);
}

void GymPeople::studentPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                            Entity_Fighter::History &history, QStringList &titles) const
{
    if (isStudentIndex(index))
        fullPack(world.students[index], strings, integers, birth, history, titles);
    else
        emptyPack(strings, integers, birth, history, titles);
}

Entity_GymFighter GymPeople::fighterById(int id) const
{
    const qsizetype index = world.fighterIndexOf(id);
    if (index >= 0)
        return world.fighters[index];
    // made once, so that a failing lookup rolls no dice
    static const Entity_GymFighter nobody = [] {
        Entity_GymFighter empty;
        empty.unpackExtras(repeated(Entity_GymFighter::ExtraCount, 0), repeated(Entity_GymFighter::ProgressCount, 0),
                           {});
        return empty;
    }();
    return nobody;
}

int GymPeople::fighterIdAt(int index) const
{
    return isFighterIndex(index) ? world.fighters[index].getId() : 0;
}

void GymPeople::setFighterBio(int index, const QString &text)
{
    if (isFighterIndex(index))
        world.fighters[index].setBio(text);
}

void GymPeople::fighterLook(int indexOrId, QStringList &colours, QList<int> &images) const
{
    // ids start far above 9, so a small number can only be a place in the list
    const qsizetype index = indexOrId <= 9 ? indexOrId : world.fighterIndexOf(indexOrId);
    if (index >= 0 && index < world.fighters.size())
        world.fighters[index].appearance(colours, images);
    else
        emptyLook(colours, images);
}

void GymPeople::studentLook(int index, QStringList &colours, QList<int> &images) const
{
    if (isStudentIndex(index))
        world.students[index].appearance(colours, images);
    else
        emptyLook(colours, images);
}

bool GymPeople::promoteStudent(int index)
{
    if (!isStudentIndex(index) || world.fighters.size() >= world.gym.value(Entity_Gym::FighterSlots))
        return false;
    QStringList strings;
    QList<int> integers;
    QDate birth;
    Entity_Fighter::History history;
    QStringList titles;
    world.students[index].pack(strings, integers, birth, history, titles);
    integers[Entity_Fighter::Id] = ++world.nextId;

    // fresh learning speed and marketability; no fatigue, reputation or plan
    Entity_GymFighter fighter;
    fighter.unpack(strings, integers, birth, history, titles);
    world.fighters.append(fighter);
    // on no event yet: his record shows "N/A" and today's date until his first booking
    world.bookings.append(Entity_Booking::emptyFor(world.nextId, fighter.fullName(), world.currentDate));
    world.students.removeAt(index);
    return true;
}

void GymPeople::addUserRankingScore(int id, int delta)
{
    const qsizetype index = world.fighterIndexOf(id);
    if (index >= 0)
        world.fighters[index].addToRankingScore(delta);
}

void GymPeople::recordGymResult(int id, const QString &entry, const QString &matchType)
{
    const qsizetype index = world.fighterIndexOf(id);
    if (index < 0)
        return;
    Entity_GymFighter &fighter = world.fighters[index];
    QString line = entry;
    fighter.addResult(world.currentDate, line, matchType);

    const ResultEntry result(entry);
    if (result.isWin()) {
        world.manager.addWin();
        if (result.isTitleFight())
            world.manager.addTitle(world.currentDate, result.title());
    } else if (result.isLoss()) {
        world.manager.addLoss();
        if (result.isTitleFight())
            world.manager.closeTitle(world.currentDate, result.title());
    }
    // a man whose contract ended with this fight has left with the belt
    if (result.isTitleFight() && fighter.text(Entity_Fighter::Organisation) == QLatin1String(GameLists::FreeAgent))
        world.manager.closeTitle(world.currentDate, result.title());
}

bool GymPeople::applyMatchOutcome(const QList<int> &statistics, int id, const QString &entry)
{
    const qsizetype index = world.fighterIndexOf(id);
    if (index < 0)
        return false;
    Entity_GymFighter &fighter = world.fighters[index];
    fighter.addMatchExperience(statistics, entry);

    int purse = fighter.fightPurse;
    bool levelUp = false;
    const ResultEntry result(entry);
    if (result.isWin()) {
        purse *= 2;
        world.gym.gainPrestige(result.byKnockout());
        // a world title or this year's tournament makes a big win
        const QString &title = result.title();
        const bool titleFight =
            title.contains(QString::number(world.currentDate.year())) || title.contains("World Championship");
        levelUp = world.manager.gainReputation(titleFight);
    } else if (result.isLoss()) {
        world.gym.losePrestige(result.byKnockout());
    }
    world.gym.addIncome(purse, true);
    return levelUp;
}

QStringList GymPeople::trainAllFighters()
{
    return GymRoutine::trainAll(world.fighters, world.gym, world.manager, world.currentDate);
}

void GymPeople::setTrainingPlan(int fighterId, int plan)
{
    const qsizetype index = world.fighterIndexOf(fighterId);
    if (index >= 0)
        world.fighters[index].trainingPlan = plan;
}

void GymPeople::trimTrainingLogs()
{
    GymRoutine::trimTrainingLogs(world.fighters);
}

int GymPeople::ageUserFighters(QStringList &news)
{
    int retired = 0;
    for (int i = 0; i < world.fighters.size();) {
        Entity_GymFighter &man = world.fighters[i];
        GymRoutine::celebrateBirthday(man, world.currentDate, news);
        // a man with no roll cannot retire; one whose organisation holds a show today stays,
        // without a word
        if (RetirementTable::retires(RetirementTable::GymFighter, man.number(Entity_Fighter::Age)) &&
            releasedForRetirement(man)) {
            news << man.fullName() + " has retired.";
            removeGymFighter(i);
            ++retired;
            continue;
        }
        ++i;
    }
    GymRoutine::celebrateStudentBirthdays(world.students, world.currentDate, news);
    return retired;
}

bool GymPeople::releasedForRetirement(const Entity_GymFighter &man)
{
    Entity_Org *organisation = world.organisationNamed(man.text(Entity_Fighter::Organisation));
    return !organisation ||
           organisation->retireGymFighter(man.fullName(), man.getId(), world.currentDate.year() - 1, world.currentDate);
}

// --- Men who leave the gym -------------------------------------------------------------------------

void GymPeople::exportFighter(QDataStream &out, int index) const
{
    if (isFighterIndex(index))
        out << world.fighters[index].fighter();
}

bool GymPeople::retireFighter(int index)
{
    if (!isFighterIndex(index))
        return true;
    const Entity_GymFighter &man = world.fighters[index];
    // his organisation takes him off its next card, unless it holds a show today
    if (!releasedForRetirement(man))
        return false;
    // a world champion who retires ends the manager's reign on that belt
    for (const QString &title : man.titleList()) {
        if (title.contains("World Championship") && !title.contains("until"))
            world.manager.closeTitle(world.currentDate, title.section(ReignFrom, 0, 0));
    }
    const int id = man.getId();
    world.offers.removeIf([id](const Entity_Booking &offer) { return offer.fighterId() == id; });
    removeGymFighter(index);
    return true;
}

void GymPeople::removeGymFighter(qsizetype index)
{
    const Entity_GymFighter &man = world.fighters[index];
    world.manager.removeFromActiveRecord(man.number(Entity_Fighter::Wins), man.number(Entity_Fighter::Losses));
    const int id = man.getId();
    world.bookings.removeIf([id](const Entity_Booking &booking) { return booking.fighterId() == id; });
    world.fighters.removeAt(index);
}
