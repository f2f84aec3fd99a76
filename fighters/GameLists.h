#pragma once

#include <QStringList>

// The lists of the game that many places read, each standing here once. The order of a list is
// the order of the rules and draws that read it.
class GameLists
{
public:
    // the fighting backgrounds; a style stands at the place of the background that teaches it
    static const QStringList &backgrounds();
    static const QStringList &fightingStyles();
    // the fourteen colours of shorts and trim
    static const QStringList &kitColours();
    static const QStringList &hairColours();

    // the match types, as the rules read them
    static constexpr const char *SingleMatch = "Single Match";
    static constexpr const char *ChampionshipMatch = "Championship Match";
    static constexpr const char *TournamentQualifier = "Tournament Qualifier";
    static constexpr const char *TournamentQuarterfinal = "Tournament Quarterfinal";
    static constexpr const char *TournamentSemifinal = "Tournament Semifinal";
    static constexpr const char *TournamentFinal = "Tournament Final";

    // the text of an empty record
    static constexpr const char *NoRecord = "N/A";
    // a man's organisation when he has no contract
    static constexpr const char *FreeAgent = "Free Agent";
};
