#include "match/Modifier.h"

void Modifier::apply(QList<int> &scores, Dice &dice, int x, int y) const
{
    int size = 0;
    switch (amount) {
    case X:
        size = x;
        break;
    case XPlusU10:
        size = x + dice.u(10);
        break;
    case Y:
        size = y;
        break;
    case OwnD20:
        size = dice.d(20);
        break;
    }
    scores[option] += sign * size;
}

void Modifier::applyFirst(const QList<Modifier> &rows, int value, QList<int> &scores, Dice &dice, int x, int y)
{
    for (const Modifier &row : rows) {
        if (row.appliesTo(value)) {
            row.apply(scores, dice, x, y);
            return;
        }
    }
}

void Modifier::applyAll(const QList<Modifier> &rows, int value, QList<int> &scores, Dice &dice, int x, int y)
{
    for (const Modifier &row : rows)
        if (row.appliesTo(value))
            row.apply(scores, dice, x, y);
}
