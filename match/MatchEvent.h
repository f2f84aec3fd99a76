#pragma once

// What one man's state tells the other's. The strike codes follow the order of the strikes of
// the fighter record, so `code - EvJab` is the strike's position there; the three range codes
// are also the ranges a man stands at (0 pocket, 1 long range, 2 clinch).
enum MatchEvent : int {
    EvIn,
    EvOut,
    EvClinch,
    EvFullHit,
    EvKnockdown,
    EvKnockout,
    EvOutAttack,
    EvInAttack,
    EvClinchAttack,
    EvJab,
    EvHook,
    EvCross,
    EvUppercut,
    EvLowKick,
    EvMidKick,
    EvHighKick,
    EvFrontKick,
    EvKnee,
    EvElbow,
    EvDirtyBox,
    EvBodyPunch,
    EvBlocked,
    EvDodged,
    EvCountered,
    EvDefMove,
    EvReturned
};

namespace MatchCodes {
// where a man stands while the range is decided
constexpr int Pocket = 0;
constexpr int LongRange = 1;
constexpr int Clinch = 2;
// the attack kinds of the attacker's working code, then the codes of a man down and out
constexpr int OutAttack = 6;
constexpr int InAttack = 7;
constexpr int ClinchAttack = 8;
constexpr int KnockedDown = 4;
constexpr int KnockedOut = 5;

constexpr bool isStrike(int code)
{
    return code >= EvJab && code <= EvBodyPunch;
}
// the strike's position in the fighter record (0 Jab ... 11 Body Punch)
constexpr int strikeIndex(int code)
{
    return code - EvJab;
}
constexpr int strikeCode(int index)
{
    return EvJab + index;
}
// the range where an announced attack comes, or -1 for any other event
constexpr int rangeOfAttack(int event)
{
    return event == EvOutAttack ? LongRange : event == EvInAttack ? Pocket : event == EvClinchAttack ? Clinch : -1;
}
} // namespace MatchCodes
