#include "world/GameManager.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"
#include "fighters/GameLists.h"
#include "fighters/ResultEntry.h"
#include "fighters/StreamForm.h"
#include "world/BookingRound.h"

#include <algorithm>

#include "persistence/DefaultWorld.h"
#include "persistence/FighterGenerator.h"

namespace {

constexpr const char *NoRecord = GameLists::NoRecord;
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

GameManager &GameManager::instance()
{
    static GameManager world;
    return world;
}

GameManager::GameManager()
{
    resetWorld();
}

GameManager::~GameManager() = default;

void GameManager::resetWorld()
{
    manager = std::make_unique<Entity_Manager>();
    gym = std::make_unique<Entity_Gym>();
    nextId = 1058;
    currentDate = QDate(2011, 1, 1);
    students.clear();
    fighters.clear();
    organisations.clear();
    freeAgents.clear();
    offers.clear();
    bookings.clear();
    amateurs.clear();
}

// --- Lookups ---------------------------------------------------------------------------------------

Entity_Org *GameManager::findOrganisation(const QString &name)
{
    const auto it = std::find_if(organisations.begin(), organisations.end(),
                                 [&](const Entity_Org &org) { return org.name() == name; });
    return it != organisations.end() ? &*it : nullptr;
}

const Entity_Org *GameManager::findOrganisation(const QString &name) const
{
    const auto it = std::find_if(organisations.cbegin(), organisations.cend(),
                                 [&](const Entity_Org &org) { return org.name() == name; });
    return it != organisations.cend() ? &*it : nullptr;
}

qsizetype GameManager::fighterIndexOf(int id) const
{
    for (qsizetype i = 0; i < fighters.size(); ++i) {
        if (fighters[i].getId() == id)
            return i;
    }
    return -1;
}

template <typename Test> QList<Entity_Event> GameManager::eventsWhere(Test test) const
{
    QList<Entity_Event> found;
    for (const Entity_Org &org : organisations) {
        QList<Entity_Event> calendar;
        org.events(calendar);
        for (const Entity_Event &event : calendar) {
            if (test(event))
                found.append(event);
        }
    }
    return found;
}

// --- The calendar and the day ----------------------------------------------------------------------

void GameManager::advanceDate()
{
    currentDate = currentDate.addDays(1);
}

QList<Entity_Event> GameManager::todaysWorldEvents() const
{
    return eventsWhere([&](const Entity_Event &e) { return e.date() == currentDate && !e.isUserBooked(); });
}

QList<Entity_Event> GameManager::todaysUserEvents() const
{
    // a fight night is held once: its results mark it as fought
    return eventsWhere(
        [&](const Entity_Event &e) { return e.date() == currentDate && e.isUserBooked() && e.results().isEmpty(); });
}

void GameManager::storeEventResults(const QStringList &lines, const QString &eventName, const QString &orgName)
{
    if (Entity_Org *org = findOrganisation(orgName))
        org->storeResults(lines, eventName, currentDate);
}

void GameManager::refreshReputations(const QString &orgName)
{
    if (Entity_Org *org = findOrganisation(orgName))
        org->refreshReputations();
}

void GameManager::rollOverEvents()
{
    for (Entity_Org &org : organisations)
        org.rollOverEvents();
}

void GameManager::dropOldTitles()
{
    for (Entity_Org &org : organisations)
        org.dropOldTitles(currentDate);
}

// --- Organisations and rosters ---------------------------------------------------------------------

QStringList GameManager::organisationNames() const
{
    QStringList names;
    for (const Entity_Org &org : organisations)
        names.append(org.name());
    return names;
}

QStringList GameManager::organisationTexts(const QString &orgName) const
{
    QStringList texts;
    if (const Entity_Org *org = findOrganisation(orgName))
        org->strings(texts);
    return texts;
}

Entity_Org GameManager::organisation(const QString &orgName) const
{
    const Entity_Org *org = findOrganisation(orgName);
    return org ? *org : Entity_Org();
}

void GameManager::organisationRanking(const QString &orgName, QMultiMap<int, QString> &ranking) const
{
    const Entity_Org *org = findOrganisation(orgName);
    if (!org)
        return;
    Entity_Org::Roster copy;
    org->rosterCopy(copy);
    for (const Entity_GymFighter &fighter : fighters) {
        if (fighter.text(Entity_Fighter::Organisation) == orgName)
            copy.insert(fighter.getRankingScore(), fighter.fighter());
    }
    // inserted one after the other: among equal scores the last one in stands first
    for (auto it = copy.cbegin(); it != copy.cend(); ++it)
        ranking.insert(it.key(), it.value().fullName());
}

Entity_Fighter GameManager::rosterFighter(const QString &orgName, int id) const
{
    const Entity_Org *org = findOrganisation(orgName);
    return org ? org->rosterFighter(id) : Entity_Fighter();
}

void GameManager::addRankingScore(const QString &orgName, int id, int delta)
{
    if (Entity_Org *org = findOrganisation(orgName))
        org->addRankingScore(id, delta);
}

void GameManager::addUserRankingScore(int id, int delta)
{
    const qsizetype index = fighterIndexOf(id);
    if (index >= 0)
        fighters[index].addToRankingScore(delta);
}

void GameManager::recordRosterMatch(const QString &orgName, int id, const QString &entry, const QString &matchType)
{
    if (Entity_Org *org = findOrganisation(orgName))
        org->recordMatch(currentDate, id, entry, matchType);
}

void GameManager::recordGymResult(int id, const QString &entry, const QString &matchType)
{
    const qsizetype index = fighterIndexOf(id);
    if (index < 0)
        return;
    Entity_GymFighter &fighter = fighters[index];
    QString line = entry;
    fighter.addResult(currentDate, line, matchType);

    const ResultEntry result(entry);
    if (result.isWin()) {
        manager->addWin();
        if (result.isTitleFight())
            manager->addTitle(currentDate, result.title());
    } else if (result.isLoss()) {
        manager->addLoss();
        if (result.isTitleFight())
            manager->closeTitle(currentDate, result.title());
    }
    // a man whose contract ended with this fight has left with the belt
    if (result.isTitleFight() && fighter.text(Entity_Fighter::Organisation) == QLatin1String("Free Agent"))
        manager->closeTitle(currentDate, result.title());
}

void GameManager::setTitleHolder(const QString &orgName, const QString &title, int winnerId, bool isGymFighter)
{
    Entity_Org *org = findOrganisation(orgName);
    if (!org)
        return;
    QString holder;
    if (!isGymFighter) {
        if (!org->holdsFighter(winnerId))
            return;
        holder = org->rosterFighter(winnerId).fullName();
    } else {
        const qsizetype index = fighterIndexOf(winnerId);
        if (index < 0)
            return;
        const Entity_GymFighter &winner = fighters[index];
        // a man whose contract ended with this very fight cannot keep a world title
        const bool leftWithTheBelt = winner.text(Entity_Fighter::Organisation) == QLatin1String("Free Agent") &&
                                     title.contains("World Championship");
        holder = leftWithTheBelt ? QString(Entity_Org::VacantTitle) : winner.fullName();
    }
    org->setTitle(title, holder);
}

// --- The user's side -------------------------------------------------------------------------------

QStringList GameManager::fighterNames() const
{
    QStringList names;
    for (const Entity_GymFighter &fighter : fighters)
        names.append(fighter.fullName());
    return names;
}

QStringList GameManager::studentNames() const
{
    QStringList names;
    for (const Entity_Fighter &student : students)
        names.append(student.fullName());
    return names;
}

QList<int> GameManager::fighterIds() const
{
    QList<int> ids;
    for (const Entity_GymFighter &fighter : fighters)
        ids.append(fighter.getId());
    return ids;
}

QStringList GameManager::fighterStrings(int index) const
{
    if (!isFighterIndex(index))
        return repeated<QString>(Entity_Fighter::TextCount - 1, NoRecord);
    return fighters[index].stringList();
}

QList<int> GameManager::fighterInts(int index) const
{
    if (!isFighterIndex(index))
        return repeated(Entity_Fighter::NumberCount - 1, 0);
    return fighters[index].integerList();
}

QList<int> GameManager::fighterExtras(int index) const
{
    if (!isFighterIndex(index))
        return repeated(Entity_GymFighter::ExtraCount, 0);
    return fighters[index].extras();
}

void GameManager::fighterTraining(int index, QList<int> &progress, QStringList &log) const
{
    if (!isFighterIndex(index)) {
        progress = repeated(Entity_GymFighter::ProgressCount, 0);
        log.clear();
        return;
    }
    progress = fighters[index].progress();
    log = fighters[index].trainingLog;
}

void GameManager::fighterPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                              Entity_Fighter::History &history, QStringList &titles) const
{
    if (isFighterIndex(index))
        fullPack(fighters[index], strings, integers, birth, history, titles);
    else
        emptyPack(strings, integers, birth, history, titles);
}

void GameManager::studentPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                              Entity_Fighter::History &history, QStringList &titles) const
{
    if (isStudentIndex(index))
        fullPack(students[index], strings, integers, birth, history, titles);
    else
        emptyPack(strings, integers, birth, history, titles);
}

Entity_GymFighter GameManager::fighterById(int id) const
{
    const qsizetype index = fighterIndexOf(id);
    if (index >= 0)
        return fighters[index];
    // made once, so that a failing lookup rolls no dice
    static const Entity_GymFighter nobody = [] {
        Entity_GymFighter empty;
        empty.unpackExtras(repeated(Entity_GymFighter::ExtraCount, 0), repeated(Entity_GymFighter::ProgressCount, 0),
                           {});
        return empty;
    }();
    return nobody;
}

int GameManager::fighterIdAt(int index) const
{
    return isFighterIndex(index) ? fighters[index].getId() : 0;
}

void GameManager::setFighterBio(int index, const QString &text)
{
    if (isFighterIndex(index))
        fighters[index].setBio(text);
}

void GameManager::fighterLook(int indexOrId, QStringList &colours, QList<int> &images) const
{
    // ids start far above 9, so a small number can only be a place in the list
    const qsizetype index = indexOrId <= 9 ? indexOrId : fighterIndexOf(indexOrId);
    if (index >= 0 && index < fighters.size())
        fighters[index].appearance(colours, images);
    else
        emptyLook(colours, images);
}

void GameManager::studentLook(int index, QStringList &colours, QList<int> &images) const
{
    if (isStudentIndex(index))
        students[index].appearance(colours, images);
    else
        emptyLook(colours, images);
}

bool GameManager::promoteStudent(int index)
{
    if (!isStudentIndex(index) || fighters.size() >= gym->value(Entity_Gym::FighterSlots))
        return false;
    QStringList strings;
    QList<int> integers;
    QDate birth;
    Entity_Fighter::History history;
    QStringList titles;
    students[index].pack(strings, integers, birth, history, titles);
    integers[Entity_Fighter::Id] = ++nextId;

    // fresh learning speed and marketability; no fatigue, reputation or plan
    Entity_GymFighter fighter;
    fighter.unpack(strings, integers, birth, history, titles);
    fighters.append(fighter);
    // on no event yet: his record shows "N/A" and today's date until his first booking
    bookings.append(Entity_Booking::emptyFor(nextId, fighter.fullName(), currentDate));
    students.removeAt(index);
    return true;
}

bool GameManager::applyMatchOutcome(const QList<int> &statistics, int id, const QString &entry)
{
    const qsizetype index = fighterIndexOf(id);
    if (index < 0)
        return false;
    Entity_GymFighter &fighter = fighters[index];
    fighter.addMatchExperience(statistics, entry);

    int purse = fighter.fightPurse;
    bool levelUp = false;
    const ResultEntry result(entry);
    if (result.isWin()) {
        purse *= 2;
        gym->gainPrestige(result.byKnockout());
        // a world title or this year's tournament makes a big win
        const QString &title = result.title();
        const bool titleFight =
            title.contains(QString::number(currentDate.year())) || title.contains("World Championship");
        levelUp = manager->gainReputation(titleFight);
    } else if (result.isLoss()) {
        gym->losePrestige(result.byKnockout());
    }
    gym->addIncome(purse, true);
    return levelUp;
}

void GameManager::collectStudentFees()
{
    const int fee = gym->studentFee();
    for (qsizetype i = 0; i < students.size(); ++i)
        gym->addIncome(fee, false);
}

// --- Bookings --------------------------------------------------------------------------------------

void GameManager::replaceBooking(const Entity_Booking &record)
{
    for (Entity_Booking &booking : bookings) {
        if (booking.fighterId() == record.fighterId()) {
            booking = record;
            return;
        }
    }
}

void GameManager::clearBooking(int id)
{
    for (Entity_Booking &booking : bookings) {
        if (booking.fighterId() == id) {
            booking = Entity_Booking::emptyFor(id, booking.fighterName(), Entity_Booking().eventDate());
            return;
        }
    }
}

QMap<QString, QString> GameManager::bookingsByFighter() const
{
    QMap<QString, QString> byFighter;
    for (const Entity_Booking &booking : bookings)
        byFighter.insert(booking.fighterName(), booking.eventName() + " - " + booking.dateText());
    return byFighter;
}

void GameManager::removeOffersForEvent(const QString &eventName)
{
    offers.removeIf([&](const Entity_Booking &offer) { return offer.eventName() == eventName; });
}

QStringList GameManager::bookEvents()
{
    return BookingRound(*this).run();
}

// --- The gym and the manager -----------------------------------------------------------------------

Entity_Gym GameManager::gymRecord() const
{
    return *gym;
}

Entity_Manager GameManager::managerRecord() const
{
    return *manager;
}

void GameManager::gymPack(QStringList &strings, QList<int> &values, QList<int> &ledger) const
{
    gym->pack(strings, values, ledger);
}

void GameManager::managerPack(QStringList &strings, QList<int> &values, QStringList &titles) const
{
    manager->pack(strings, values, titles);
}

void GameManager::setGym(const QStringList &strings, const QList<int> &values, const QList<int> &ledger)
{
    gym->unpack(strings, values, ledger);
}

void GameManager::setManager(const QStringList &strings, const QList<int> &values, const QStringList &titles)
{
    manager->unpack(strings, values, titles);
}

QList<int> GameManager::gymValues() const
{
    return gym->values();
}

QList<int> GameManager::managerValues() const
{
    return manager->values();
}

void GameManager::rollGymMonth()
{
    gym->rollMonth();
}

bool GameManager::upgradeEquipment(int equipment)
{
    return gym->upgradeEquipment(equipment);
}

bool GameManager::upgradeGym()
{
    return gym->upgradeGym();
}

void GameManager::setManagerSkills(const QList<int> &skills)
{
    manager->setSkills(skills);
}

// --- The first world and saves ---------------------------------------------------------------------

void GameManager::loadDefaultWorld()
{
    DefaultWorld::load(*this);
}

bool GameManager::generateFighter(QString &nameOut, bool forGym)
{
    return FighterGenerator::generate(*this, nameOut, forGym);
}

void GameManager::writeTo(QDataStream &out) const
{
    out << qint32(nextId) << currentDate << *manager << *gym;
    StreamForm::writeList(out, students);
    StreamForm::writeList(out, fighters);
    StreamForm::writeList(out, organisations);
    StreamForm::writeMap(out, freeAgents);
    StreamForm::writeList(out, offers);
    StreamForm::writeList(out, bookings);
    StreamForm::writeMap(out, amateurs);
}

bool GameManager::readFrom(QDataStream &in, QString *reason)
{
    // everything goes into locals first: a file that fails halfway must not leave half a world
    qint32 id = 0;
    QDate date;
    Entity_Manager readManager;
    Entity_Gym readGym;
    QList<Entity_Fighter> readStudents;
    QList<Entity_GymFighter> readFighters;
    QList<Entity_Org> readOrganisations;
    QMultiMap<int, Entity_Fighter> readFreeAgents;
    QList<Entity_Booking> readOffers;
    QList<Entity_Booking> readBookings;
    QMultiMap<int, Entity_Fighter> readAmateurs;

    in >> id >> date >> readManager >> readGym;
    StreamForm::readList(in, readStudents);
    StreamForm::readList(in, readFighters);
    StreamForm::readList(in, readOrganisations);
    StreamForm::readMultiMap(in, readFreeAgents);
    StreamForm::readList(in, readOffers);
    StreamForm::readList(in, readBookings);
    StreamForm::readMultiMap(in, readAmateurs);

    QString fault;
    if (in.status() == QDataStream::ReadPastEnd)
        fault = QStringLiteral("The file ends before the world does.");
    else if (in.status() != QDataStream::Ok)
        fault = QStringLiteral("The file is damaged or is no saved game.");
    else if (!date.isValid())
        fault = QStringLiteral("The file holds no valid date.");
    if (!fault.isEmpty()) {
        if (reason)
            *reason = fault;
        return false;
    }

    nextId = id;
    currentDate = date;
    *manager = readManager;
    *gym = readGym;
    students = readStudents;
    fighters = readFighters;
    organisations = readOrganisations;
    freeAgents = readFreeAgents;
    offers = readOffers;
    bookings = readBookings;
    amateurs = readAmateurs;
    return true;
}
