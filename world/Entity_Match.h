#pragma once

#include "fighters/GameLists.h"

#include <QDataStream>
#include <QString>
#include <QStringList>

// One slot of an event's card. The slot's type comes with the calendar and never changes; only
// the names in its two places do. A place holds a man's full name and id, never the man himself.
class Entity_Match
{
public:
    // the match types, as the rules read them
    static constexpr const char *SingleMatch = GameLists::SingleMatch;
    static constexpr const char *ChampionshipMatch = GameLists::ChampionshipMatch;
    static constexpr const char *TournamentQualifier = GameLists::TournamentQualifier;
    static constexpr const char *TournamentQuarterfinal = GameLists::TournamentQuarterfinal;
    static constexpr const char *TournamentSemifinal = GameLists::TournamentSemifinal;
    static constexpr const char *TournamentFinal = GameLists::TournamentFinal;
    // the name of an open place
    static constexpr const char *OpenPlace = "TBA";
    static constexpr int TextCount = 4;

    explicit Entity_Match(const QString &matchType = SingleMatch);

    // four strings (first name, second name, type, spare), two ids and the user's flag
    void pack(QStringList &strings, int &oneId, int &twoId, bool &gymBooked) const;
    // nothing is checked: the list must hold four strings
    void unpack(const QStringList &strings, int oneId, int twoId, bool gymBooked);

    QString fighterOne() const { return one; }
    QString fighterTwo() const { return two; }
    QString matchType() const { return type; }
    QString spare() const { return spareText; }
    int fighterOneId() const { return oneId; }
    int fighterTwoId() const { return twoId; }
    bool isGymFighterBooked() const { return gymBooked; }

    bool isFilled() const;
    // a filled place holds this id
    bool holds(int id) const;
    // the first open place takes him; one match never holds two men of the user
    bool addFighter(int id, const QString &name, bool isGymFighter);
    void removeFighter(int id, bool isGymFighter);
    // both places open again; the type stays
    void reset();

    bool operator==(const Entity_Match &other) const;

private:
    QString one;
    QString two;
    QString type;
    QString spareText;
    int oneId = 0;
    int twoId = 0;
    bool gymBooked = false;
};

QDataStream &operator<<(QDataStream &out, const Entity_Match &match);
QDataStream &operator>>(QDataStream &in, Entity_Match &match);
