#include "fighters/FighterTraits.h"

#include "fighters/Random.h"

#include <QList>

#include <limits>

namespace {

using F = Entity_Fighter;

struct Effect {
    F::Number attribute;
    int sign;
};

struct Trait {
    QString name;
    int shownFrom;
    QList<Effect> effects;
};

QList<F::Number> strikeAttributes(F::Number (*attributeOf)(int))
{
    QList<F::Number> list;
    for (int strike = 0; strike < F::StrikeCount; ++strike)
        list.append(attributeOf(strike));
    return list;
}

QList<F::Number> defenceAttributes(F::Number (*attributeOf)(int))
{
    QList<F::Number> list;
    for (int defence = 0; defence < F::DefenceCount; ++defence)
        list.append(attributeOf(defence));
    return list;
}

QList<Effect> moving(const QList<F::Number> &attributes, int sign)
{
    QList<Effect> effects;
    for (F::Number attribute : attributes)
        effects.append({attribute, sign});
    return effects;
}

// the plus trait and the minus trait of a pair move the same attributes both ways
void addPair(QList<Trait> &table, const QString &plus, const QString &minus, int shownFrom,
             const QList<F::Number> &attributes)
{
    table.append({plus, shownFrom, moving(attributes, 1)});
    table.append({minus, shownFrom, moving(attributes, -1)});
}

const QList<Trait> &traitTable()
{
    static const QList<Trait> table = [] {
        QList<Trait> t;
        addPair(t, "Hard Hitter", "Weak Hitter", 3, strikeAttributes(F::strikePower));
        addPair(t, "Fast Attack", "Slow Attack", 2, strikeAttributes(F::strikeSpeed));
        addPair(t, "Excellent Attack Technique", "Poor Attack Technique", 6, strikeAttributes(F::strikeTechnique));
        addPair(t, "Fast Defense", "Slow Defense", 4, defenceAttributes(F::defenceSpeed));
        addPair(t, "Excellent Defense Technique", "Poor Defense Technique", 7, defenceAttributes(F::defenceTechnique));
        addPair(t, "Natural Athlete", "Poor Athlete", 1, {F::Conditioning, F::LungCapacity, F::Reflexes, F::Burst});
        addPair(t, "Tough", "Wimp", 1, {F::Resilience, F::Endurance, F::Durability, F::Willpower});
        addPair(t, "Fast Reflexes", "Slow Reflexes", 3, {F::HandSpeed, F::MoveSpeed, F::EvasionSpeed, F::KickSpeed});
        addPair(t, "Ring General", "Easily Rattled", 10, {F::Willpower, F::Concentration, F::RingSense, F::Discipline});
        // the attacker and the defender are no mirror of each other
        t.append({"Natural Attacker", 8, moving({F::PunchPower, F::Aggression, F::Ferocity, F::Precision}, 1)});
        t.append({"Natural Defender", 8,
                  moving({F::Awareness, F::Instinct, F::Anticipation}, 1) + moving({F::Ferocity}, -1)});
        return t;
    }();
    return table;
}

const Trait *findTrait(const QString &name)
{
    for (const Trait &trait : traitTable())
        if (trait.name == name)
            return &trait;
    return nullptr;
}

} // namespace

const QStringList &FighterTraits::drawList()
{
    static const QStringList list = {"Hard Hitter",
                                     "Weak Hitter",
                                     "Fast Attack",
                                     "Slow Attack",
                                     "Fast Defense",
                                     "Slow Defense",
                                     "Natural Attacker",
                                     "Natural Defender",
                                     "Excellent Attack Technique",
                                     "Poor Attack Technique",
                                     "Excellent Defense Technique",
                                     "Poor Defense Technique",
                                     "Natural Athlete",
                                     "Poor Athlete",
                                     "Tough",
                                     "Wimp",
                                     "Fast Reflexes",
                                     "Slow Reflexes",
                                     "Ring General",
                                     "Easily Rattled"};
    return list;
}

QStringList FighterTraits::draw()
{
    const int count = qrand() % 7;
    if (count % 2 == 1)
        return {};
    QStringList left = drawList();
    QStringList drawn;
    for (int i = 0; i < count + 1; ++i)
        drawn.append(left.takeAt(qrand() % left.size()));
    return drawn;
}

void FighterTraits::apply(Entity_Fighter &fighter, const QString &trait)
{
    const Trait *row = findTrait(trait);
    if (!row)
        return;
    for (const Effect &effect : row->effects)
        fighter.addToNumber(effect.attribute, effect.sign * (1 + qrand() % 7));
}

int FighterTraits::shownFrom(const QString &trait)
{
    const Trait *row = findTrait(trait);
    return row ? row->shownFrom : std::numeric_limits<int>::max();
}

QString FighterTraits::bio(const QStringList &traits, int seer)
{
    QString text = "New Fighter";
    if (traits.isEmpty())
        return text;
    text += "\n";
    for (const QString &trait : traits)
        if (seer >= shownFrom(trait))
            text += trait + "\n";
    return text;
}
