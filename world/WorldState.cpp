#include "world/WorldState.h"

#include "fighters/StreamForm.h"

#include <QIODevice>

#include <algorithm>

void WorldState::write(QDataStream &out) const
{
    out << qint32(nextId) << currentDate << manager << gym;
    StreamForm::writeList(out, students);
    StreamForm::writeList(out, fighters);
    StreamForm::writeList(out, organisations);
    StreamForm::writeMap(out, freeAgents);
    StreamForm::writeList(out, offers);
    StreamForm::writeList(out, bookings);
    StreamForm::writeMap(out, amateurs);
}

QByteArray WorldState::bytes() const
{
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    write(out);
    return data;
}

bool WorldState::fromBytes(const QByteArray &data, WorldState &world, QString *reason)
{
    // everything goes into a fresh value first: data that fails halfway must not leave half a world
    WorldState read;
    QDataStream in(data);
    in.setVersion(StreamForm::version);
    qint32 id = 0;
    in >> id >> read.currentDate >> read.manager >> read.gym;
    read.nextId = id;
    StreamForm::readList(in, read.students);
    StreamForm::readList(in, read.fighters);
    StreamForm::readList(in, read.organisations);
    StreamForm::readMultiMap(in, read.freeAgents);
    StreamForm::readList(in, read.offers);
    StreamForm::readList(in, read.bookings);
    StreamForm::readMultiMap(in, read.amateurs);

    QString fault;
    if (data.isEmpty())
        fault = QStringLiteral("The file is empty.");
    else if (in.status() == QDataStream::ReadPastEnd)
        fault = QStringLiteral("The file ends before the world does.");
    else if (in.status() != QDataStream::Ok)
        fault = QStringLiteral("The file is damaged or is no saved game.");
    else if (!read.currentDate.isValid())
        fault = QStringLiteral("The file holds no valid date.");
    else if (!in.atEnd())
        fault = QStringLiteral("The file holds more than a saved game.");
    if (!fault.isEmpty()) {
        if (reason)
            *reason = fault;
        return false;
    }
    world = std::move(read);
    return true;
}

Entity_Org *WorldState::organisationNamed(const QString &name)
{
    const auto it = std::find_if(organisations.begin(), organisations.end(),
                                 [&](const Entity_Org &org) { return org.name() == name; });
    return it != organisations.end() ? &*it : nullptr;
}

const Entity_Org *WorldState::organisationNamed(const QString &name) const
{
    const auto it = std::find_if(organisations.cbegin(), organisations.cend(),
                                 [&](const Entity_Org &org) { return org.name() == name; });
    return it != organisations.cend() ? &*it : nullptr;
}

qsizetype WorldState::fighterIndexOf(int id) const
{
    for (qsizetype i = 0; i < fighters.size(); ++i) {
        if (fighters[i].getId() == id)
            return i;
    }
    return -1;
}
