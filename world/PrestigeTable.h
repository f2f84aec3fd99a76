#pragma once

#include <QString>

// What an organisation's prestige asks of a man and what it pays him, one row a level from the
// top. A prestige text outside the five levels counts in money as 0 and passes every test that
// names a level.
class PrestigeTable
{
public:
    struct Row {
        const char *prestige;
        // the band of a signing's value: skill level and form
        int signingLow;
        int signingHigh;
        // a famous free agent is looked at while his place on the ranking's scale lies below this
        int famousBelow;
        // the lowest place on the points' scale that a negotiation accepts
        int contractReputation;
        int oneFightReputation;
        // the skill level, with the mood, that a negotiation asks
        int contractSkill;
        int oneFightSkill;
        // the offer of money, per reputation point and point of Negotiating
        int moneyFactor;
        // the default purse's multiple
        int purseLevel;
        // the label of the gym fighter who may get a one-off offer; none outside the levels
        const char *offerLabel;
    };

    static const Row &row(const QString &prestige);
};
