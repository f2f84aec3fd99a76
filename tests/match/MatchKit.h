#pragma once

#include "fighters/Entity_Fighter.h"

#include <QString>

namespace MatchKit {

// a man whose every attribute stands at `level`
inline Entity_Fighter fighter(int id, const QString &lastName, const QString &style, int level)
{
    Entity_Fighter man;
    man.setId(id);
    man.setText(Entity_Fighter::FirstName, QStringLiteral("Test"));
    man.setText(Entity_Fighter::LastName, lastName);
    man.setText(Entity_Fighter::FightingStyle, style);
    for (int field = Entity_Fighter::FirstAttribute; field <= Entity_Fighter::LastAttribute; ++field)
        man.setNumber(Entity_Fighter::Number(field), level);
    man.setNumber(Entity_Fighter::HeadDurability, level);
    man.setNumber(Entity_Fighter::BodyDurability, level);
    return man;
}

} // namespace MatchKit
