#include "PastSeasons.h"

#include "fighters/Random.h"
#include "world/Entity_Match.h"
#include "world/RankMove.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int TitleContenders = 10; // the title match takes a challenger from the top ten
constexpr int QualifierPool = 16;   // the qualifiers draw from the top sixteen
constexpr int QuarterfinalPool = 8; // a finals night without qualifiers takes the top eight
constexpr int MainEventPool = 10;   // a single main event takes two of the top ten
constexpr int UndercardFrom = 5;    // the top five fight only in main events
constexpr int EntrySpacing = 150;   // how far behind the last man a debutant starts

// how a stoppage came, and how often, by weight
struct Finish {
    const char *method;
    int weight;
};
constexpr Finish finishes[] = {
    {"KO(Hook)", 18},       {"KO(Cross)", 14},      {"TKO(Low Kick)", 16}, {"KO(High Kick)", 12},
    {"TKO(Body Punch)", 8}, {"KO(Knee)", 10},       {"KO(Uppercut)", 8},   {"KO(Jab)", 3},
    {"TKO(Mid Kick)", 6},   {"TKO(Front Kick)", 2}, {"KO(Elbow)", 5},
};

struct Verdict {
    const char *word;
    int weight;
};
constexpr Verdict verdicts[] = {{"Unanimous Decision", 60}, {"Majority Decision", 15}, {"Split Decision", 25}};

template <typename Row, size_t N> const Row &weighted(const Row (&rows)[N])
{
    int total = 0;
    for (const Row &row : rows)
        total += row.weight;
    int roll = qrand() % total;
    for (const Row &row : rows) {
        if (roll < row.weight)
            return row;
        roll -= row.weight;
    }
    return rows[0];
}

QString clock(int seconds)
{
    return QString("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QChar('0'));
}

QString withYear(const QString &text, int year)
{
    QString copy = text;
    return copy.replace(QRegularExpression("\\b20[0-9][0-9]\\b"), QString::number(year));
}

} // namespace

PastSeasons::PastSeasons(const SourceData::Organisation &organisation, QList<Member> &men, int first, int last)
    : org(organisation)
    , members(men)
    , firstYear(first)
    , lastYear(last)
{
}

void PastSeasons::run()
{
    for (int year = firstYear; year <= lastYear; ++year) {
        activate(year);
        for (int i = 0; i < org.calendar.size(); ++i) {
            const QString next = i + 1 < org.calendar.size() ? withYear(org.calendar[i + 1].name, year) : QString();
            fightNight(org.calendar[i], year, next);
        }
    }
}

void PastSeasons::activate(int year)
{
    // the men of the first year start in the order of their skill; later men start at the bottom
    QList<int> newcomers;
    int bottom = -1;
    for (int i = 0; i < members.size(); ++i) {
        if (members[i].active)
            bottom = std::max(bottom, members[i].score);
        else if (members[i].debut <= year)
            newcomers.append(i);
    }
    std::stable_sort(newcomers.begin(), newcomers.end(),
                     [this](int a, int b) { return members[a].skill > members[b].skill; });
    for (int i : std::as_const(newcomers)) {
        members[i].active = true;
        bottom += EntrySpacing + qrand() % 100;
        members[i].score = bottom;
    }
}

QList<int> PastSeasons::ranking() const
{
    QList<int> order;
    for (int i = 0; i < members.size(); ++i)
        if (members[i].active)
            order.append(i);
    std::stable_sort(order.begin(), order.end(), [this](int a, int b) { return members[a].score < members[b].score; });
    return order;
}

PastSeasons::Pair PastSeasons::neighbours(const QList<int> &pool, QSet<int> &used) const
{
    QList<int> free;
    for (int man : pool)
        if (!used.contains(man))
            free.append(man);
    if (free.size() < 2)
        return {-1, -1};
    const int first = qrand() % int(free.size());
    // one of the next men up or down the ranking
    const int step = 1 + qrand() % 3;
    int second = first + (qrand() % 2 == 0 ? step : -step);
    second = std::clamp(second, 0, int(free.size()) - 1);
    if (second == first)
        second = first == 0 ? 1 : first - 1;
    used.insert(free[first]);
    used.insert(free[second]);
    return {free[first], free[second]};
}

QList<PastSeasons::Pair> PastSeasons::drawCard(const QStringList &card, const QList<int> &order, QSet<int> &used)
{
    QList<Pair> pairs(card.size(), Pair(-1, -1));
    const auto shuffled = [&order, &used](int count) {
        QList<int> pool;
        for (int man : order.mid(0, count))
            if (!used.contains(man))
                pool.append(man);
        for (int i = int(pool.size()) - 1; i > 0; --i)
            pool.swapItemsAt(i, qrand() % (i + 1));
        return pool;
    };

    // the title first, then the tournament, then the main event, then the undercard
    for (int s = 0; s < card.size(); ++s) {
        if (card[s] != Entity_Match::ChampionshipMatch)
            continue;
        if (holder >= 0 && members[holder].active) {
            used.insert(holder);
            const QList<int> challengers = shuffled(TitleContenders);
            if (!challengers.isEmpty()) {
                pairs[s] = {holder, challengers.first()};
                used.insert(challengers.first());
            }
        } else if (order.size() >= 2) {
            // a vacant title goes to the first two of the ranking
            pairs[s] = {order[0], order[1]};
            used.insert(order[0]);
            used.insert(order[1]);
        }
    }
    const int qualifiers = int(card.count(Entity_Match::TournamentQualifier));
    if (qualifiers > 0) {
        const QList<int> pool = shuffled(QualifierPool);
        int next = 0;
        for (int s = 0; s < card.size() && next + 1 < pool.size(); ++s) {
            if (card[s] != Entity_Match::TournamentQualifier)
                continue;
            pairs[s] = {pool[next], pool[next + 1]};
            used.insert(pool[next]);
            used.insert(pool[next + 1]);
            next += 2;
        }
    }
    if (card.contains(Entity_Match::TournamentQuarterfinal)) {
        QList<int> pool = qualifierWinners;
        for (int man : std::as_const(pool))
            used.insert(man);
        if (pool.size() < QuarterfinalPool)
            pool += shuffled(QuarterfinalPool).mid(0, QuarterfinalPool - pool.size());
        qualifierWinners.clear();
        int next = 0;
        for (int s = 0; s < card.size() && next + 1 < pool.size(); ++s) {
            if (card[s] != Entity_Match::TournamentQuarterfinal)
                continue;
            pairs[s] = {pool[next], pool[next + 1]};
            used.insert(pool[next]);
            used.insert(pool[next + 1]);
            next += 2;
        }
    }
    const int main = int(card.size()) - 1;
    if (card[main] == Entity_Match::SingleMatch)
        pairs[main] = neighbours(order.mid(0, MainEventPool), used);
    for (int s = 0; s < main; ++s)
        if (card[s] == Entity_Match::SingleMatch)
            pairs[s] = neighbours(order.mid(UndercardFrom), used);
    return pairs;
}

int PastSeasons::fight(const Pair &pair, const QString &matchType, const QDate &date, const QString &nightName,
                       const QString &title, QStringList &results)
{
    Member &one = members[pair.first];
    Member &two = members[pair.second];
    // the better man wins more often, and a wide gap ends more fights early
    const int gap = one.skill - two.skill;
    const bool oneWins = qrand() % 100 < std::clamp(50 + 3 * gap, 10, 90);
    Member &winner = oneWins ? one : two;
    Member &loser = oneWins ? two : one;
    const bool stoppage = qrand() % 100 < 35 + std::min(2 * std::abs(gap), 25);

    QString line;
    QString entryText;
    if (stoppage) {
        const QString method = weighted(finishes).method;
        const int roundRoll = qrand() % 100;
        const int round = roundRoll < 40 ? 1 : roundRoll < 75 ? 2 : 3;
        const QString time = clock(5 + qrand() % 175);
        line = winner.man.fullName() + " defeated " + loser.man.fullName() + " by " + method + " in " + time +
               " of Round " + QString::number(round) + ".";
        entryText = " - " + method + " - Rd. " + QString::number(round) + "(" + time + ")";
    } else {
        const QString word = weighted(verdicts).word;
        // a drawn card goes on for another round now and then
        const int round = qrand() % 10 == 0 ? 4 : 3;
        line = winner.man.fullName() + " defeated " + loser.man.fullName() + " by " + word + " in 3:00 of Round " +
               QString::number(round) + ".";
        entryText = " - " + word + " - Rd. " + QString::number(round) + "(3:00)";
    }
    const QString where = " - " + org.name + ": " + nightName;
    const bool bothForTitle = matchType == Entity_Match::ChampionshipMatch;
    const bool winnerForTitle = bothForTitle || matchType == Entity_Match::TournamentFinal;
    QString winnerEntry = "Win: " + loser.man.fullName() + entryText + where + (winnerForTitle ? "|" + title : "");
    QString loserEntry = "Loss: " + winner.man.fullName() + entryText + where + (bothForTitle ? "|" + title : "");

    const int move = RankMove::forResult(winner.score, loser.score, line);
    winner.score -= move;
    loser.score += move;
    winner.man.addResult(date, winnerEntry, matchType);
    loser.man.addResult(date, loserEntry, matchType);
    results.append(matchType + " - " + line);
    return oneWins ? pair.first : pair.second;
}

void PastSeasons::fightNight(const SourceData::Night &night, int year, const QString &nextNightName)
{
    const QDate date(year, night.date.month(), night.date.day());
    const QList<int> order = ranking();
    QSet<int> used;
    QList<Pair> pairs = drawCard(night.card, order, used);

    const bool tournament =
        night.card.contains(Entity_Match::TournamentQualifier) || night.card.contains(Entity_Match::TournamentFinal);
    QString title = "No Title";
    if (night.card.contains(Entity_Match::ChampionshipMatch))
        title = org.championship;
    else if (night.card.contains(Entity_Match::TournamentFinal))
        title = org.grandPrix + " " + QString::number(year);
    // a night takes the names of its main event, as the booking gives them; a tournament keeps its own
    QString name = withYear(night.name, year);
    const Pair main = pairs.last();
    if (!tournament && main.first >= 0)
        name = org.name + ": " + members[main.first].man.text(Entity_Fighter::LastName) + " vs. " +
               members[main.second].man.text(Entity_Fighter::LastName);

    QStringList results;
    QList<int> winners(night.card.size(), -1);
    QList<Entity_Match> card;
    for (int s = 0; s < night.card.size(); ++s) {
        const QString &type = night.card[s];
        // the later rounds of a tournament are made by its earlier ones, in the order of the card
        const int round = int(night.card.mid(0, s).count(type));
        if (type == Entity_Match::TournamentSemifinal) {
            const int first = int(night.card.indexOf(Entity_Match::TournamentQuarterfinal)) + 2 * round;
            pairs[s] = {winners.value(first, -1), winners.value(first + 1, -1)};
        } else if (type == Entity_Match::TournamentFinal) {
            const int first = int(night.card.indexOf(Entity_Match::TournamentSemifinal));
            pairs[s] = {winners.value(first, -1), winners.value(first + 1, -1)};
        }
        if (pairs[s].first < 0 || pairs[s].second < 0)
            continue;
        winners[s] = fight(pairs[s], type, date, name, title, results);
        const QString winner = members[winners[s]].man.fullName();
        if (type == Entity_Match::TournamentQualifier) {
            qualifierWinners.append(winners[s]);
            results.append("Booked " + winner + " for a Tournament Quarterfinal at " + nextNightName);
        } else if (type == Entity_Match::TournamentQuarterfinal) {
            results.append("Booked " + winner + " for a Tournament Semifinal at " + name);
        } else if (type == Entity_Match::TournamentSemifinal) {
            results.append("Booked " + winner + " for the Tournament Final at " + name);
        } else if (type == Entity_Match::ChampionshipMatch) {
            holder = winners[s];
        } else if (type == Entity_Match::TournamentFinal) {
            grandPrixWinners.insert(year, winners[s]);
        }
        Entity_Match slot(type);
        const Member &one = members[pairs[s].first];
        const Member &two = members[pairs[s].second];
        slot.unpack({one.man.fullName(), two.man.fullName(), type, Entity_Match::OpenPlace}, one.man.getId(),
                    two.man.getId(), false);
        card.append(slot);
    }
    if (year != lastYear || card.isEmpty())
        return;
    Entity_Event fought({name, org.name, night.city, org.prestige, night.type, title}, date, card);
    fought.addResults(results);
    lastNights.append(fought);
}

Entity_Org::Titles PastSeasons::titles() const
{
    Entity_Org::Titles rows;
    if (!org.championship.isEmpty())
        rows.insert(org.championship, holder >= 0 ? members[holder].man.fullName() : QString(Entity_Org::VacantTitle));
    // only last year's tournament still stands: older rows went by age
    if (!org.grandPrix.isEmpty() && grandPrixWinners.contains(lastYear))
        rows.insert(org.grandPrix + " " + QString::number(lastYear),
                    members[grandPrixWinners[lastYear]].man.fullName());
    return rows;
}
