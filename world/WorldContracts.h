#pragma once

#include "fighters/Entity_GymFighter.h"
#include "world/Entity_Booking.h"

#include <QDate>
#include <QMap>
#include <QString>
#include <QStringList>

struct WorldState;

// What ties the men to the organisations. Every night the organisations ask the men whose
// contracts run low to stay and let go those whose contracts are spent; old offers go, and new
// one-off offers come to the user's free agents. The user's fighters have a booking for their
// next fight; the user negotiates their contracts and takes or turns down offers, and the money
// rules decide.
class WorldContracts
{
public:
    explicit WorldContracts(WorldState &world);

    // --- Bookings ------------------------------------------------------------------------------
    // the fighter's record takes all five fields
    void replaceBooking(const Entity_Booking &record);
    // his record keeps id and name and goes back to "N/A" and no date
    void clearBooking(int id);
    // full name to event name, " - " and the date text; a later record of one name wins
    QMap<QString, QString> bookingsByFighter() const;

    // --- The night's jobs ----------------------------------------------------------------------
    struct Moves {
        int renewals = 0;
        int releases = 0;
    };
    // all renewals first, then every organisation lets its spent men go to the free agents
    Moves processContracts(QStringList &news);
    // an offer goes once its night lies fewer than 8 days off
    void removeExpiredOffers();
    // at most one offer a night and organisation, to a free agent of the user of the wanted label
    void makeOffers();

    // --- The user's contracts ------------------------------------------------------------------
    // the organisation's contract of the fighter at that position: "N/A", 0 and 0 for nobody
    void fighterContract(int index, QString &organisation, int &fights, int &purse) const;
    // the organisation weighs the user's man with the manager's Negotiating; false for an
    // organisation that does not exist
    bool negotiate(const QString &orgName, const Entity_GymFighter &man, int fights, int money, QString &message);
    // a purse below 0 is the default purse of the organisation's prestige
    void signContract(int id, const QString &orgName, int fights, int purse);
    // Only the organisation's next night can be joined, and only while its undercard has room;
    // `date` is compared without its year.
    bool addToEvent(int id, const QString &name, const QString &orgName, const QString &eventName,
                    const QString &matchType, const QDate &date, bool isGymFighter);

    // --- Offers --------------------------------------------------------------------------------
    // an empty record for a row that holds no offer
    Entity_Booking offerAt(int row) const;
    // the night of each offer, in list order
    QStringList offerEventNames() const;
    void removeOffersFor(int id);
    // every offer for that event goes; a booking into it takes the open place of the offer
    void removeOffersForEvent(const QString &eventName);

    // --- What the management screen asks and answers -------------------------------------------
    // The answer when the man at `fighterIndex` cannot talk to that organisation at all, before
    // any question; empty when he can.
    QString negotiationBar(int fighterIndex, const QString &orgName) const;
    QString negotiationQuestion(int fighterIndex, const QString &orgName) const;
    // the user confirmed: the talk, the contract if it came, and the answer to show; his offers
    // go whatever came of it
    QString negotiateContract(int fighterIndex, const QString &orgName, int fights, int purse);
    QString offerQuestion(int row) const;
    // the user accepted the offer of that row: one fight at the default purse, and the answer
    QString acceptOffer(int row);
    void rejectOffer(const QString &eventName);

    static constexpr const char *Signed = "The contract has been signed.";

private:
    int defaultPurse(const Entity_GymFighter &man, const QString &orgName) const;

    WorldState &world;
};
