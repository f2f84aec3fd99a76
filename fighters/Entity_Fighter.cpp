#include "fighters/Entity_Fighter.h"

#include "fighters/StreamForm.h"

#include <algorithm>

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

bool Entity_Fighter::operator==(const Entity_Fighter &other) const
{
    return texts == other.texts && birthDate == other.birthDate && careerHistory == other.careerHistory
        && titles == other.titles && numbers == other.numbers;
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
