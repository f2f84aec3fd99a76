#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_GymFighter.h"
#include "world/Entity_Booking.h"
#include "world/Entity_Event.h"
#include "world/Entity_Org.h"

#include <QDataStream>
#include <QDate>
#include <QList>
#include <QMap>
#include <QMultiMap>
#include <QString>
#include <QStringList>

#include <memory>

class Entity_Gym;
class Entity_Manager;

// The whole saved world, one for the process. Every screen and every job of the day reads and
// changes the world through these operations; records come out as copies and are found again by
// id or name, and a name or id that no list holds gives a default value or changes nothing.
class GameManager
{
public:
    static GameManager &instance();

    // a new empty gym and manager, the first id, the first day and empty lists
    void resetWorld();

    // --- The calendar and the day ----------------------------------------------------------------
    int getNextId() const { return nextId; }
    QDate getCurrentDate() const { return currentDate; }
    void advanceDate();
    // today's events without a fighter of the user, in organisation order, then calendar order
    QList<Entity_Event> todaysWorldEvents() const;
    // today's events with a fighter of the user that have not been fought yet
    QList<Entity_Event> todaysUserEvents() const;
    // the lines go into today's event of that name; the organisation is willing again
    void storeEventResults(const QStringList &lines, const QString &eventName, const QString &orgName);
    void refreshReputations(const QString &orgName);
    // the first of January: every organisation's calendar moves on a year ...
    void rollOverEvents();
    // ... after the title rows of the year before last have gone
    void dropOldTitles();

    // --- Organisations and rosters ---------------------------------------------------------------
    QStringList organisationNames() const;
    // the seven strings: name, chief, nation, note, prestige, bio, willingness
    QStringList organisationTexts(const QString &orgName) const;
    // a copy of the whole organisation; a default one for an unknown name
    Entity_Org organisation(const QString &orgName) const;
    // ranking score to full name, the user's fighters under contract there included
    void organisationRanking(const QString &orgName, QMultiMap<int, QString> &ranking) const;
    Entity_Fighter rosterFighter(const QString &orgName, int id) const;
    void addRankingScore(const QString &orgName, int id, int delta);
    void addUserRankingScore(int id, int delta);
    // a result entry into a roster fighter's career, dated today
    void recordRosterMatch(const QString &orgName, int id, const QString &entry, const QString &matchType);
    // the same for a gym fighter, with the manager's record and titles
    void recordGymResult(int id, const QString &entry, const QString &matchType);
    // after a championship match or a tournament final: the winner holds the title's row
    void setTitleHolder(const QString &orgName, const QString &title, int winnerId, bool isGymFighter);

    // --- The user's side -------------------------------------------------------------------------
    // Lookups by position give the defaults of an empty record when the position holds nobody:
    // 11 (pack: 12) times "N/A", 94 (pack: 95) zeros, 7 zeros, 49 zeros, 1 January 2000.
    QStringList fighterNames() const;
    QStringList studentNames() const;
    // the world's pools of men without an organisation
    int freeAgentCount() const { return int(freeAgents.size()); }
    int amateurCount() const { return int(amateurs.size()); }
    QList<int> fighterIds() const;
    QStringList fighterStrings(int index) const;
    QList<int> fighterInts(int index) const;
    QList<int> fighterExtras(int index) const;
    // the 48 counters and the plan, and the month's training log
    void fighterTraining(int index, QList<int> &progress, QStringList &log) const;
    void fighterPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                     Entity_Fighter::History &history, QStringList &titles) const;
    void studentPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                     Entity_Fighter::History &history, QStringList &titles) const;
    // a copy; an empty record for an id that the gym doesn't hold
    Entity_GymFighter fighterById(int id) const;
    int fighterIdAt(int index) const;
    void setFighterBio(int index, const QString &text);
    // shorts, trim, hair, and body, head, face; "Red", "Black", "Brown" and 1, 1, 1 for nobody.
    // A number up to 9 is a position in the fighter list, any other an id.
    void fighterLook(int indexOrId, QStringList &colours, QList<int> &images) const;
    void studentLook(int index, QStringList &colours, QList<int> &images) const;
    // the student becomes a gym fighter with a new id and an empty booking; false without a
    // free fighter place or without that student
    bool promoteStudent(int index);
    // after a fight night: the lesson of the match, the purse and prestige of the gym and the
    // manager's reputation; true when the manager's label rose, which is his level up
    bool applyMatchOutcome(const QList<int> &statistics, int id, const QString &entry);
    // the first of the month: every student pays his fee
    void collectStudentFees();

    // --- Bookings --------------------------------------------------------------------------------
    // the fighter's record takes all five fields
    void replaceBooking(const Entity_Booking &record);
    // his record keeps id and name and goes back to "N/A" and no date
    void clearBooking(int id);
    // full name to event name, " - " and the date text; a later record of one name wins
    QMap<QString, QString> bookingsByFighter() const;
    // every offer for that event goes; a booking into it takes the open place of the offer
    void removeOffersForEvent(const QString &eventName);

    // booking
    // every organisation books men for its next night; the news lines in the order of the bookings
    QStringList bookEvents();

    // --- The gym and the manager -----------------------------------------------------------------
    Entity_Gym gymRecord() const;
    Entity_Manager managerRecord() const;
    void gymPack(QStringList &strings, QList<int> &values, QList<int> &ledger) const;
    void managerPack(QStringList &strings, QList<int> &values, QStringList &titles) const;
    // the gym and the manager made on the new game screens
    void setGym(const QStringList &strings, const QList<int> &values, const QList<int> &ledger);
    void setManager(const QStringList &strings, const QList<int> &values, const QStringList &titles);
    QList<int> gymValues() const;
    QList<int> managerValues() const;
    void rollGymMonth();
    bool upgradeEquipment(int equipment);
    bool upgradeGym();
    // the 18 skills and abilities after a level up
    void setManagerSkills(const QList<int> &skills);

    // --- The first world and saves ---------------------------------------------------------------
    void loadDefaultWorld();
    bool generateFighter(QString &nameOut, bool forGym);
    // the eleven fields in the order of a save file
    void writeTo(QDataStream &out) const;
    // The whole world from a stream, or nothing: a stream that comes up short or holds nonsense
    // leaves the world as it was, gives false and says why in `reason`.
    bool readFrom(QDataStream &in, QString *reason = nullptr);

private:
    friend class DefaultWorld;
    friend class FighterGenerator;
    friend class WorldInvariants;
    friend class BookingRound;

    GameManager();
    ~GameManager();

    Entity_Org *findOrganisation(const QString &name);
    const Entity_Org *findOrganisation(const QString &name) const;
    qsizetype fighterIndexOf(int id) const;
    bool isFighterIndex(int index) const { return index >= 0 && index < fighters.size(); }
    bool isStudentIndex(int index) const { return index >= 0 && index < students.size(); }
    // every event of every calendar that passes the test, in organisation and calendar order
    template <typename Test> QList<Entity_Event> eventsWhere(Test test) const;

    int nextId = 1058;
    QDate currentDate{2011, 1, 1};
    std::unique_ptr<Entity_Manager> manager;
    std::unique_ptr<Entity_Gym> gym;
    QList<Entity_Fighter> students;
    QList<Entity_GymFighter> fighters;
    QList<Entity_Org> organisations;
    QMultiMap<int, Entity_Fighter> freeAgents;
    QList<Entity_Booking> offers;
    QList<Entity_Booking> bookings;
    QMultiMap<int, Entity_Fighter> amateurs;
};
