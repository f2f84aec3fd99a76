#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/NationTable.h"

#include <QDate>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

// The rules of a new person: where he comes from, his name, and what he is made of. The world
// brings in its new students and free agents with them, and the tool that makes the first world
// builds its men with the same steps.
class FighterGenerator
{
public:
    struct Origin {
        int region = 0;
        QString nation;
    };
    // A free agent comes from a main nation, or one time in four from anywhere. A student comes
    // from his manager's nation when that is a main nation (but for one time in four); otherwise
    // mostly from a nation of the manager's region, one time in three from anywhere.
    static Origin chooseOrigin(const NationTable::Lists &lists, bool forGym, const QString &managerNation,
                               const QString &managerRegion);
    // a random nation of the region; a region without a list takes its main nations
    static Origin anyNationOf(const NationTable::Lists &lists, int region);

    struct Names {
        QStringList first;
        QStringList last;
    };
    // What new men are drawn from: the nations of the eight regions, and the first and last
    // names of a family. The game reads them from its files when a man is made; a test may hand
    // in lists of its own.
    struct NameBook {
        std::function<NationTable::Lists()> nations;
        std::function<Names(const QString &family)> names;
    };
    // the book's eight lists; empty ones for a book without them
    static NationTable::Lists nationsOf(const NameBook &book);
    // the book's names of a family, each list with the single entry "N/A" when it came up empty
    static Names namesOf(const NameBook &book, const QString &family);
    // A first and a last name whose full name nobody in `taken` bears. After a bounded number of
    // random draws every pair is tried once from a random place; false when all are taken.
    static bool drawName(const Names &names, const QSet<QString> &taken, QString &first, QString &last);

    // the quality that a roll of 0 to 70 gives
    static int qualityBonus(int roll);

    // What a person is made of beyond chance.
    struct Recipe {
        bool forGym = false;
        QString gymStyle; // a student often takes the gym's style and always its colours
        QString gymShorts;
        QString gymTrim;
        int grade = -1; // -1: drawn as for a free agent (two rolls of 0 to 9, and 7 more quality)
        int seer = 10;  // who reads his traits: a manager's Intuition, or 10 for the world
        QDate today;
    };
    // One new man of 18 from an origin and a name: his strings, attributes, traits and bio, looks
    // and birth date. Id 0 and ranking score 8000; the attributes are left unclamped.
    static Entity_Fighter makePerson(const Origin &origin, const QString &first, const QString &last,
                                     const Recipe &recipe);
};
