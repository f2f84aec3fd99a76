#include "fighters/ResultEntry.h"

#include <QStringList>

namespace {

const QString fieldBreak = QStringLiteral(" - ");

} // namespace

ResultEntry::Outcome ResultEntry::outcomeOf(const QString &entry)
{
    const QStringView word = QStringView(entry).left(entry.indexOf(':'));
    if (word == QLatin1String("Win"))
        return Outcome::Win;
    if (word == QLatin1String("Loss"))
        return Outcome::Loss;
    return Outcome::Draw;
}

ResultEntry::ResultEntry(const QString &entry)
    : result(outcomeOf(entry))
{
    const qsizetype bar = entry.indexOf('|');
    if (bar >= 0)
        titleText = entry.mid(bar + 1);
    // the method is the field after the opponent's name, unless the round follows at once
    const QStringList fields = entry.left(bar >= 0 ? bar : entry.size()).split(fieldBreak);
    if (fields.size() > 1 && !fields[1].startsWith(QLatin1String("Rd. ")))
        how = fields[1];
}

bool ResultEntry::byDecision() const
{
    return how.endsWith(QLatin1String("Decision"));
}

bool ResultEntry::byKnockout() const
{
    return how.startsWith(QLatin1String("KO(")) || how.startsWith(QLatin1String("TKO("));
}
