#pragma once

#include <QDataStream>
#include <QDate>
#include <QString>
#include <QStringList>

// The tie of one of the user's fighters to one event: his next fight, or an offer of one. The
// event is named as it stood when the record was written.
class Entity_Booking
{
public:
    static constexpr int TextCount = 3;

    // the empty record: no fighter, "N/A", and a date before 2000, which counts as no date
    Entity_Booking();
    Entity_Booking(int fighterId, const QString &fighterName, const QString &eventName, const QString &organisationName,
                   const QDate &eventDate);
    // an empty record of one fighter: his event and organisation "N/A", the date given
    static Entity_Booking emptyFor(int fighterId, const QString &fighterName, const QDate &date);

    // the id, three strings (fighter, event, organisation) and the date
    void pack(int &id, QStringList &strings, QDate &date) const;
    // nothing is checked: the list must hold three strings
    void unpack(int id, const QStringList &strings, const QDate &date);

    int fighterId() const { return id; }
    QString fighterName() const { return fighter; }
    QString eventName() const { return event; }
    QString organisationName() const { return organisation; }
    QDate eventDate() const { return date; }
    bool hasDate() const { return date.year() >= 2000; }
    // "N/A" for no date
    QString dateText() const;

    bool operator==(const Entity_Booking &other) const;

private:
    int id = 0;
    QString fighter;
    QString event;
    QString organisation;
    QDate date;
};

QDataStream &operator<<(QDataStream &out, const Entity_Booking &booking);
QDataStream &operator>>(QDataStream &in, Entity_Booking &booking);
