#include "fighters/FighterGenerator.h"

#include "fighters/FighterTraits.h"
#include "fighters/GameLists.h"
#include "fighters/Random.h"

#include <algorithm>

namespace {

// random draws before the generator walks through every pair of names in turn
constexpr int RandomNameDraws = 200;
constexpr int NewRankingScore = 8000;
constexpr int NewAge = 18;

// the quality that a roll of 0 to 70 gives: below 10 the roll itself, then steps of three
struct QualityRow {
    int upTo;
    int bonus; // -1: the roll itself
};
constexpr QualityRow qualityTable[] = {{9, -1}, {29, 3}, {49, 6}, {64, 9}, {70, 12}};

QString pick(const QStringList &list)
{
    return list.isEmpty() ? QString() : list.at(qrand() % list.size());
}

// a position of 0 to 99 when the lists (or their place) are missing
int placeIn(const QStringList &list, const QString &entry)
{
    return std::max(0, int(list.indexOf(entry)));
}

} // namespace

FighterGenerator::Origin FighterGenerator::anyNationOf(const NationTable::Lists &lists, int region)
{
    const QStringList nations = lists.value(region);
    if (!nations.isEmpty())
        return {region, pick(nations)};
    // without the nation file a region still has its main nations
    QStringList mains;
    for (int i = 0; i < NationTable::MainCount; ++i)
        if (NationTable::mainRegion(i) == region)
            mains.append(NationTable::mainNation(i));
    return {region, pick(mains)};
}

FighterGenerator::Origin FighterGenerator::chooseOrigin(const NationTable::Lists &lists, bool forGym,
                                                        const QString &managerNation, const QString &managerRegion)
{
    const int r = qrand() % 30 + 1;
    const auto anywhere = [&lists] { return anyNationOf(lists, qrand() % NationTable::RegionCount); };
    if (!forGym) {
        if (r % 4 == 0)
            return anywhere();
        const int main = qrand() % NationTable::MainCount;
        return {NationTable::mainRegion(main), NationTable::mainNation(main)};
    }
    const int managerMain = NationTable::mainIndex(managerNation);
    if (managerMain >= 0 && r % 4 != 0)
        return {NationTable::mainRegion(managerMain), managerNation};
    const int region = NationTable::regionIndex(managerRegion);
    // a manager from no known region sends his students' origins anywhere
    if (r % 3 != 0 && region >= 0)
        return anyNationOf(lists, region);
    return anywhere();
}

NationTable::Lists FighterGenerator::nationsOf(const NameBook &book)
{
    NationTable::Lists lists = book.nations ? book.nations() : NationTable::Lists();
    lists.resize(NationTable::RegionCount);
    return lists;
}

FighterGenerator::Names FighterGenerator::namesOf(const NameBook &book, const QString &family)
{
    Names names = book.names ? book.names(family) : Names();
    if (names.first.isEmpty())
        names.first = QStringList{GameLists::NoRecord};
    if (names.last.isEmpty())
        names.last = QStringList{GameLists::NoRecord};
    return names;
}

bool FighterGenerator::drawName(const Names &names, const QSet<QString> &taken, QString &first, QString &last)
{
    const auto freeName = [&](int f, int l) {
        if (taken.contains(names.first.at(f) + ' ' + names.last.at(l)))
            return false;
        first = names.first.at(f);
        last = names.last.at(l);
        return true;
    };
    const int firstCount = int(names.first.size());
    const int lastCount = int(names.last.size());
    if (firstCount == 0 || lastCount == 0)
        return false;
    for (int draw = 0; draw < RandomNameDraws; ++draw) {
        const int f = qrand() % firstCount;
        if (freeName(f, qrand() % lastCount))
            return true;
    }
    // a crowded family: every pair once, from a random place, so the search always ends
    const qint64 pairs = qint64(firstCount) * lastCount;
    const qint64 start = qrand() % pairs;
    for (qint64 i = 0; i < pairs; ++i) {
        const qint64 pair = (start + i) % pairs;
        if (freeName(int(pair / lastCount), int(pair % lastCount)))
            return true;
    }
    return false;
}

int FighterGenerator::qualityBonus(int roll)
{
    for (const QualityRow &row : qualityTable)
        if (roll <= row.upTo)
            return row.bonus < 0 ? roll : row.bonus;
    return 0;
}

Entity_Fighter FighterGenerator::makePerson(const Origin &origin, const QString &first, const QString &last,
                                            const Recipe &recipe)
{
    using F = Entity_Fighter;
    F man;
    man.setText(F::FirstName, first);
    man.setText(F::LastName, last);
    man.setText(F::Nationality, origin.nation);
    man.setText(F::Region, NationTable::regions().value(origin.region));

    const int b = qrand() % 25;
    QString background;
    if (b < 7)
        background = GameLists::backgrounds().at(b);
    else
        background = recipe.forGym ? recipe.gymStyle : pick(GameLists::backgrounds());
    man.setText(F::FightingBackground, background);
    // otherwise the style that his background teaches: Kickboxing an Outfighter, and so on
    const int s = qrand() % 15;
    man.setText(F::FightingStyle,
                GameLists::fightingStyles().at(s < 7 ? s : placeIn(GameLists::backgrounds(), background)));
    man.setText(F::Organisation, GameLists::FreeAgent);
    man.setText(F::Reputation, "Unknown");
    if (recipe.forGym) {
        man.setText(F::ShortsColour, recipe.gymShorts);
        man.setText(F::TrimColour, recipe.gymTrim);
    } else {
        man.setText(F::ShortsColour, pick(GameLists::kitColours()));
        man.setText(F::TrimColour, pick(GameLists::kitColours()));
    }
    man.setText(F::HairColour, pick(GameLists::hairColours()));

    int quality = qualityBonus(qrand() % 71);
    int grade = recipe.grade;
    if (grade < 0) {
        grade = qrand() % 10 + qrand() % 10;
        quality += 7;
    }

    man.setNumber(F::Age, NewAge);
    for (int attribute = F::FirstAttribute; attribute <= F::LastAttribute; ++attribute)
        man.setNumber(F::Number(attribute), qrand() % 11 + 3 * grade + quality);
    man.setNumber(F::HeadDurability, std::min(qrand() % 100 + quality, 99));
    man.setNumber(F::BodyDurability, std::min(qrand() % 100 + quality, 99));

    const QStringList traits = FighterTraits::draw();
    for (const QString &trait : traits)
        FighterTraits::apply(man, trait);
    man.setBio(FighterTraits::bio(traits, recipe.seer));

    man.setNumber(F::ContractFightsLeft, 0);
    man.setNumber(F::BodyImage, qrand() % 21 + 1);
    man.setNumber(F::HeadImage, qrand() % 7 + 1);
    man.setNumber(F::FaceImage, qrand() % 4 + 1);
    man.setNumber(F::RankingScore, NewRankingScore);

    const int month = qrand() % 12 + 1;
    const int day = qrand() % 28 + 1;
    man.setBirthDate(QDate(recipe.today.year() - NewAge, month, day));
    return man;
}
