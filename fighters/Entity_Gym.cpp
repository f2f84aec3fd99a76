#include "fighters/Entity_Gym.h"

#include "fighters/ReputationScale.h"
#include "fighters/StreamForm.h"

#include <algorithm>

namespace {

// by the level before the upgrade
// clang-format off
constexpr int equipmentPrices[Entity_Gym::TopLevel] = {1000,  3500,  7000,   15000,  30000,
                                                       50000, 75000, 100000, 250000, 500000};

struct GymUpgrade {
    int price;
    int studentSlots;
    int fighterSlots;
};

// a new gym holds one fighter until its second upgrade; level 10 has 15 students and 10 fighters
constexpr GymUpgrade gymUpgrades[Entity_Gym::TopLevel] = {
    {5000, 1, 0},    {10000, 1, 1},   {25000, 2, 1},   {50000, 1, 1},   {150000, 1, 1},
    {500000, 1, 1},  {750000, 1, 1},  {1000000, 1, 1}, {1500000, 1, 1}, {2000000, 2, 1},
};
// clang-format on

constexpr int StudentFeeBase = 50;
constexpr int StudentFeePerLevel = 20;

template <typename Array, typename List> void copyIn(Array &target, const List &source)
{
    for (std::size_t i = 0; i < target.size(); ++i)
        target[i] = source.value(qsizetype(i));
}

} // namespace

Entity_Gym::Entity_Gym()
{
    texts[GymPrestige] = ReputationScale::labelOfBand(ReputationScale::Gym, 0);
    numbers[Money] = 10000;
    numbers[StudentSlots] = 3;
    numbers[FighterSlots] = 1;
}

void Entity_Gym::pack(QStringList &strings, QList<int> &valueList, QList<int> &ledgerList) const
{
    strings = this->strings();
    valueList = values();
    ledgerList = ledger();
}

void Entity_Gym::unpack(const QStringList &strings, const QList<int> &valueList, const QList<int> &ledgerList)
{
    copyIn(texts, strings);
    copyIn(numbers, valueList);
    copyIn(books, ledgerList);
}

QStringList Entity_Gym::strings() const
{
    return QStringList(texts.cbegin(), texts.cend());
}

QList<int> Entity_Gym::values() const
{
    return QList<int>(numbers.cbegin(), numbers.cend());
}

QList<int> Entity_Gym::ledger() const
{
    return QList<int>(books.cbegin(), books.cend());
}

int Entity_Gym::equipmentLevel(int equipment) const
{
    if (equipment < 0 || equipment >= EquipmentCount)
        return 0;
    return numbers[FirstEquipment + equipment];
}

int Entity_Gym::equipmentPrice(int levelBefore)
{
    return levelBefore >= 0 && levelBefore < TopLevel ? equipmentPrices[levelBefore] : 0;
}

int Entity_Gym::gymUpgradePrice(int levelBefore)
{
    return levelBefore >= 0 && levelBefore < TopLevel ? gymUpgrades[levelBefore].price : 0;
}

bool Entity_Gym::upgradeEquipment(int equipment)
{
    if (equipment < 0 || equipment >= EquipmentCount)
        return false;
    int &level = numbers[FirstEquipment + equipment];
    if (level < 0 || level >= TopLevel || numbers[Money] < equipmentPrices[level])
        return false;
    numbers[Money] -= equipmentPrices[level];
    books[UpgradeCosts] += equipmentPrices[level];
    ++level;
    return true;
}

bool Entity_Gym::upgradeGym()
{
    int &level = numbers[GymLevel];
    if (level < 0 || level >= TopLevel || numbers[Money] < gymUpgrades[level].price)
        return false;
    const GymUpgrade &row = gymUpgrades[level];
    numbers[Money] -= row.price;
    books[UpgradeCosts] += row.price;
    numbers[StudentSlots] += row.studentSlots;
    numbers[FighterSlots] += row.fighterSlots;
    ++level;
    return true;
}

void Entity_Gym::chargeTraining(int amount)
{
    numbers[Money] -= amount;
    books[TrainingCosts] += amount;
}

void Entity_Gym::addIncome(int amount, bool isPurse)
{
    numbers[Money] += amount;
    books[isPurse ? FighterPurses : StudentFees] += amount;
}

void Entity_Gym::rollMonth()
{
    for (int entry = TrainingCosts; entry <= FighterPurses; ++entry) {
        books[entry + LastTrainingCosts] = books[entry];
        books[entry] = 0;
    }
}

int Entity_Gym::revenueThisMonth() const
{
    return books[StudentFees] + books[FighterPurses] - books[TrainingCosts] - books[UpgradeCosts];
}

int Entity_Gym::revenueLastMonth() const
{
    return books[LastStudentFees] + books[LastFighterPurses] - books[LastTrainingCosts] - books[LastUpgradeCosts];
}

void Entity_Gym::gainPrestige(bool big)
{
    numbers[PrestigePoints] = std::min(numbers[PrestigePoints] + (big ? 16 : 8), 1000);
    texts[GymPrestige] = ReputationScale::label(ReputationScale::Gym, numbers[PrestigePoints]);
}

void Entity_Gym::losePrestige(bool big)
{
    numbers[PrestigePoints] = std::max(numbers[PrestigePoints] - (big ? 5 : 2), 0);
    // a gym that has reached the top keeps its name while it stays above 900
    if (numbers[PrestigePoints] <= 900)
        texts[GymPrestige] = ReputationScale::label(ReputationScale::Gym, numbers[PrestigePoints]);
}

int Entity_Gym::prestigeLevel() const
{
    return std::max(ReputationScale::bandOfLabel(ReputationScale::Gym, texts[GymPrestige]), 0);
}

int Entity_Gym::studentFee() const
{
    return StudentFeeBase + StudentFeePerLevel * prestigeLevel();
}

bool Entity_Gym::operator==(const Entity_Gym &other) const
{
    return texts == other.texts && numbers == other.numbers && books == other.books;
}

QDataStream &operator<<(QDataStream &out, const Entity_Gym &gym)
{
    StreamForm::writeStringList(out, gym.strings());
    StreamForm::writeList(out, gym.values());
    StreamForm::writeList(out, gym.ledger());
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_Gym &gym)
{
    QStringList strings;
    QList<int> values;
    QList<int> ledger;
    StreamForm::readFixedStringList(in, strings, Entity_Gym::TextCount);
    StreamForm::readFixedList(in, values, Entity_Gym::ValueCount);
    StreamForm::readFixedList(in, ledger, Entity_Gym::LedgerCount);
    if (in.status() == QDataStream::Ok)
        gym.unpack(strings, values, ledger);
    return in;
}
