#include "fighters/Entity_Fighter.h"

#include "fighters/GameLists.h"
#include "fighters/ResultEntry.h"

#include "fighters/StreamForm.h"

#include <algorithm>
#include <iterator>
#include <limits>

Entity_Fighter::Entity_Fighter()
{
    numbers.fill(0);
}

void Entity_Fighter::pack(QStringList &strings, QList<int> &integers, QDate &birth, History &history,
                          QStringList &titleRows) const
{
    strings.append(stringList());
    integers.append(integerList());
    birth = birthDate;
    history = careerHistory;
    titleRows = titles;
}

void Entity_Fighter::unpack(const QStringList &strings, const QList<int> &integers, const QDate &birth,
                            const History &history, const QStringList &titleRows)
{
    std::copy_n(strings.cbegin(), TextCount, texts.begin());
    std::copy_n(integers.cbegin(), NumberCount, numbers.begin());
    birthDate = birth;
    careerHistory = history;
    titles = titleRows;
}

QStringList Entity_Fighter::stringList() const
{
    return QStringList(texts.cbegin(), texts.cend());
}

QList<int> Entity_Fighter::integerList() const
{
    return QList<int>(numbers.cbegin(), numbers.cend());
}

QString Entity_Fighter::fullName() const
{
    return texts[FirstName] + " " + texts[LastName];
}

void Entity_Fighter::appearance(QStringList &colours, QList<int> &images) const
{
    colours = {texts[ShortsColour], texts[TrimColour], texts[HairColour]};
    images = {numbers[BodyImage], numbers[HeadImage], numbers[FaceImage]};
}

void Entity_Fighter::setContract(const QString &organisation, int fightsLeft)
{
    texts[Organisation] = organisation;
    numbers[ContractFightsLeft] = fightsLeft;
}

int Entity_Fighter::ageWithBirthday(const QDate &date, int *oldAge) const
{
    const int age = numbers[Age];
    if (oldAge)
        *oldAge = age;
    const bool birthday = date.month() == birthDate.month() && date.day() == birthDate.day();
    return birthday ? age + 1 : age;
}

void Entity_Fighter::clampAttributes()
{
    for (int i = FirstAttribute; i <= LastAttribute; ++i)
        numbers[i] = std::clamp(numbers[i], 0, 99);
}

int Entity_Fighter::skillLevel() const
{
    int sum = 0;
    for (int i = FirstAttribute; i <= LastAttribute; ++i)
        sum += numbers[i];
    return sum / AttributeCount;
}

bool Entity_Fighter::operator==(const Entity_Fighter &other) const
{
    return texts == other.texts && birthDate == other.birthDate && careerHistory == other.careerHistory &&
           titles == other.titles && numbers == other.numbers;
}

QDataStream &operator<<(QDataStream &out, const Entity_Fighter &fighter)
{
    QStringList strings;
    QList<int> integers;
    QDate birth;
    Entity_Fighter::History history;
    QStringList titles;
    fighter.pack(strings, integers, birth, history, titles);
    StreamForm::writeStringList(out, strings);
    StreamForm::writeList(out, integers);
    out << birth;
    StreamForm::writeMap(out, history);
    StreamForm::writeStringList(out, titles);
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_Fighter &fighter)
{
    QStringList strings;
    QList<int> integers;
    QDate birth;
    Entity_Fighter::History history;
    QStringList titles;
    StreamForm::readFixedStringList(in, strings, Entity_Fighter::TextCount);
    StreamForm::readFixedList(in, integers, Entity_Fighter::NumberCount);
    in >> birth;
    StreamForm::readMultiMap(in, history);
    StreamForm::readStringList(in, titles);
    // a record that came up short is left as it was
    if (in.status() == QDataStream::Ok)
        fighter.unpack(strings, integers, birth, history, titles);
    return in;
}

// --- Career, reputation and skill levels ------------------------------------------------------

#include "fighters/Random.h"
#include "fighters/ReputationScale.h"
#include "fighters/SkillTable.h"

namespace {

// the index of his open reign on `title`, -1 if he holds none
qsizetype openReign(const QStringList &titles, const QString &title)
{
    for (qsizetype i = 0; i < titles.size(); ++i) {
        if (titles[i].contains(title) && !titles[i].contains("until"))
            return i;
    }
    return -1;
}

// a won earlier round of a tournament costs no fight: he fights on under the same contract entry
bool usesUpContractOnWin(const QString &matchType)
{
    return matchType == QLatin1String(GameLists::SingleMatch) ||
           matchType == QLatin1String(GameLists::ChampionshipMatch) ||
           matchType == QLatin1String(GameLists::TournamentFinal);
}

} // namespace

void Entity_Fighter::addResult(const QDate &date, QString &result, const QString &matchType)
{
    const QString dateText = date.toString(Qt::TextDate);
    const qsizetype bar = result.indexOf('|');
    if (bar >= 0) {
        QString title = result.mid(bar + 1);
        result.truncate(bar);
        const qsizetype reign = openReign(titles, title);
        if (ResultEntry(result).isWin()) {
            if (reign < 0) {
                result += " - Won " + title;
                // a tournament title carries its year and needs no reign
                if (!title.contains(QString::number(date.year())))
                    title += " - from " + dateText;
                titles.append(title);
            } else {
                result += " - Retained " + title;
            }
        } else if (ResultEntry(result).isLoss() && reign >= 0) {
            result += " - Lost " + title;
            titles[reign] += " until " + dateText;
        }
    }
    careerHistory.insert(date, result);

    const ResultEntry entry(result);
    if (entry.isWin()) {
        ++numbers[Wins];
        if (!entry.byDecision())
            ++numbers[Kos];
    } else if (entry.isLoss()) {
        ++numbers[Losses];
    }

    const bool comesOff = entry.isLoss() || (entry.isWin() && usesUpContractOnWin(matchType));
    if (!comesOff)
        return;
    if (--numbers[ContractFightsLeft] < 1) {
        // a champion whose contract runs out gives up his world title with it
        const qsizetype reign = openReign(titles, "World Championship");
        if (reign >= 0)
            titles[reign] += " until " + dateText;
        texts[Organisation] = GameLists::FreeAgent;
    }
}

void Entity_Fighter::updateReputationFromRanking()
{
    Random::seedFromClock();
    const int spread = 1 + qrand() % 50;
    const int sign = (qrand() % 45) % 2 == 0 ? 1 : -1;
    const int value = numbers[RankingScore] + qrand() % 21 + sign * spread;
    const QString label = ReputationScale::fromRanking(value);
    if (!label.isEmpty())
        texts[Reputation] = label;
}

void Entity_Fighter::moveSkillAttributes(int skill, int step)
{
    for (Number attribute : SkillTable::attributes(skill))
        numbers[attribute] += step;
}

// --- Yearly development -----------------------------------------------------------------------

namespace {

// What a birthday does to each attribute, by the age that he leaves behind: up while he is young,
// nothing in his prime, down when he is old. The change is (a roll below `range`, plus `base`)
// times `sign`.
struct GrowthRow {
    int fromAge;
    int sign;
    int base;
    int range;
};

constexpr GrowthRow growthByAge[] = {
    {std::numeric_limits<int>::min(), +1, 0, 1}, // a boy below 18 grows by training alone
    {18, +1, 1, 3},
    {22, +1, 0, 3},
    {24, +1, 0, 2},
    {30, +1, 0, 1},
    {35, -1, 0, 2},
    {37, -1, 0, 3},
};

const GrowthRow &growthRow(int ageBefore)
{
    const GrowthRow *row = &growthByAge[0];
    for (const GrowthRow &candidate : growthByAge) {
        if (candidate.fromAge <= ageBefore)
            row = &candidate;
    }
    return *row;
}

// the attributes are rolled in these runs, with a stirred generator between two runs
constexpr int growthBatches[] = {6, 6, 6, 6, 6, 6, 4, 4, 4, 4, 4, 5, 4, 6, 6, 6};

constexpr int batchTotal()
{
    int total = 0;
    for (int size : growthBatches)
        total += size;
    return total;
}
static_assert(batchTotal() == Entity_Fighter::AttributeCount, "the runs cover every attribute once");

constexpr int StirRange = 20;

} // namespace

void Entity_Fighter::developOneYear()
{
    Random::seedFromClock();
    const GrowthRow &row = growthRow(numbers[Age]);
    ++numbers[Age];
    int attribute = FirstAttribute;
    const int batchCount = int(std::size(growthBatches));
    for (int batch = 0; batch < batchCount; ++batch) {
        for (int i = 0; i < growthBatches[batch]; ++i, ++attribute)
            numbers[attribute] += (qrand() % row.range + row.base) * row.sign;
        if (batch + 1 < batchCount)
            Random::stir(qrand() % StirRange);
    }
    clampAttributes();
}

QString Entity_Fighter::birthdayLine() const
{
    return fullName() + " has turned " + QString::number(numbers[Age]) + " years old.";
}
