#pragma once

// The 44 numbers that a match leaves of a man, in the order the engine hands them out: how he
// stood when it ended, what he landed of what he threw for each of the twelve strikes (in the
// order of his attributes), what he brought off of what he tried for each of the six defences,
// and the knockdowns. The corner, the match summary and the lessons of a match read them by
// these names.
namespace MatchStatus {

enum Position : int {
    Tactic,
    StaminaBand,
    HeadHealth,
    BodyHealth,
    ArmsHealth,
    LegsHealth,
    // the strikes: landed, thrown
    JabLanded,
    JabThrown,
    HookLanded,
    HookThrown,
    CrossLanded,
    CrossThrown,
    UppercutLanded,
    UppercutThrown,
    LowKickLanded,
    LowKickThrown,
    MidKickLanded,
    MidKickThrown,
    HighKickLanded,
    HighKickThrown,
    FrontKickLanded,
    FrontKickThrown,
    KneeLanded,
    KneeThrown,
    ElbowLanded,
    ElbowThrown,
    DirtyBoxingLanded,
    DirtyBoxingThrown,
    BodyPunchLanded,
    BodyPunchThrown,
    // the defences: brought off, tried
    HighBlocksMade,
    HighBlocksTried,
    BodyAndLegBlocksMade,
    BodyAndLegBlocksTried,
    HighDodgesMade,
    HighDodgesTried,
    OtherDodgesMade,
    OtherDodgesTried,
    HighCountersMade,
    HighCountersTried,
    MidCountersMade,
    MidCountersTried,
    KnockdownsScored,
    KnockdownsTaken,
    Count
};

constexpr int StrikeCount = (HighBlocksMade - JabLanded) / 2;
constexpr int DefenceCount = (KnockdownsScored - HighBlocksMade) / 2;

// strike 0 is the jab, 11 the body punch; defence 0 the high block, 5 the mid counter
constexpr Position landed(int strike)
{
    return Position(JabLanded + 2 * strike);
}
constexpr Position thrown(int strike)
{
    return Position(JabThrown + 2 * strike);
}
constexpr Position made(int defence)
{
    return Position(HighBlocksMade + 2 * defence);
}
constexpr Position tried(int defence)
{
    return Position(HighBlocksTried + 2 * defence);
}

} // namespace MatchStatus
