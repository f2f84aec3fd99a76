#pragma once

#include <QString>

// One entry of a career, read once into its fields, so that rules compare whole words and never
// search the names of men, nights or organisations that stand in it. An entry reads
// "Win: <opponent> - <method> - Rd. <round>(<time>) - <organisation>: <night>", perhaps with
// "|<title>" behind it before it enters a career, or " - Won <title>" and the like after.
class ResultEntry
{
public:
    enum class Outcome { Draw, Win, Loss };

    explicit ResultEntry(const QString &entry);
    // the outcome alone, read without the rest of the entry: for rules that weigh many entries
    static Outcome outcomeOf(const QString &entry);

    Outcome outcome() const { return result; }
    bool isWin() const { return result == Outcome::Win; }
    bool isLoss() const { return result == Outcome::Loss; }
    // "KO(Jab)", "TKO(Low Kick)", "Decision", "Split Decision" ...; empty when the entry names none
    const QString &method() const { return how; }
    bool byDecision() const;
    // a knockout of either kind, the technical one included
    bool byKnockout() const;
    // the title behind the "|", empty for a fight without one
    const QString &title() const { return titleText; }
    bool isTitleFight() const { return !titleText.isEmpty(); }

private:
    Outcome result = Outcome::Draw;
    QString how;
    QString titleText;
};
