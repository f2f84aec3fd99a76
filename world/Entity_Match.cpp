#include "world/Entity_Match.h"

#include "fighters/StreamForm.h"

Entity_Match::Entity_Match(const QString &matchType)
    : one(OpenPlace)
    , two(OpenPlace)
    , type(matchType)
    , spareText(OpenPlace)
{
}

void Entity_Match::pack(QStringList &strings, int &firstId, int &secondId, bool &userBooked) const
{
    strings = {one, two, type, spareText};
    firstId = oneId;
    secondId = twoId;
    userBooked = gymBooked;
}

void Entity_Match::unpack(const QStringList &strings, int firstId, int secondId, bool userBooked)
{
    one = strings[0];
    two = strings[1];
    type = strings[2];
    spareText = strings[3];
    oneId = firstId;
    twoId = secondId;
    gymBooked = userBooked;
}

bool Entity_Match::isFilled() const
{
    return one != OpenPlace && two != OpenPlace;
}

bool Entity_Match::holds(int id) const
{
    return (one != OpenPlace && oneId == id) || (two != OpenPlace && twoId == id);
}

bool Entity_Match::addFighter(int id, const QString &name, bool isGymFighter)
{
    if (isGymFighter && gymBooked)
        return false;
    if (one == OpenPlace) {
        one = name;
        oneId = id;
    } else if (two == OpenPlace) {
        two = name;
        twoId = id;
    } else {
        return false;
    }
    if (!gymBooked)
        gymBooked = isGymFighter;
    return true;
}

void Entity_Match::removeFighter(int id, bool isGymFighter)
{
    if (one != OpenPlace && oneId == id) {
        one = OpenPlace;
        oneId = 0;
    } else if (two != OpenPlace && twoId == id) {
        two = OpenPlace;
        twoId = 0;
    }
    if (isGymFighter)
        gymBooked = false;
}

void Entity_Match::reset()
{
    one = OpenPlace;
    two = OpenPlace;
    spareText = OpenPlace;
    oneId = 0;
    twoId = 0;
    gymBooked = false;
}

bool Entity_Match::operator==(const Entity_Match &other) const
{
    return one == other.one && two == other.two && type == other.type && spareText == other.spareText &&
           oneId == other.oneId && twoId == other.twoId && gymBooked == other.gymBooked;
}

QDataStream &operator<<(QDataStream &out, const Entity_Match &match)
{
    QStringList strings;
    int oneId = 0;
    int twoId = 0;
    bool gymBooked = false;
    match.pack(strings, oneId, twoId, gymBooked);
    StreamForm::writeStringList(out, strings);
    out << qint32(oneId) << qint32(twoId) << gymBooked;
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_Match &match)
{
    QStringList strings;
    qint32 oneId = 0;
    qint32 twoId = 0;
    bool gymBooked = false;
    StreamForm::readFixedStringList(in, strings, Entity_Match::TextCount);
    in >> oneId >> twoId >> gymBooked;
    if (in.status() == QDataStream::Ok)
        match.unpack(strings, oneId, twoId, gymBooked);
    return in;
}
