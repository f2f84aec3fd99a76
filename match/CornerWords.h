#pragma once

#include <QString>
#include <QStringList>

// What the corner says to a man and what it sees in him: the instructions on offer for each
// tactic with the tactic each one sets, and the lines of his stamina and of each body part.
class CornerWords
{
public:
    enum BodyPart { Head, Body, Arms, Legs };

    // the lines on offer for a tactic, the one that keeps things as they are first
    static QStringList instructionsFor(int tactic);
    // the tactic that an instruction sets; a line not on offer for the tactic sets 0
    static int tacticAfter(int tactic, const QString &instruction);

    static QString staminaLine(int band);
    // code 4 when the part is above half of its ceiling, down to 0 when it is spent
    static QString bodyPartLine(BodyPart part, int code);
    static int conditionCode(int health, int ceiling);
};
