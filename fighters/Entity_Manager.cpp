#include "fighters/Entity_Manager.h"

#include "fighters/ReputationScale.h"
#include "fighters/StreamForm.h"

#include <algorithm>

namespace {

constexpr int ReputationCeiling = 1000;

// a text of what Intuition reads: hidden below a level of the ability, else the row of the value
struct IntuitionText {
    int readFrom;
    int rowCount;
    const char *rows[5];
    const char *otherwise;
};

constexpr IntuitionText learningSpeedTexts{8, 3, {"Slow", "Average", "Fast"}, "Average"};
constexpr IntuitionText fatigueTexts{5, 5, {"Peak", "Great", "Normal", "Tired", "Exhausted"}, "Normal"};

QString intuitionText(const IntuitionText &table, int intuition, int value)
{
    if (intuition < table.readFrom)
        return QStringLiteral("Can't Tell");
    if (value < 0 || value >= table.rowCount)
        return table.otherwise;
    return table.rows[value];
}

// the 18 skills and abilities as the screens name them, in the order of the values from Punch on,
// each with the heading of its block
struct SkillName {
    const char *label;
    const char *heading;
};

constexpr SkillName skillNames[Entity_Manager::SkillCount] = {
    {"Punch", "Training - Offense"},
    {"Kick", "Training - Offense"},
    {"Clinch Off.", "Training - Offense"},
    {"Movement", "Training - Defense"},
    {"Guard", "Training - Defense"},
    {"Clinch Def.", "Training - Defense"},
    {"Power", "Training - Physical"},
    {"Speed", "Training - Physical"},
    {"Conditioning", "Training - Physical"},
    {"Timing", "Training - Mental"},
    {"Intelligence", "Training - Mental"},
    {"Discipline", "Training - Mental"},
    {"Scouting", "Abilities"},
    {"Motivating", "Abilities"},
    {"Cornering", "Abilities"},
    {"Negotiating", "Abilities"},
    {"Charisma", "Abilities"},
    {"Intuition", "Abilities"},
};

template <typename Array, typename List> void copyIn(Array &target, const List &source)
{
    for (std::size_t i = 0; i < target.size(); ++i)
        target[i] = source.value(qsizetype(i));
}

} // namespace

Entity_Manager::Entity_Manager()
{
    texts[ManagerReputation] = ReputationScale::labelOfBand(ReputationScale::Manager, 0);
}

QString Entity_Manager::skillLabel(int skill)
{
    return skill >= 0 && skill < SkillCount ? QString(skillNames[skill].label) : QString();
}

QString Entity_Manager::skillHeading(int skill)
{
    return skill >= 0 && skill < SkillCount ? QString(skillNames[skill].heading) : QString();
}

void Entity_Manager::pack(QStringList &strings, QList<int> &valueList, QStringList &titleList) const
{
    strings = this->strings();
    valueList = values();
    titleList = titles;
}

void Entity_Manager::unpack(const QStringList &strings, const QList<int> &valueList, const QStringList &titleList)
{
    copyIn(texts, strings);
    copyIn(numbers, valueList);
    titles = titleList;
}

QStringList Entity_Manager::strings() const
{
    return QStringList(texts.cbegin(), texts.cend());
}

QList<int> Entity_Manager::values() const
{
    return QList<int>(numbers.cbegin(), numbers.cend());
}

void Entity_Manager::setSkills(const QList<int> &skills)
{
    for (int i = 0; i < SkillCount && i < skills.size(); ++i)
        numbers[Punch + i] = skills[i];
}

void Entity_Manager::addWin()
{
    ++numbers[OverallWins];
    ++numbers[ActiveWins];
}

void Entity_Manager::addLoss()
{
    ++numbers[OverallLosses];
    ++numbers[ActiveLosses];
}

void Entity_Manager::removeFromActiveRecord(int wins, int losses)
{
    numbers[ActiveWins] -= wins;
    numbers[ActiveLosses] -= losses;
}

void Entity_Manager::addTitle(const QDate &date, const QString &title)
{
    const bool reignOpen = std::any_of(titles.cbegin(), titles.cend(), [&](const QString &entry) {
        return entry.contains(title) && !entry.contains("until");
    });
    if (reignOpen)
        return;
    QString entry = title;
    if (!title.contains(QString::number(date.year())))
        entry += " - from " + date.toString(Qt::TextDate);
    titles.append(entry);
}

void Entity_Manager::closeTitle(const QDate &date, const QString &title)
{
    for (QString &entry : titles) {
        if (entry.contains(title) && entry.contains("World Championship") && !entry.contains("until")) {
            entry += " until " + date.toString(Qt::TextDate);
            return;
        }
    }
}

bool Entity_Manager::gainReputation(bool bigWin)
{
    const int before = numbers[ReputationValue];
    const int gain = 10 + numbers[Charisma] / 2 + (bigWin ? 15 : 0);
    numbers[ReputationValue] = std::min(before + gain, ReputationCeiling);
    const int band = ReputationScale::band(numbers[ReputationValue]);
    if (band <= ReputationScale::band(before))
        return false;
    texts[ManagerReputation] = ReputationScale::labelOfBand(ReputationScale::Manager, band);
    return true;
}

QString Entity_Manager::learningSpeedText(int value) const
{
    return intuitionText(learningSpeedTexts, numbers[Intuition], value);
}

QString Entity_Manager::fatigueText(int band) const
{
    return intuitionText(fatigueTexts, numbers[Intuition], band);
}

bool Entity_Manager::operator==(const Entity_Manager &other) const
{
    return texts == other.texts && numbers == other.numbers && titles == other.titles;
}

QDataStream &operator<<(QDataStream &out, const Entity_Manager &manager)
{
    StreamForm::writeStringList(out, manager.strings());
    StreamForm::writeList(out, manager.values());
    StreamForm::writeStringList(out, manager.titleList());
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_Manager &manager)
{
    QStringList strings;
    QList<int> values;
    QStringList titles;
    StreamForm::readFixedStringList(in, strings, Entity_Manager::TextCount);
    StreamForm::readFixedList(in, values, Entity_Manager::ValueCount);
    StreamForm::readStringList(in, titles);
    if (in.status() == QDataStream::Ok)
        manager.unpack(strings, values, titles);
    return in;
}
