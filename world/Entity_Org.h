#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_GymFighter.h"
#include "world/Entity_Event.h"

#include <QDataStream>
#include <QDate>
#include <QList>
#include <QMap>
#include <QMultiMap>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>

// A fight promotion of the world: its calendar of this year and last, its roster sorted by
// ranking score, and its titles with their holders. The user's fighters never stand in a roster;
// the organisation knows them only by the contract text in their own records.
class Entity_Org
{
public:
    enum Text : int { Name, Ceo, Nation, Note, Prestige, Bio, Willingness, TextCount };

    using Roster = QMultiMap<int, Entity_Fighter>; // ranking score to fighter, equal scores kept
    using Titles = QMap<QString, QString>;         // title to holder's full name, or "Vacant"

    static constexpr const char *VacantTitle = "Vacant";

    Entity_Org() = default;

    void pack(QStringList &strings, QList<Entity_Event> &events, QList<Entity_Event> &pastEvents, Roster &roster,
              Titles &titles) const;
    // nothing is checked: the list must hold seven strings; roster keys are taken as they come
    void unpack(const QStringList &strings, const QList<Entity_Event> &events, const QList<Entity_Event> &pastEvents,
                const Roster &roster, const Titles &titles);

    QString text(Text field) const { return texts[field]; }
    QString name() const { return texts[Name]; }
    QString prestige() const { return texts[Prestige]; }
    QString willingness() const { return texts[Willingness]; }
    void setWillingness(const QString &mood) { texts[Willingness] = mood; }

    // appends the seven strings, the calendar, last year's calendar
    void strings(QStringList &list) const;
    void events(QList<Entity_Event> &list) const;
    void pastEvents(QList<Entity_Event> &list) const;
    // copies built entry after entry, so that equal ranking scores come out turned around
    void rosterCopy(Roster &copy) const;
    void titlesCopy(Titles &copy) const;
    // the roster as it stands, shared until one side changes: a walk that must not see its own
    // changes reads this, at no cost
    Roster rosterSnapshot() const { return roster; }
    int rosterSize() const { return int(roster.size()); }
    bool holdsFighter(int id) const;
    // a copy; a default record for an id that the roster doesn't hold
    Entity_Fighter rosterFighter(int id) const;

    // the first event of the calendar on `date` or later; a default event when it is spent
    Entity_Event nextEvent(const QDate &date) const;
    // the first event of that name on `today` or later takes him on the card
    bool addToEvent(int id, const QString &name, const QString &eventName, const QString &matchType, bool isGymFighter,
                    const QDate &today);
    // names repeat from year to year, so the night is found by its date as well
    void renameEvent(const QString &eventName, const QDate &date, int fighterId, const QString &lastName);
    // tonight's event keeps its lines; holding a show puts the organisation in a good mood again
    void storeResults(const QStringList &lines, const QString &eventName, const QDate &today);
    // last year's nights go to the past, and the same nights stand empty one year on
    void rollOverEvents();

    // takes him out and puts him back under his new score; no limit either way
    void addRankingScore(int id, int delta);
    void setTitle(const QString &title, const QString &holder);
    // every title row that names the year before last goes
    void dropOldTitles(const QDate &date);

    // A retiring man leaves his next card; a show of today keeps him one more day (false). Then
    // his first title row that is not last year's tournament becomes vacant.
    bool retireRosterFighter(int id, int lastYear, const QDate &today);
    bool retireGymFighter(const QString &fullName, int id, int lastYear, const QDate &today);

    // the career entry of a roster fighter, dated today
    void recordMatch(const QDate &today, int id, const QString &entry, const QString &matchType);
    void refreshReputations();
    // his birthday's year of growth or decline, on the roster's own record
    void developFighter(int id);

    // --- Contracts -----------------------------------------------------------------------------
    // Below this many men an organisation signs anybody; above the full roster, nobody.
    static constexpr int ShortRoster = 31;
    static constexpr int FullRoster = 49;

    // The test that signs and renews the men of the world: his skill level, moved by his form,
    // must lie in the band of the prestige; the roster's size may decide alone.
    bool wantsFighter(const Entity_Fighter &man) const;
    // a new signing: this organisation for 4 fights, in the roster under his ranking score
    void signFighter(Entity_Fighter man);
    // Each man with fewer than 3 fights left is asked to stay, every night anew; the news lines
    // of those who do, and how many they are.
    int renewContracts(QStringList &news);
    // the men whose last fight used up the contract leave; a world title of theirs falls vacant
    QList<Entity_Fighter> releaseFreeAgents();

    // The user asks this organisation to take his man for `fights` fights (1: one appearance) at
    // `money` a fight. The reason of a refusal goes to `message`; a refusal costs patience.
    bool negotiate(const Entity_GymFighter &man, int fights, int money, int negotiating, QString &message);
    // the same once the organisation's mood of the day is drawn
    bool weighOffer(const Entity_GymFighter &man, int mood, int fights, int money, int negotiating, QString &message);
    // whether the purse asked for lies within what the organisation offers
    bool moneyAccepted(int reputationPoints, int mood, int fights, int money, int negotiating, QString &message) const;

    bool operator==(const Entity_Org &other) const;

private:
    Roster::iterator findInRoster(int id);
    Roster::const_iterator findInRoster(int id) const;
    // his next card loses him; false when the organisation holds a show today
    bool leaveNextCard(int id, bool isGymFighter, const QDate &today);
    bool retire(const QString &fullName, int id, bool isGymFighter, int lastYear, const QDate &today);
    // the first row in key order that passes the test becomes vacant
    void vacateFirstTitle(const std::function<bool(const QString &title, const QString &holder)> &test);

    std::array<QString, TextCount> texts;
    QList<Entity_Event> calendar;
    QList<Entity_Event> lastYear;
    Roster roster;
    Titles titles;
};

QDataStream &operator<<(QDataStream &out, const Entity_Org &organisation);
QDataStream &operator>>(QDataStream &in, Entity_Org &organisation);
