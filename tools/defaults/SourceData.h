#pragma once

#include "fighters/FighterGenerator.h"
#include "fighters/NationTable.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

// The readable sources of the first world in data/, read and checked: the nations, the name
// families, the eighteen organisations, the lists of free agents and amateurs and the help texts.
// Every fault is collected with the file it stands in, so one run reports them all.
class SourceData
{
public:
    using Weights = QList<QPair<QString, int>>; // a choice and its weight

    struct Night {
        QDate date;
        QString name;
        QString city;
        QString type;
        QStringList card; // match types in running order, the main event last
    };

    struct Organisation {
        QString key;
        QString name;
        QString ceo;
        QString nation;
        QString note;
        QString prestige;
        QString bio;
        int rosterSize = 0;
        int released = 0; // men of its past who are free agents now
        int skillLow = 0;
        int skillHigh = 0;
        int rankingTop = 0;
        int rankingBottom = 0;
        Weights origins;      // a nation, a region, or "*" for anywhere
        Weights backgrounds;  // fighting backgrounds the promotion favours
        QString championship; // the lasting title, or empty
        QString grandPrix;    // the tournament title without its year, or empty
        QList<Night> calendar;
    };

    struct FighterList {
        int list = 0;
        QStringList releasedBy; // the prestige levels whose released men stand in this list
        int count = 0;          // new men of the given ages
        int ageLow = 0;
        int ageHigh = 0;
    };

    struct World {
        quint32 seed = 0;
        int firstId = 0;
        int historyFrom = 0;
        QDate start;
        QList<FighterList> freeAgents;
        QList<FighterList> amateurs;
    };

    // reads everything under `dataFolder`; false when any fault was found
    bool load(const QString &dataFolder);
    QStringList faults() const { return errors; }

    NationTable::Lists nations;
    QMap<QString, FighterGenerator::Names> names; // family to its lists
    QList<Organisation> organisations;            // in the table's order
    World world;
    QList<QMap<QString, QString>> help; // the ten screens: topic to text

    // the match types of a card text such as "6 Single, Championship"; empty and a fault if wrong
    static QStringList parseCard(const QString &text, QString &fault);
    // what is wrong with a card's shape, or nothing
    static QString cardFault(const QStringList &card);
    // what a name of a man may not hold: the marks that results and event names are read by
    static QString nameFault(const QString &name);

private:
    void readNations(const QString &path);
    void readNames(const QString &folder);
    void readOrganisation(const QString &path, int index);
    void checkCalendar(const Organisation &organisation, const QString &file);
    void readWorld(const QString &path);
    void readHelp(const QString &path);
    void fault(const QString &file, const QString &text);

    QStringList errors;
};
