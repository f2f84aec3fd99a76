#include "world/Entity_Booking.h"

#include "fighters/GameLists.h"
#include "fighters/StreamForm.h"

namespace {
constexpr const char *Empty = GameLists::NoRecord;
} // namespace

Entity_Booking::Entity_Booking()
    : Entity_Booking(0, Empty, Empty, Empty, QDate(1999, 1, 1))
{
}

Entity_Booking::Entity_Booking(int fighterId, const QString &fighterName, const QString &eventName,
                               const QString &organisationName, const QDate &eventDate)
    : id(fighterId)
    , fighter(fighterName)
    , event(eventName)
    , organisation(organisationName)
    , date(eventDate)
{
}

Entity_Booking Entity_Booking::emptyFor(int fighterId, const QString &fighterName, const QDate &eventDate)
{
    return Entity_Booking(fighterId, fighterName, Empty, Empty, eventDate);
}

void Entity_Booking::pack(int &idOut, QStringList &strings, QDate &dateOut) const
{
    idOut = id;
    strings = {fighter, event, organisation};
    dateOut = date;
}

void Entity_Booking::unpack(int idIn, const QStringList &strings, const QDate &dateIn)
{
    id = idIn;
    fighter = strings[0];
    event = strings[1];
    organisation = strings[2];
    date = dateIn;
}

QString Entity_Booking::dateText() const
{
    return hasDate() ? date.toString(Qt::TextDate) : QString(Empty);
}

bool Entity_Booking::operator==(const Entity_Booking &other) const
{
    return id == other.id && fighter == other.fighter && event == other.event && organisation == other.organisation &&
           date == other.date;
}

QDataStream &operator<<(QDataStream &out, const Entity_Booking &booking)
{
    int id = 0;
    QStringList strings;
    QDate date;
    booking.pack(id, strings, date);
    out << qint32(id);
    StreamForm::writeStringList(out, strings);
    out << date;
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_Booking &booking)
{
    qint32 id = 0;
    QStringList strings;
    QDate date;
    in >> id;
    StreamForm::readFixedStringList(in, strings, Entity_Booking::TextCount);
    in >> date;
    if (in.status() == QDataStream::Ok)
        booking.unpack(id, strings, date);
    return in;
}
