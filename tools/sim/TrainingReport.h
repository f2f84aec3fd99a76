#pragma once

#include "fighters/FighterGenerator.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class GameManager;

// orvane-sim's --train PLAN[,PLAN...]: the gym takes a fighter for each plan (its fighters first,
// then its students, turned professional) and puts his plan's equipment on level 1, so that the
// day's training costs money. The yearly report then tells what training did to each man: the
// skills that levelled up and down, his fatigue, the days without money, and what the gym spent.
class TrainingReport
{
public:
    // "1" or "1,4,13": each plan 0 to 21; false for anything else
    static bool parsePlans(const QString &text, QList<int> &plans);

    // Sets the gym up; false, with the reason, when it cannot take a fighter for every plan.
    bool start(GameManager &world, const FighterGenerator::NameBook &names, const QList<int> &plans, QString &reason);
    bool isActive() const { return !trainees.isEmpty(); }

    // one paragraph of the day's news, as the Next Day screen prints it
    void readNews(const QString &paragraph);
    void beforeDay(const GameManager &world);
    void afterDay(const GameManager &world);
    // the year's lines; the counts start again
    QStringList finishYear(const GameManager &world);

private:
    struct Trainee {
        int id = 0;
        QString name;
        int plan = 0;
        QMap<QString, int> levelsUp;
        QMap<QString, int> levelsDown;
        int daysWithoutMoney = 0;
    };

    QList<Trainee> trainees;
    int costsThisMonth = 0; // the gym's books before the day
    int spentThisYear = 0;
};
