#include "WorldBuilder.h"

#include "PastSeasons.h"

#include "fighters/Random.h"
#include "world/Entity_Match.h"

#include <algorithm>

namespace {

using F = Entity_Fighter;

// no contract runs out in the years before the first day; the real ones are written after
constexpr int PastContract = 1000;
// the ages of the promotions' men: 20 to 38, most of them in their late twenties
constexpr int YoungestPro = 20;
constexpr int OldestReleased = 36; // older men let go would soon retire from the free agents
constexpr int NewRankingScore = 8000;

int weightedPick(const SourceData::Weights &weights)
{
    int total = 0;
    for (const auto &row : weights)
        total += row.second;
    if (total <= 0)
        return -1;
    int roll = qrand() % total;
    for (int i = 0; i < weights.size(); ++i) {
        if (roll < weights[i].second)
            return i;
        roll -= weights[i].second;
    }
    return -1;
}

// a promotion's own kind of fighting, for its share of the men
void favourBackground(F &man, const SourceData::Weights &backgrounds)
{
    int roll = qrand() % 100;
    for (const auto &[background, share] : backgrounds) {
        if (roll < share) {
            man.setText(F::FightingBackground, background);
            return;
        }
        roll -= share;
    }
}

// every attribute moves by the same amount, so the man keeps his strengths and his traits
void shiftToSkill(F &man, int target)
{
    const int delta = target - WorldBuilder::skillLevel(man);
    for (int attribute = F::FirstAttribute; attribute <= F::LastAttribute; ++attribute)
        man.addToNumber(F::Number(attribute), delta);
    man.clampAttributes();
}

} // namespace

WorldBuilder::WorldBuilder(const SourceData &sourceData)
    : source(sourceData)
    , nextId(sourceData.world.firstId)
{
}

int WorldBuilder::skillLevel(const Entity_Fighter &man)
{
    int sum = 0;
    for (int attribute = F::FirstAttribute; attribute <= F::LastAttribute; ++attribute)
        sum += man.number(F::Number(attribute));
    return sum / F::AttributeCount;
}

FighterGenerator::Origin WorldBuilder::originFrom(const SourceData::Weights &origins) const
{
    const QString choice = origins.value(weightedPick(origins)).first;
    const int region = NationTable::regionIndex(choice);
    if (region >= 0)
        return FighterGenerator::anyNationOf(source.nations, region);
    for (int r = 0; r < NationTable::RegionCount; ++r)
        if (source.nations.value(r).contains(choice))
            return {r, choice};
    // "*": from anywhere, as the world's new men come
    return FighterGenerator::chooseOrigin(source.nations, false, QString(), QString());
}

bool WorldBuilder::newMan(const FighterGenerator::Origin &origin, int grade, Entity_Fighter &man, QStringList &faults)
{
    const QString family = NationTable::familyOf(source.nations, origin.region, origin.nation);
    QString first;
    QString last;
    if (!FighterGenerator::drawName(source.names.value(family), taken, first, last)) {
        faults.append("no free name is left in the family " + family);
        return false;
    }
    taken.insert(first + ' ' + last);
    FighterGenerator::Recipe recipe;
    recipe.grade = grade;
    recipe.today = source.world.start;
    man = FighterGenerator::makePerson(origin, first, last, recipe);
    man.setId(nextId++);
    return true;
}

void WorldBuilder::setAge(Entity_Fighter &man, int age) const
{
    // his last birthday lies in the year before the first day, and not on the first day itself
    const int month = qrand() % 12 + 1;
    const int day = qrand() % 28 + 1;
    QDate birth(source.world.start.year() - 1 - age, month, day);
    if (birth.addYears(age + 1) <= source.world.start)
        birth = birth.addDays(1);
    man.setBirthDate(birth);
    man.setNumber(F::Age, age);
}

void WorldBuilder::buildOrganisation(const SourceData::Organisation &org, QStringList &faults)
{
    const int firstYear = source.world.start.year();
    const int count = org.rosterSize + org.released;
    QList<PastSeasons::Member> members;
    for (int i = 0; i < count; ++i) {
        // the better men are made first; the years before sort them into a ranking
        const int target =
            org.skillHigh - (org.skillHigh - org.skillLow) * i / std::max(1, count - 1) + qrand() % 5 - 2;
        PastSeasons::Member member;
        if (!newMan(originFrom(org.origins), std::max(0, (target - 11) / 3), member.man, faults))
            return;
        favourBackground(member.man, org.backgrounds);
        shiftToSkill(member.man, target);
        const int age = YoungestPro + qrand() % 8 + qrand() % 8 + qrand() % 5;
        const int debutAge = 18 + qrand() % 4;
        member.debut = firstYear - std::max(0, age - debutAge);
        setAge(member.man, age);
        member.man.setContract(org.name, PastContract);
        member.man.setText(F::Reputation, "Local Fighter");
        member.skill = skillLevel(member.man);
        members.append(member);
    }

    PastSeasons past(org, members, source.world.historyFrom, firstYear - 1);
    past.run();
    const Entity_Org::Titles titles = past.titles();

    // the ranking: the order of the past, spread over the promotion's range of scores
    QList<int> order;
    int highest = 0;
    for (int i = 0; i < count; ++i)
        if (members[i].active)
            highest = std::max(highest, members[i].score);
    for (int i = 0; i < count; ++i) {
        if (!members[i].active)
            members[i].score = highest + 300 + qrand() % 100;
        order.append(i);
    }
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return members[a].score < members[b].score; });
    const int low = members[order.first()].score;
    const int high = std::max(low + 1, members[order.last()].score);
    const int span = org.rankingBottom - org.rankingTop;
    for (int place = 0; place < count; ++place) {
        PastSeasons::Member &member = members[order[place]];
        // half by the place, half by the distance that the results opened
        const qint64 share = 500LL * place / std::max(1, count - 1) + 500LL * (member.score - low) / (high - low);
        member.score = org.rankingTop + int(span * share / 1000) + qrand() % 41 - 20;
    }

    // a few men of the past are free agents now, but never a holder of a title row
    QList<int> candidates;
    for (int i = 0; i < count; ++i) {
        const bool holdsRow = std::find(titles.cbegin(), titles.cend(), members[i].man.fullName()) != titles.cend();
        if (!holdsRow && members[i].man.number(F::Age) <= OldestReleased && members[i].debut < firstYear)
            candidates.append(i);
    }
    for (int i = int(candidates.size()) - 1; i > 0; --i)
        candidates.swapItemsAt(i, qrand() % (i + 1));
    const QList<int> released = candidates.mid(0, org.released);
    if (released.size() < org.released)
        faults.append(org.key + ": too few men to let go");

    Entity_Org::Roster roster;
    for (int i = 0; i < count; ++i) {
        F man = members[i].man;
        man.setNumber(F::RankingScore, members[i].score);
        man.updateReputationFromRanking();
        QString bio = man.text(F::Bio);
        // his career as the records tell it: from his first fight, or from the first year they keep
        const QString firstLine =
            members[i].debut < firstYear
                ? QString("Professional since %1.").arg(std::max(members[i].debut, source.world.historyFrom))
                : QString("New Fighter");
        man.setBio(bio.replace(0, QString("New Fighter").size(), firstLine));
        if (released.contains(i)) {
            man.setContract("Free Agent", 0);
            releasedByPrestige[org.prestige].append(man);
        } else {
            man.setContract(org.name, 2 + qrand() % 6);
            roster.insert(man.getRankingScore(), man);
        }
    }

    QList<Entity_Event> calendar;
    for (const SourceData::Night &night : org.calendar) {
        QList<Entity_Match> card;
        for (const QString &type : night.card)
            card.append(Entity_Match(type));
        QString title = "No Title";
        if (night.card.contains(Entity_Match::ChampionshipMatch))
            title = org.championship;
        else if (night.card.contains(Entity_Match::TournamentFinal))
            title = org.grandPrix + " " + QString::number(firstYear);
        calendar.append(
            Entity_Event({night.name, org.name, night.city, org.prestige, night.type, title}, night.date, card));
    }
    Entity_Org organisation;
    organisation.unpack({org.name, org.ceo, org.nation, org.note, org.prestige, org.bio, "Willing"}, calendar,
                        past.lastYearNights(), roster, titles);
    organisations.append(organisation);
}

DefaultWorld::FighterList WorldBuilder::newMen(const SourceData::FighterList &list, QStringList &faults)
{
    DefaultWorld::FighterList men;
    for (const QString &level : list.releasedBy)
        for (const F &man : releasedByPrestige.value(level))
            men.insert(man.getRankingScore(), man);
    for (int i = 0; i < list.count; ++i) {
        // made as the game makes its new men, only younger or a little older
        const FighterGenerator::Origin origin =
            FighterGenerator::chooseOrigin(source.nations, false, QString(), QString());
        F man;
        if (!newMan(origin, -1, man, faults))
            break;
        setAge(man, list.ageLow + qrand() % (list.ageHigh - list.ageLow + 1));
        man.setNumber(F::RankingScore, NewRankingScore);
        men.insert(man.getRankingScore(), man);
    }
    return men;
}

bool WorldBuilder::build(QStringList &faults)
{
    for (const SourceData::Organisation &org : source.organisations)
        buildOrganisation(org, faults);
    for (const SourceData::FighterList &list : source.world.freeAgents)
        freeAgentLists.append(newMen(list, faults));
    for (const SourceData::FighterList &list : source.world.amateurs)
        amateurLists.append(newMen(list, faults));
    return faults.isEmpty();
}
